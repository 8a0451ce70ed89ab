// Everything the test helpers offer, in one include.
//   recorder.h          message recorder and ZOTEST_EXPECT_SEQUENCE
//   renderer.h          Dib, RenderClient/RenderWindow, pixel assertions
//   resource_counter.h  GDI/USER/heap counts and ZOTEST_EXPECT_NO_LEAKS
//   pump.h              PumpUntilIdle, PumpUntil
//   fresh_process.h     ZOTEST_RUN_IN_FRESH_PROCESS
//   input.h             SendClick, SendKey, MoveCursorTo, PumpUntilReceived
//   test_window.h       RunningUnderWine, CreateSolidWindow, ScopedWindow
#pragma once

#include <zotest/fresh_process.h>
#include <zotest/input.h>
#include <zotest/pump.h>
#include <zotest/recorder.h>
#include <zotest/renderer.h>
#include <zotest/resource_counter.h>
#include <zotest/test_window.h>
