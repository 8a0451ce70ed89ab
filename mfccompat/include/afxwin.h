// MFC-compatible <afxwin.h>: windows, device contexts, GDI objects, applications.
#pragma once
#include <afx.h>
#include <afxcoll.h>     // MFC's afxwin.h brings the collection classes along
#include <zoafx/gdi.h>    // CDC and its derivatives, CGdiObject and its derivatives
#include <zoafx/wnd.h>    // CCmdTarget, CWnd, message maps, CWinThread, CWinApp, CDialog, DDX
#include <zoafx/menu.h>   // CMenu
#include <zoafx/ctrls.h>  // CButton, CStatic, CEdit, CComboBox, CListBox, CScrollBar
#include <zoafx/frame.h>  // CFrameWnd, CMDIFrameWnd, CMDIChildWnd, CControlBar
