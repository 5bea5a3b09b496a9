# `make package`: a Debian package of the program with its manual pages and
# examples; its dependencies are worked out from the libraries the binaries link.
include(${CMAKE_CURRENT_LIST_DIR}/man_pages.cmake)
morve_install_man(morve-calc.1)
install(DIRECTORY examples/ DESTINATION share/doc/morve/examples)

set(MORVE_MAINTAINER "MORVE developers <dev@morve.invalid>" CACHE STRING "Maintainer of the Debian package")

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
