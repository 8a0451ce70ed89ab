// Resource and command ids of the frame tests.
#pragma once

#define IDR_TEST_FRAME 100
#define IDR_TEST_MDI 110
#define IDR_BROKEN_TOOLBAR 120
#define IDR_MISSING 199

#define ID_TEST_RED 101
#define ID_TEST_GREEN 102
#define ID_TEST_BLUE 103
#define ID_TEST_OPEN 104
#define ID_TEST_EXIT 105
#define ID_WINDOW_CASCADE 0xE132
