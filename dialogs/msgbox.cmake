# The message boxes: their rules, their dialog and the functions that show it.
list(APPEND ZO_DIALOG_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoMessageBoxRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoMessageBoxDialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoMessageBox.cpp
)
