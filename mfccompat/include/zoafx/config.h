// Build configuration of the MFC-compatible layer: the macros MFC's headers define for
// calling conventions, DLL linkage and version checks. Included first by <afx.h>.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif

// The layer is always the shared-DLL flavour of MFC.
#ifndef _AFXDLL
#define _AFXDLL
#endif
#ifndef _AFX
#define _AFX
#endif
#ifndef _MFC_VER
#define _MFC_VER 0x0E00
#endif

#ifdef ZOAFX_BUILDING
#define ZOAFX_API __declspec(dllexport)
#else
#define ZOAFX_API __declspec(dllimport)
#endif

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_INLINE inline
#define AFX_STATIC static
#define AFX_STATIC_DATA static
#define AFX_COMDAT
#define AFX_NOVTABLE
#define AFX_DATA
#define AFX_DATADEF
#define AFX_CORE_DATA
#define AFX_API_EXPORT __declspec(dllexport)
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_DATA_EXPORT __declspec(dllexport)
#define AFX_API_IMPORT __declspec(dllimport)
#define AFX_CLASS_IMPORT __declspec(dllimport)
#define AFX_DATA_IMPORT __declspec(dllimport)

// Extension DLLs export with AFX_EXT_CLASS when built with _AFXEXT, import otherwise.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#define AFX_EXT_DATADEF
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#define AFX_EXT_DATADEF
#endif
