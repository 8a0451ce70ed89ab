# Strings, collections, files, file errors and handle maps of the layer: error paths and edge cases.
zo_add_test_executable(test_afx_core
  core/string_test.cpp
  core/string_resource_test.cpp
  core/collection_test.cpp
  core/file_test.cpp
  core/handlemap_test.cpp
  core/core_test.rc
)
target_link_libraries(test_afx_core PRIVATE zoafx)
