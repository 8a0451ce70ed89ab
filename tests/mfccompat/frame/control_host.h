// A visible top-level window to host the controls under test, and small window queries.
#pragma once
#include <afxwin.h>
#include <gtest/gtest.h>
#include <zotest/test_window.h>

class ControlHostTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        host.Reset(zotest::CreateSolidWindow(CRect(10, 10, 510, 410), RGB(255, 255, 255)));
        ASSERT_NE(nullptr, host.get());
        parent = CWnd::FromHandle(host);
    }

    zotest::ScopedWindow host;
    CWnd* parent = nullptr;
};

inline CString WindowClassOf(HWND hwnd)
{
    wchar_t name[64] = L"";
    ::GetClassNameW(hwnd, name, 64);
    return name;
}
