# The skinned frame window.
list(APPEND ZO_FRAME_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/frame_wnd_test.cpp)
