# Menus, control wrappers and frames of the layer, where the library does not reach them yet.
zo_add_test_executable(test_afx_frame
  frame/menu_test.cpp
  frame/controls_test.cpp
  frame/frame_test.cpp
  frame/frame_test.rc
)
target_link_libraries(test_afx_frame PRIVATE zoafx)
