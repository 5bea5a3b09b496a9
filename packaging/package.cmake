# `make package`: a Debian package of the program with its manual pages and
# examples; its dependencies are worked out from the libraries the binaries link.
include(${CMAKE_CURRENT_LIST_DIR}/man_pages.cmake)
morve_install_man(morve-calc.1)
install(DIRECTORY examples/ DESTINATION share/doc/morve/examples)

set(MORVE_MAINTAINER "MORVE developers <dev@morve.invalid>" CACHE STRING "Maintainer of the Debian package")

# The terms of use, in Debian's machine-readable form, and the package's changelog,
# one entry for the version, dated with its release.
install(FILES packaging/copyright DESTINATION share/doc/morve)
execute_process(COMMAND date -u -R -d "${MORVE_RELEASE_DATE} 12:00"
                OUTPUT_VARIABLE MORVE_CHANGELOG_DATE OUTPUT_STRIP_TRAILING_WHITESPACE)
configure_file(packaging/changelog.in ${CMAKE_BINARY_DIR}/packaging/changelog @ONLY)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/packaging/changelog.gz
  COMMAND gzip -9 -n -c ${CMAKE_BINARY_DIR}/packaging/changelog > ${CMAKE_BINARY_DIR}/packaging/changelog.gz
  DEPENDS ${CMAKE_BINARY_DIR}/packaging/changelog)
add_custom_target(morve_changelog ALL DEPENDS ${CMAKE_BINARY_DIR}/packaging/changelog.gz)
install(FILES ${CMAKE_BINARY_DIR}/packaging/changelog.gz DESTINATION share/doc/morve)
install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME morve)

# A stripped install (the package's) also drops the compiler's notes, which
# strip keeps and nothing reads at run time.
set(MORVE_SHIPPED_BINARIES bin/morve-calc)
if(TARGET morve)
  list(APPEND MORVE_SHIPPED_BINARIES bin/morve)
endif()
if(TARGET morve_calc_render)
  list(APPEND MORVE_SHIPPED_BINARIES ${MORVE_RENDER_DIR}/morve-render.so)
endif()
install(CODE "
  if(CMAKE_INSTALL_DO_STRIP)
    foreach(binary ${MORVE_SHIPPED_BINARIES})
      execute_process(COMMAND \"${CMAKE_OBJCOPY}\" --remove-section=.comment --remove-section=.note
                              \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/\${binary}\")
    endforeach()
  endif()")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME morve)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${MORVE_MAINTAINER})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${MORVE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt finds its screen and the Portuguese texts of its own dialogs in plugins and
# data that no binary links, so they are named here.
if(MORVE_GUI)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
endif()
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"step-by-step design of reinforced-concrete elements
MORVE designs the elements of a reinforced-concrete building step by step,
for teaching and for the beginning designer: beam sections, columns, slabs,
continuous beams and frames, with every decision of the calculation shown as
a message, a table, a drawing or a line of the calculation report. It follows
the Brazilian codes NBR-6118, NBR-6123 and NBR-8953; its texts are in
Portuguese. morve-calc runs the same calculations from case files.

O MORVE dimensiona passo a passo os elementos de um edifício de concreto
armado, para o ensino e para o projetista iniciante: seções de vigas, pilares,
lajes, vigas contínuas e pórticos, com cada decisão do cálculo mostrada numa
mensagem, numa tabela, num desenho ou numa linha do memorial de cálculo. O
morve-calc faz os mesmos cálculos a partir de arquivos de caso.")
include(CPack)

if(MORVE_TESTS AND MORVE_GUI)
  # Builds the package from this build tree and checks what it carries and what
  # the desktop's validators say of it.
  add_test(NAME package.deb
    COMMAND ${CMAKE_SOURCE_DIR}/tests/package/check_package.sh
            ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR} ${PROJECT_VERSION} ${MORVE_APPSTREAM_ID})
  set_tests_properties(package.deb PROPERTIES TIMEOUT 300)
endif()
