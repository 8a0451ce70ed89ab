# Tests of the tree-list item model and its file format.
list(APPEND ZO_LIST_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/tree_item_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tree_file_test.cpp
)

# Damaged and hostile tree files: a fixed-seed mutation run, registered with CTest.
if(TARGET ZoCtrl)
  add_executable(fuzz_tree_file ${CMAKE_CURRENT_LIST_DIR}/fuzz_tree_file.cpp)
  zo_windows_executable(fuzz_tree_file)
  target_link_libraries(fuzz_tree_file PRIVATE ZoCtrl zotest_support $<$<NOT:$<BOOL:${MSVC}>>:zoafx>)
  add_test(NAME fuzz_tree_file COMMAND fuzz_tree_file)
  set_tests_properties(fuzz_tree_file PROPERTIES TIMEOUT 300)
endif()
