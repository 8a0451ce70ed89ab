# List view, its skinned header, the sort comparisons and the list geometry.
list(APPEND ZO_LIST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoListSort.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoListGeometry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoHeaderCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoListCtrl.cpp
)
