# Tests of the scroll bar, progress bar, spin button and separator window.
list(APPEND ZO_CONTROL_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/scroll_math_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scroll_bar_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/progress_ctrl_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/spin_button_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/separator_wnd_test.cpp
)
