# Device contexts, GDI objects, image lists and PNG images of the layer.
zo_add_test_executable(test_afx_gdi
  gdi/gdi_objects_test.cpp
  gdi/dc_test.cpp
  gdi/imagelist_test.cpp
  gdi/pngimage_test.cpp
  gdi/gdi_test.rc
)
target_link_libraries(test_afx_gdi PRIVATE zoafx)
