// MFC-compatible <afxcontrolbars.h>: the feature-pack header through which MFC programs
// commonly reach CPngImage.
#pragma once
#include <afxwin.h>
#include <afxtoolbarimages.h>
