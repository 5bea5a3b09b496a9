include_guard(GLOBAL)
# Manual pages go in compressed, as Debian installs them, with the version and
# its release date written into their title line.
function(morve_install_man page)
  set(filled ${CMAKE_BINARY_DIR}/man/${page})
  configure_file(${CMAKE_SOURCE_DIR}/man/${page} ${filled} @ONLY)
  set(packed ${filled}.gz)
  add_custom_command(OUTPUT ${packed}
    COMMAND gzip -9 -n -c ${filled} > ${packed}
    DEPENDS ${filled})
  string(MAKE_C_IDENTIFIER ${page} target)
  add_custom_target(man_${target} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION share/man/man1)
endfunction()
