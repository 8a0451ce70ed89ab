# Tests of the tree-list view, its row index and its sort order.
list(APPEND ZO_LIST_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/tree_rules_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tree_view_test.cpp
)
