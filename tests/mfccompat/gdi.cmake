# Error paths and the members the library does not call yet: device contexts, GDI objects, PNG images.
zo_add_test_executable(test_afx_gdi
  gdi/gdi_objects_test.cpp
  gdi/dc_test.cpp
  gdi/pngimage_test.cpp
  gdi/gdi_test.rc
)
target_link_libraries(test_afx_gdi PRIVATE zoafx)
