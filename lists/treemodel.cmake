# Tree-list item model and its file format.
list(APPEND ZO_LIST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeListCtrlItem.cpp
)
