# Installs the build into a clean prefix, moves it, builds the example against it and runs it there.

include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")

set(prefix "${WORK}/prefix")
file(REMOVE_RECURSE "${prefix}" "${WORK}/first-prefix" "${WORK}/goods_list")
run(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/first-prefix")
# Whatever remembers the first place does not work in the second one.
file(RENAME "${WORK}/first-prefix" "${prefix}")

# An installed header includes nothing that was left behind.
file(GLOB headers "${prefix}/include/BaseFrame_PKG/*.h")
foreach(header IN LISTS headers)
  file(STRINGS "${header}" includes REGEX "^#include \"")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" name "${line}")
    if(NOT EXISTS "${prefix}/include/BaseFrame_PKG/${name}")
      message(FATAL_ERROR "${header} includes ${name}, which is not installed: cmake/PublicHeaders.cmake")
    endif()
  endforeach()
endforeach()

run(COMMAND "${CMAKE_COMMAND}" -G Ninja -S "${SOURCE}/examples/goods_list" -B "${WORK}/goods_list"
  "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
  "-DCMAKE_BUILD_TYPE=Debug" "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror")
run(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/goods_list")

# The program finds the goods whose names hold the word in the sample database that it makes.
set(ENV{QT_QPA_PLATFORM} offscreen)
run(COMMAND "${WORK}/goods_list/goods_list" "sqlite::memory:" "چای" OUTPUT found)
if(NOT found MATCHES "چای.*: [1-9][0-9]*\n")
  message(FATAL_ERROR "The example found: ${found}")
endif()
run(COMMAND "${prefix}/bin/workbench" --help OUTPUT help)
if(NOT help MATCHES "--tour")
  message(FATAL_ERROR "The installed workbench says: ${help}")
endif()
message(STATUS "The example found: ${found}")
