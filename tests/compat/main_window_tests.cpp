// AfxGetMainWnd: the calling thread's first visible top-level window without owner.
#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

HWND Popup(DWORD style, HWND owner = nullptr)
{
    return CreateWindowExA(0, "STATIC", "", WS_POPUP | style, 0, 0, 50, 50, owner, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

TEST(AfxGetMainWnd, NullWhileTheThreadHasNoVisibleWindow)
{
    HWND hidden = Popup(0);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    DestroyWindow(hidden);
}

TEST(AfxGetMainWnd, TheVisibleUnownedWindowNotItsOwnedOnes)
{
    HWND main = Popup(WS_VISIBLE);
    HWND owned = Popup(WS_VISIBLE, main);
    SetWindowPos(owned, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    CWnd* found = AfxGetMainWnd();
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(main, found->GetSafeHwnd());
    DestroyWindow(owned);
    DestroyWindow(main);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
}

DWORD WINAPI ReportMainWnd(void* out)
{
    *static_cast<CWnd**>(out) = AfxGetMainWnd();
    return 0;
}

TEST(AfxGetMainWnd, AnotherThreadsWindowIsNotThisThreadsMain)
{
    HWND main = Popup(WS_VISIBLE);
    CWnd* seen = reinterpret_cast<CWnd*>(1);
    HANDLE thread = CreateThread(nullptr, 0, ReportMainWnd, &seen, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    EXPECT_EQ(nullptr, seen);
    DestroyWindow(main);
}

}  // namespace
