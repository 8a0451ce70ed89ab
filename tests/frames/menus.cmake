list(APPEND ZO_FRAME_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/menu_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/menu_rules_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/menu_measure_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/menu_char_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/menu_draw_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/menu_hook_test.cpp
  # GDI+ for the whole program, as every host starts it before the library.
  ${PROJECT_SOURCE_DIR}/tests/core/core_test_support.cpp
)
