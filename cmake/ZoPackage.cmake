# The installable package. A host writes
#   find_package(ZoCtrl CONFIG REQUIRED)
#   target_link_libraries(app PRIVATE ZoCtrl::ZoCtrl)
# and gets the include folders, the definitions the headers are compiled with, ZoCtrl.dll's
# import library and the system libraries it needs; without MSVC also our MFC-compatible layer
# (zoafx.dll, MFC's header names) and the host's entry point, as linking the real MFC gives.
#
# Installed layout: bin/ (ZoCtrl.dll, zoafx.dll and the MinGW runtime DLLs a host runs with),
# lib/ (import and static libraries), include/ZoCtrl/ (ZoCtrl.h, ZoLibrary.h and one folder per
# subsystem), include/zoafx/ (the layer's afx*.h), lib/cmake/ZoCtrl/ (the package files).
include(CMakePackageConfigHelpers)

if(NOT TARGET ZoCtrl)
  return()
endif()

# ZoCtrl::ZoCtrl is this target; the DLL itself is exported as ZoCtrl::Library.
add_library(ZoCtrl_host INTERFACE)
add_library(ZoCtrl::ZoCtrl ALIAS ZoCtrl_host)
set_target_properties(ZoCtrl PROPERTIES EXPORT_NAME Library)
set_target_properties(ZoCtrl_host PROPERTIES EXPORT_NAME ZoCtrl)
target_link_libraries(ZoCtrl_host INTERFACE ZoCtrl)
target_compile_definitions(ZoCtrl_host INTERFACE UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601
                                                 _WIN32_IE=0x0800)
set(zo_package_targets ZoCtrl ZoCtrl_host)
if(MSVC)
  # The real MFC as a shared library; the host sets CMAKE_MFC_FLAG to 2 as this build does.
  target_compile_definitions(ZoCtrl_host INTERFACE _AFXDLL)
else()
  target_link_libraries(ZoCtrl_host INTERFACE zoafx_host)
  # wWinMain entry; one shared C++ runtime, so exceptions cross the DLLs.
  target_link_options(ZoCtrl_host INTERFACE -municode -shared-libgcc)
  list(APPEND zo_package_targets zoafx zoafx_main zoafx_host)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/mfccompat/include/ DESTINATION include/zoafx)
endif()

install(TARGETS ${zo_package_targets} EXPORT ZoCtrlTargets
        RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(FILES ${PROJECT_SOURCE_DIR}/library/ZoCtrl.h ${PROJECT_SOURCE_DIR}/library/ZoLibrary.h
        DESTINATION include/ZoCtrl)
foreach(dir core images controls dialogs lists frames)
  if(EXISTS ${PROJECT_SOURCE_DIR}/${dir})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${dir} DESTINATION include/ZoCtrl FILES_MATCHING PATTERN "*.h")
  endif()
endforeach()

install(EXPORT ZoCtrlTargets NAMESPACE ZoCtrl:: DESTINATION lib/cmake/ZoCtrl)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/ZoCtrlConfig.cmake
     "include(\${CMAKE_CURRENT_LIST_DIR}/ZoCtrlTargets.cmake)\n")
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ZoCtrlConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ZoCtrlConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/ZoCtrlConfigVersion.cmake
        DESTINATION lib/cmake/ZoCtrl)
