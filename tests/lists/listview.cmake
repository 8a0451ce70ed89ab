# Tests of the list view, its header, the sort comparisons and the list geometry.
list(APPEND ZO_LIST_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/../controls/controls_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_rules_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_sort_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_paint_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_scroll_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_edit_test.cpp
)
