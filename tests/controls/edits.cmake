# Tests of the edit box, the in-place cell editor and the combo box.
list(APPEND ZO_CONTROL_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/edit_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit_in_place_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/combo_box_test.cpp
)
