# Tests of the buttons and static controls.
list(APPEND ZO_CONTROL_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/controls_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/static_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/static_line_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_rules_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_paint_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_behaviour_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_variants_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/controls_common_test.cpp
)
