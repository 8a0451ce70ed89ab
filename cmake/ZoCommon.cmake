# Helpers shared by every folder's CMakeLists.

# Warnings for ZoCtrl's own targets (never for third-party code such as GoogleTest).
function(zo_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${ZO_WERROR}>:/WX>)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra $<$<BOOL:${ZO_WERROR}>:-Werror>)
  endif()
endfunction()

# MinGW's C++ runtime is linked dynamically so that exceptions thrown in one module are
# caught in another (i686 uses DWARF-2 unwinding, which a static runtime cannot share
# across DLLs). Its DLLs are copied beside the executables.
function(zo_copy_runtime_dlls)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(names libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
  else()
    set(names libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
  endif()
  file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  foreach(name IN LISTS names)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS "${path}")
      message(FATAL_ERROR "MinGW runtime DLL ${name} not found")
    endif()
    file(COPY ${path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    # An installed package carries them too: a host runs with them beside it.
    install(FILES ${path} DESTINATION bin)
  endforeach()
endfunction()

# Options every Windows executable of the project shares.
function(zo_windows_executable target)
  zo_warnings(${target})
  if(MINGW)
    # wmain / wWinMain entry points.
    target_link_options(${target} PRIVATE -municode -shared-libgcc)
  endif()
endfunction()

# The common-controls 6 manifest of a Visual Studio host, so tests see the controls users run.
# One GoogleTest executable per subsystem, run by CTest under Wine. Each carries the
# common-controls 6 manifest of a Visual Studio host, so the tests see the controls users run.
function(zo_common_controls6 target)
  if(MSVC)
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/common_controls6.manifest)
  else()
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/common_controls6.rc)
  endif()
endfunction()

function(zo_add_test_executable name)
  add_executable(${name} ${ARGN})
  zo_common_controls6(${name})
  zo_windows_executable(${name})
  target_link_libraries(${name} PRIVATE zotest_support gtest)
  add_test(NAME ${name} COMMAND ${name} --gtest_color=no)
  set_tests_properties(${name} PROPERTIES TIMEOUT 1500)
endfunction()

# Includes every <family>.cmake beside the calling CMakeLists.txt. Each family appends its
# sources to a list of the caller's, so families are added without editing a shared list.
macro(zo_include_families)
  file(GLOB _zo_families CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cmake)
  foreach(_zo_family IN LISTS _zo_families)
    include(${_zo_family})
  endforeach()
endmacro()

# A subsystem's test executable, built from the test sources its families listed.
function(zo_add_library_tests name)
  if(ARGN AND TARGET ZoCtrl)
    zo_add_test_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE ZoCtrl $<$<NOT:$<BOOL:${MSVC}>>:zoafx> gdiplus comctl32)
  endif()
endfunction()
