# Edit box, in-place cell editor and combo box.
list(APPEND ZO_CONTROL_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoSkinFrame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoEdit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoEditInPlace.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoComboBox.cpp
)
