// MFC-compatible <afxdllx.h>: included once by an extension DLL's DllMain source, which
// registers the DLL with AfxInitExtensionModule and a CDynLinkLibrary.
#pragma once
#include <afxwin.h>
