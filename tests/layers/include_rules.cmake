# Run by ctest as "cmake -DSOURCE_DIR=... -P include_rules.cmake": the house has no
# arrow back up and no family leans on another.
#  - A module family (one folder each) includes no other family's headers, nor the
#    front ends (gui/, render/, cli/, web/); what two families share lives in basis/ or
#    numeric/. Families write their reports into app/report_document.h, which
#    reports/report_writer.h passes on with the paging.
#  - The ground floor (app/, basis/, numeric/, draw/) includes nothing of the
#    families nor of reports/, gui/, render/ or cli/ above it.
cmake_minimum_required(VERSION 3.22)
set(families anchorage beams columns continuous frames serviceability slabs stairs)
set(front gui render cli web)
set(upper reports ${front})
set(ground app basis numeric draw)
set(faults "")

function(check_folder folder forbidden)
  set(found "${faults}")
  file(GLOB_RECURSE sources "${SOURCE_DIR}/src/${folder}/*.h" "${SOURCE_DIR}/src/${folder}/*.cpp")
  foreach(source ${sources})
    file(STRINGS "${source}" includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(line ${includes})
      string(REGEX REPLACE "^[^\"]*\"([^/\"]*)/.*$" "\\1" target "${line}")
      if(target IN_LIST forbidden)
        file(RELATIVE_PATH where "${SOURCE_DIR}" "${source}")
        string(STRIP "${line}" line)
        string(APPEND found "${where}: ${line}\n")
      endif()
    endforeach()
  endforeach()
  set(faults "${found}" PARENT_SCOPE)
endfunction()

foreach(family ${families})
  set(others ${families} ${front})
  list(REMOVE_ITEM others ${family})
  check_folder(${family} "${others}")
endforeach()
foreach(floor ${ground})
  check_folder(${floor} "${families};${upper}")
endforeach()

if(faults)
  message(FATAL_ERROR "Includes against the layers of the house:\n${faults}")
endif()
message(STATUS "every family keeps to its own folder and the ground floor looks no higher")
