// Shared helpers of the window-layer tests.
#pragma once
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>

namespace wndtest {

// A window of a system class, not owned by any CWnd.
HWND CreatePlainWindow(LPCWSTR className, DWORD style, HWND parent = NULL, int id = 0);

// ASCII text of a wide string (tests use ASCII names only).
std::string Narrow(LPCWSTR text);

// Gives the thread its idle time until it needs no more (frees temporary objects).
void RunIdle();

} // namespace wndtest
