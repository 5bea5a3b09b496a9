# What a desktop installation of the program carries besides the binaries: the
# help pages and tips, the menu entry, the ".mor" file type, the icons, the
# AppStream description and the manual page of the program.

install(DIRECTORY data/ajuda DESTINATION share/morve)
# The window icon's last resort, beside the help folder, when no icon theme has it.
install(FILES data/morve.svg DESTINATION share/morve)

install(FILES data/morve.desktop DESTINATION share/applications)
# The ".mor" type the desktop entry opens; Debian's shared-mime-info trigger
# updates the system's database when the package is installed.
install(FILES data/morve-mime.xml DESTINATION share/mime/packages RENAME morve.xml)

# Icons at the usual hicolor sizes, drawn from the one scalable picture so that
# they never drift from it.
install(FILES data/morve.svg DESTINATION share/icons/hicolor/scalable/apps)
find_program(MORVE_RSVG_CONVERT rsvg-convert)
set(MORVE_ICON_SIZES 16 22 24 32 48 64 128 256)
if(MORVE_RSVG_CONVERT)
  set(icon_files)
  foreach(size ${MORVE_ICON_SIZES})
    set(icon ${CMAKE_BINARY_DIR}/icons/${size}x${size}/morve.png)
    add_custom_command(OUTPUT ${icon}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons/${size}x${size}
      COMMAND ${MORVE_RSVG_CONVERT} -w ${size} -h ${size} -o ${icon} ${CMAKE_SOURCE_DIR}/data/morve.svg
      DEPENDS ${CMAKE_SOURCE_DIR}/data/morve.svg VERBATIM)
    install(FILES ${icon} DESTINATION share/icons/hicolor/${size}x${size}/apps)
    list(APPEND icon_files ${icon})
  endforeach()
  add_custom_target(morve_icons ALL DEPENDS ${icon_files})
else()
  message(WARNING "rsvg-convert (Debian: librsvg2-bin) not found: the package gets only the scalable icon")
endif()

# The AppStream description. Its id and the address of its screenshots are the
# publisher's to choose; the pictures are those `make screenshots` writes.
set(MORVE_APPSTREAM_ID "br.morve.Morve" CACHE STRING "AppStream component id")
set(MORVE_SCREENSHOT_URL "https://morve.example.org/screenshots" CACHE STRING
  "Where the pictures of make screenshots are published")
configure_file(data/morve.metainfo.xml.in ${CMAKE_BINARY_DIR}/${MORVE_APPSTREAM_ID}.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/${MORVE_APPSTREAM_ID}.metainfo.xml DESTINATION share/metainfo)

include(${CMAKE_CURRENT_LIST_DIR}/man_pages.cmake)
morve_install_man(morve.1)
