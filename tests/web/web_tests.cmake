# The web version's tests, on $(BUILD)/web as `make web` lays it out (make test
# builds it first). The core in node: every example and case file gives the
# native morve-calc's output byte for byte, and the page's key filters the core's.
find_program(MORVE_NODE node)
if(NOT MORVE_NODE)
  set(MORVE_NODE node)  # installed by `make web`, after this tree was configured
endif()
add_test(NAME web.node_same_outcomes
         COMMAND ${MORVE_NODE} --no-experimental-fetch ${CMAKE_CURRENT_LIST_DIR}/node/same_outcomes.js
                 ${CMAKE_BINARY_DIR}/web/morve.js $<TARGET_FILE:morve-calc> ${CMAKE_SOURCE_DIR})
set_tests_properties(web.node_same_outcomes PROPERTIES TIMEOUT 600)

if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/browser/browser_tests.cmake)
  include(${CMAKE_CURRENT_LIST_DIR}/browser/browser_tests.cmake)
endif()
