include_guard(GLOBAL)
# Manual pages go in compressed, as Debian installs them.
function(morve_install_man page)
  set(packed ${CMAKE_BINARY_DIR}/man/${page}.gz)
  add_custom_command(OUTPUT ${packed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
    COMMAND gzip -9 -n -c ${CMAKE_SOURCE_DIR}/man/${page} > ${packed}
    DEPENDS ${CMAKE_SOURCE_DIR}/man/${page})
  string(MAKE_C_IDENTIFIER ${page} target)
  add_custom_target(man_${target} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION share/man/man1)
endfunction()
