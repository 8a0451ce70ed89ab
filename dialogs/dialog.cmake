# The skinned dialog: its rules, window, frame painting and automatic subclassing.
list(APPEND ZO_DIALOG_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoDialogGeometry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoDialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoDialogPaint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoDialogControls.cpp
)
