# Tests of the slider, range slider and tab control.
list(APPEND ZO_CONTROL_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/slider_math_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/slider_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/range_slider_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tab_ctrl_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/focus_cue_test.cpp
)
