# The skinned frame window.
list(APPEND ZO_FRAME_SOURCES ${CMAKE_CURRENT_LIST_DIR}/ZoFrameWnd.cpp)
