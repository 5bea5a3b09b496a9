# Installs puppeteer-core from the lock file into the build tree (DEST), once per
# change of the lock file: the browser tests find it through NODE_PATH. It never
# downloads a browser; the tests drive Debian's /usr/bin/chromium.
foreach(file package.json package-lock.json)
  configure_file(${SOURCE}/${file} ${DEST}/${file} COPYONLY)
endforeach()
set(stamp ${DEST}/node_modules/.installed-lock.json)
if(EXISTS ${stamp})
  file(SHA256 ${stamp} installed)
  file(SHA256 ${DEST}/package-lock.json wanted)
  if(installed STREQUAL wanted)
    return()
  endif()
endif()
set(ENV{PUPPETEER_SKIP_DOWNLOAD} 1)
execute_process(COMMAND npm ci --ignore-scripts --no-audit --no-fund --loglevel=error
                WORKING_DIRECTORY ${DEST} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "npm ci falhou em ${DEST}")
endif()
configure_file(${DEST}/package-lock.json ${stamp} COPYONLY)
