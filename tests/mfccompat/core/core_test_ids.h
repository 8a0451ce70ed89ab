// String resources of test_afx_core (core_test.rc).
#pragma once
#define IDS_CORE_GREETING 100      // en-US and de-DE
#define IDS_CORE_ITEMS 101         // en-US and de-DE, a format with %d
#define IDS_CORE_ENGLISH_ONLY 200  // en-US only, in a block of its own
#define IDS_CORE_MISSING 300       // not defined anywhere
