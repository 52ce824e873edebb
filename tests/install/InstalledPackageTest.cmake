# Installs the build into a clean prefix, moves it, builds the example against it and runs it there.

function(run)
  cmake_parse_arguments(RUN "" "OUTPUT" "COMMAND" ${ARGN})
  execute_process(COMMAND ${RUN_COMMAND} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${RUN_COMMAND}\nended with ${code}\n${output}\n${errors}")
  endif()
  if(RUN_OUTPUT)
    set(${RUN_OUTPUT} "${output}" PARENT_SCOPE)
  endif()
endfunction()

set(prefix "${WORK}/prefix")
file(REMOVE_RECURSE "${prefix}" "${WORK}/first-prefix" "${WORK}/goods_list")
run(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/first-prefix")
# Whatever remembers the first place does not work in the second one.
file(RENAME "${WORK}/first-prefix" "${prefix}")

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
