# Windows, message maps, applications and dialogs of the layer.
zo_add_test_executable(test_afx_wnd
  wnd/app_environment.cpp
  wnd/msgmap_test.cpp
  wnd/reflection_test.cpp
  wnd/lifetime_test.cpp
  wnd/pretranslate_test.cpp
  wnd/dialog_test.cpp
  wnd/menu_test.cpp
  wnd/wnd_test.rc
)
target_link_libraries(test_afx_wnd PRIVATE zoafx)

# An extension DLL with its own dialog and string, loaded by test_afx_wnd.
add_library(test_afx_extdll SHARED
  wnd/extdll_main.cpp
  wnd/extdll.rc
)
set_target_properties(test_afx_extdll PROPERTIES PREFIX "")
target_compile_definitions(test_afx_extdll PRIVATE _AFXEXT)
target_link_libraries(test_afx_extdll PRIVATE zoafx)
target_link_options(test_afx_extdll PRIVATE -shared-libgcc)
zo_warnings(test_afx_extdll)
add_dependencies(test_afx_wnd test_afx_extdll)
