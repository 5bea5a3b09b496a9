# What the package ships is built as Debian builds its own packages: fortified
# string and memory functions, a stack protector, read-only relocations bound at
# start. The flags come from dpkg-buildflags when it is there, so that they follow
# the distribution; only its hardening is taken, the optimisation stays the build
# type's and the debug information out (the package is stripped anyway), and its
# -ffile-prefix-map, which names the folder configured in, would keep the compiler
# cache from sharing objects between trees.
# Only Release builds: the fortified functions need the optimiser, and the sanitizer
# build has checks of its own.
set(MORVE_HARDEN_COMPILE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -Wformat -Werror=format-security)
set(MORVE_HARDEN_LINK -Wl,-z,relro -Wl,-z,now)
find_program(MORVE_DPKG_BUILDFLAGS dpkg-buildflags)
if(MORVE_DPKG_BUILDFLAGS)
  function(morve_buildflags kind out)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env DEB_BUILD_MAINT_OPTIONS=hardening=+all
                            ${MORVE_DPKG_BUILDFLAGS} --get ${kind}
                    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    list(FILTER flags EXCLUDE REGEX "^-g|^-O|^-ffile-prefix-map|^-fdebug-prefix-map")
    set(${out} ${flags} PARENT_SCOPE)
  endfunction()
  morve_buildflags(CPPFLAGS cppflags)
  morve_buildflags(CXXFLAGS cxxflags)
  morve_buildflags(LDFLAGS ldflags)
  if(cxxflags AND ldflags)
    set(MORVE_HARDEN_COMPILE ${cppflags} ${cxxflags})
    set(MORVE_HARDEN_LINK ${ldflags})
  endif()
endif()

# The targets whose code goes into the package; the tests keep plain flags.
function(morve_harden)
  foreach(target ${ARGN})
    target_compile_options(${target} PRIVATE "$<$<CONFIG:Release>:${MORVE_HARDEN_COMPILE}>")
    target_link_options(${target} PRIVATE "$<$<CONFIG:Release>:${MORVE_HARDEN_LINK}>")
  endforeach()
endfunction()
