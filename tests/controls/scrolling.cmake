# Tests of the scroll bar, progress bar, spin button and separator window.
list(APPEND ZO_CONTROL_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/scroll_math_test.cpp
)
