# Tests of the skinned dialog and the message boxes, with their own dialog templates.
list(APPEND ZO_DIALOG_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/../controls/controls_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dialogs_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dialogs_test.rc
  ${CMAKE_CURRENT_LIST_DIR}/dialog_rules_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dialog_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/msgbox_rules_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/msgbox_test.cpp
)
