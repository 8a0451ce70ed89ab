list(APPEND ZOAFX_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/resexcept.cpp
  ${CMAKE_CURRENT_LIST_DIR}/gdimaps.cpp
  ${CMAKE_CURRENT_LIST_DIR}/gdiobj.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dc.cpp
  ${CMAKE_CURRENT_LIST_DIR}/imagelist.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pngimage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/windc.cpp
)
