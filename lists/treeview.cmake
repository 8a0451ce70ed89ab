# Tree-list view: the view, its row index, its sort order and the rewriting of rows in a new order.
list(APPEND ZO_LIST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeRowIndex.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoRowRewrite.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeSort.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoTreeListCtrl.cpp
)
