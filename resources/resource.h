// Resource ids of ZoCtrl.dll. Skin bitmaps are named, not numbered: look them up by their
// "BMP_ZO_..." names.
#ifndef ZOCTRL_RESOURCE_H
#define ZOCTRL_RESOURCE_H

// Message-box icon bitmaps (32 x 32).
#define IDB_ZO_MSGBOX_INFORMATION       800
#define IDB_ZO_MSGBOX_QUESTION          801
#define IDB_ZO_MSGBOX_ERROR             802
#define IDB_ZO_MSGBOX_WARNING           803

// Check-box and radio strip with alpha, resource type "PNG": 4 state columns x 5 rows.
#define IDR_ZO_PNG_CHECKRADIO           808

// Message-box dialog template and its controls.
#define IDD_ZO_MESSAGEBOX               817
#define IDC_ZO_MSGBOX_TEXT              800
#define IDC_ZO_MSGBOX_ICON              801
#define IDC_ZO_MSGBOX_BUTTON_RIGHT      802
#define IDC_ZO_MSGBOX_BUTTON_MIDDLE     803
#define IDC_ZO_MSGBOX_BUTTON_LEFT       804
#define IDC_ZO_MSGBOX_DONTSHOW          805

// Strings: message-box captions and titles, the range slider's menu item.
#define IDS_ZO_ABORT                    800
#define IDS_ZO_CANCEL                   801
#define IDS_ZO_ERROR                    802
#define IDS_ZO_IGNORE                   803
#define IDS_ZO_INFO                     804
#define IDS_ZO_NO                       805
#define IDS_ZO_OK                       806
#define IDS_ZO_QUESTION                 807
#define IDS_ZO_RETRY                    808
#define IDS_ZO_WARNING                  809
#define IDS_ZO_YES                      810
#define IDS_ZO_RESET_RANGE              811

#endif // ZOCTRL_RESOURCE_H
