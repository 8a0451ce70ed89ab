list(APPEND ZOAFX_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/object.cpp
  ${CMAKE_CURRENT_LIST_DIR}/exceptions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/string.cpp
  ${CMAKE_CURRENT_LIST_DIR}/strformat.cpp
  ${CMAKE_CURRENT_LIST_DIR}/module.cpp
  ${CMAKE_CURRENT_LIST_DIR}/handlemap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/collections.cpp
  ${CMAKE_CURRENT_LIST_DIR}/file.cpp
  ${CMAKE_CURRENT_LIST_DIR}/memfile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stringdata.h
)
