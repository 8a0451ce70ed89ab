# Scroll bar, progress bar, spin button and separator window.
list(APPEND ZO_CONTROL_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoScrollBarMath.cpp
)
