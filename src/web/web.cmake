# The core compiled to WebAssembly for the page: morve.js and morve.wasm, written to
# MORVE_WEB_OUTPUT ($(BUILD)/web as `make web` lays it out). One entry point,
# morve_call (src/web/web_call.cpp), takes a JSON request and gives a JSON answer.
set(MORVE_WEB_OUTPUT ${CMAKE_BINARY_DIR}/web CACHE PATH "Folder of morve.js and morve.wasm")
# The optimisation of the core and of the link (wasm-opt). -O2: with Debian's
# emscripten 3.1.6 the core compiled with -Os or -Oz reads a double from a wild
# address in a Form39 check (the same code runs clean natively under valgrind), and
# the -O2 build is well within the weight the page may have.
set(MORVE_WEB_OPTIMISE -O2 CACHE STRING "Optimisation of the web build")

# The desktop's calculations throw and catch (bad input, a case refused): the
# browser's build keeps C++ exceptions on, at compile and at link.
target_compile_options(morve_core PUBLIC -fexceptions ${MORVE_WEB_OPTIMISE})

# nlohmann json is header-only: the system's copy, which emscripten's own search
# paths do not look at, is reached through a folder holding only it, so that no
# other system header can stand in for emscripten's.
find_path(MORVE_JSON_INCLUDE nlohmann/json.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(NOT MORVE_JSON_INCLUDE)
  message(FATAL_ERROR "nlohmann/json.hpp not found: install nlohmann-json3-dev")
endif()
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/web-include)
file(CREATE_LINK ${MORVE_JSON_INCLUDE}/nlohmann ${CMAKE_BINARY_DIR}/web-include/nlohmann SYMBOLIC)

# emscripten's JavaScript optimiser needs acorn, which Debian keeps in its own node
# folder; a node that is not Debian's own does not look there by itself.
if(EXISTS /usr/share/nodejs/acorn)
  set(CMAKE_CXX_LINKER_LAUNCHER ${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs)
endif()

file(GLOB MORVE_WEB_SOURCES CONFIGURE_DEPENDS src/web/*.cpp)
add_executable(morve_web ${MORVE_WEB_SOURCES} ${MORVE_CASE_RUNNER_SOURCES})
target_link_libraries(morve_web PRIVATE morve_core)
target_include_directories(morve_web SYSTEM PRIVATE ${CMAKE_BINARY_DIR}/web-include)
set_target_properties(morve_web PROPERTIES OUTPUT_NAME morve SUFFIX .js
  RUNTIME_OUTPUT_DIRECTORY ${MORVE_WEB_OUTPUT})
target_link_options(morve_web PRIVATE -fexceptions ${MORVE_WEB_OPTIMISE}
  -sMODULARIZE=1 -sEXPORT_NAME=createMorve -sENVIRONMENT=web,worker,node
  -sALLOW_MEMORY_GROWTH=1
  -sEXPORTED_FUNCTIONS=_morve_call
  -sEXPORTED_RUNTIME_METHODS=ccall,cwrap,UTF8ToString)
