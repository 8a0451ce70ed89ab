# Value controls: slider, range slider and tab control.
list(APPEND ZO_CONTROL_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ZoSliderMath.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoSliderCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoRangeSliderCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ZoTabCtrl.cpp
)
