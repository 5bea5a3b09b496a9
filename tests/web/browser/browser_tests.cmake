include_guard(GLOBAL)
# The web version in headless Chromium (Debian's /usr/bin/chromium), driven by
# puppeteer-core. The fixture installs puppeteer-core from the lock file into
# the build tree (browser-tests/node_modules, again only when the lock file
# changes); each test serves $(BUILD)/web itself and is skipped when it is missing.
set(MORVE_BROWSER_DIR ${CMAKE_CURRENT_LIST_DIR})
set(MORVE_BROWSER_MODULES ${CMAKE_BINARY_DIR}/browser-tests)
add_test(NAME web.browser.install
         COMMAND ${CMAKE_COMMAND} -DSOURCE=${MORVE_BROWSER_DIR} -DDEST=${MORVE_BROWSER_MODULES}
                 -P ${MORVE_BROWSER_DIR}/npm_ci.cmake)
set_tests_properties(web.browser.install PROPERTIES FIXTURES_SETUP morve_browser)

set(MORVE_BROWSER_TESTS modules "examples 1/2" "examples 2/2" questions files windows timings recovery)
foreach(entry ${MORVE_BROWSER_TESTS})
  separate_arguments(words UNIX_COMMAND "${entry}")
  list(POP_FRONT words script)
  string(REPLACE "/" "of" name "${entry}")
  string(REPLACE " " "_" name "${name}")
  add_test(NAME web.browser.${name}
           COMMAND node ${MORVE_BROWSER_DIR}/${script}_test.js ${words})
  set_tests_properties(web.browser.${name} PROPERTIES
    FIXTURES_REQUIRED morve_browser SKIP_RETURN_CODE 77 TIMEOUT 180
    ENVIRONMENT "NODE_PATH=${MORVE_BROWSER_MODULES}/node_modules;MORVE_WEB=${CMAKE_BINARY_DIR}/web;MORVE_CALC=$<TARGET_FILE:morve-calc>;MORVE_EXAMPLES=${CMAKE_SOURCE_DIR}/examples;MORVE_CASES=${CMAKE_SOURCE_DIR}/tests/cases;MORVE_SHOTS=${CMAKE_BINARY_DIR}/web-shots")
endforeach()
# The main screens again in the smallest window the page is made for.
add_test(NAME web.browser.modules_1280x720 COMMAND node ${MORVE_BROWSER_DIR}/modules_test.js)
get_test_property(web.browser.modules ENVIRONMENT MORVE_BROWSER_ENV)
set_tests_properties(web.browser.modules_1280x720 PROPERTIES
  FIXTURES_REQUIRED morve_browser SKIP_RETURN_CODE 77 TIMEOUT 180
  ENVIRONMENT "${MORVE_BROWSER_ENV};MORVE_WINDOW=1280x720")
# Timings mean something only with the machine to themselves.
set_tests_properties(web.browser.timings PROPERTIES RUN_SERIAL TRUE)
