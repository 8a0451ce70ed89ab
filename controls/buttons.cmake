# Buttons and static controls.
list(APPEND ZO_CONTROL_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoControlTheme.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoWindowHelpers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoStatic.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoButtonRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoButton.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoButtonPaint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoButtonVariants.cpp
)
