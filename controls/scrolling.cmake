# Scroll bar, progress bar, spin button and separator window.
list(APPEND ZO_CONTROL_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoScrollBarMath.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoScrollBar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoProgressCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoSpinButtonCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SeparatorWnd.cpp
)
