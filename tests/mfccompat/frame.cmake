# Menus, control wrappers, frames and control bars of the layer.
zo_add_test_executable(test_afx_frame
  frame/menu_test.cpp
  frame/controls_test.cpp
  frame/common_controls_test.cpp
  frame/list_tree_test.cpp
  frame/frame_test.cpp
  frame/toolbar_test.cpp
  frame/frame_test.rc
)
target_link_libraries(test_afx_frame PRIVATE zoafx)
