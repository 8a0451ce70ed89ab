# Tree-list view: the view, its row index and its sort order.
list(APPEND ZO_LIST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeRowIndex.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeSort.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeListCtrl.cpp
)
