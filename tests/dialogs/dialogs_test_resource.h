// Dialog templates and strings of the dialog tests.
#pragma once

#define IDD_TEST_NINE_CLASSES   100 // caption, system menu, both boxes, a control of each class
#define IDD_TEST_CLOSE_ONLY     101 // caption and system menu, no boxes
#define IDD_TEST_NO_SYSMENU     102 // caption only
#define IDD_TEST_BARE           103 // neither caption nor system menu
#define IDD_TEST_ATTACHED       104 // an edit and a button the host attaches itself

#define IDC_TEST_STATIC         200
#define IDC_TEST_BUTTON         201
#define IDC_TEST_PROGRESS       202
#define IDC_TEST_EDIT           203
#define IDC_TEST_SLIDER         204
#define IDC_TEST_LIST           205
#define IDC_TEST_COMBO          206
#define IDC_TEST_TABS           207
#define IDC_TEST_SCROLLBAR      208
#define IDC_TEST_CHECK          209

#define IDS_TEST_FORMAT         900 // "Value %d of %s"
#define IDS_TEST_MISSING        999 // no such string
