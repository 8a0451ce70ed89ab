// MFC-compatible <afxcontrolbars.h>: the feature-pack header through which MFC programs
// commonly reach CPngImage.
#pragma once
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
#define ZOAFX_CONTROLBARS_H
#include <afxtoolbarimages.h>
