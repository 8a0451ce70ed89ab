# Tests of the tree-list item model and its file format.
list(APPEND ZO_LIST_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/tree_item_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tree_file_test.cpp
)

