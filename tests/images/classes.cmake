# Tests of the skin image classes and the PNG store, built into test_images.
if(NOT TARGET test_images)
  return()
endif()
target_sources(test_images PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/image_test_support.cpp
  # GDI+ for the test program and the library's lifetime around a test.
  ${PROJECT_SOURCE_DIR}/tests/core/core_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/bmp_image_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/png_image_test.cpp
)
target_link_libraries(test_images PRIVATE ZoCtrl)
if(NOT MSVC)
  target_link_libraries(test_images PRIVATE zoafx)
endif()
