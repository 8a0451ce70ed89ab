# Menus, frames and control wrappers of the layer: lifetime, handle maps, bad input, reflection,
# automatic menu enabling.
zo_add_test_executable(test_afx_frame
  frame/menu_test.cpp
  frame/controls_test.cpp
)
target_link_libraries(test_afx_frame PRIVATE zoafx)
