# Windows, message maps, applications and dialogs of the layer.
zo_add_test_executable(test_afx_wnd
  wnd/app_environment.cpp
  wnd/msgmap_test.cpp
  wnd/reflection_test.cpp
  wnd/lifetime_test.cpp
  wnd/pretranslate_test.cpp
)
target_link_libraries(test_afx_wnd PRIVATE zoafx)
