# Run by CTest (cmake -P): install, build the example host against the installed package, run it.
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}")
  endif()
endfunction()

file(REMOVE_RECURSE ${PREFIX})
run("cmake --install" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
set(configure ${CMAKE_COMMAND} -S ${EXAMPLE_SOURCE} -B ${EXAMPLE_BUILD} -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_PREFIX_PATH=${PREFIX})
if(TOOLCHAIN)
  list(APPEND configure -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()
run("configuring the example host" ${configure})
run("building the example host" ${CMAKE_COMMAND} --build ${EXAMPLE_BUILD})

# The host runs with the package's DLLs beside it, as an installed application would.
file(GLOB dlls ${PREFIX}/bin/*.dll)
file(COPY ${dlls} DESTINATION ${EXAMPLE_BUILD})
file(GLOB exe ${EXAMPLE_BUILD}/zo_host.exe ${EXAMPLE_BUILD}/*/zo_host.exe)
if(NOT exe)
  message(FATAL_ERROR "the example host was not built")
endif()
list(GET exe 0 exe)
run("the example host's check" ${EMULATOR} ${exe} --check)
message(STATUS "example host built against ${PREFIX} and checked")
