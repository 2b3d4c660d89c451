// AfxGetMainWnd: the window the application object holds as its main window, visible or not,
// on the application's thread; none on a thread without a thread object.
#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

HWND Popup(DWORD style, HWND owner = nullptr)
{
    return CreateWindowExA(0, "STATIC", "", WS_POPUP | style, 0, 0, 50, 50, owner, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

// A window attached to a window object that is the application's main window while it lives.
class MainWindow {
public:
    explicit MainWindow(DWORD style)
    {
        m_window.Attach(Popup(style));
        AfxGetApp()->m_pMainWnd = &m_window;
    }
    ~MainWindow()
    {
        AfxGetApp()->m_pMainWnd = nullptr;
        m_window.DestroyWindow();
    }
    CWnd* Window() { return &m_window; }

private:
    CWnd m_window;
};

DWORD WINAPI ReportMainWnd(void* out)
{
    *static_cast<CWnd**>(out) = AfxGetMainWnd();
    return 0;
}

CWnd* MainWindowOfAnotherThread()
{
    CWnd* seen = reinterpret_cast<CWnd*>(1);
    HANDLE thread = CreateThread(nullptr, 0, ReportMainWnd, &seen, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    return seen;
}

TEST(AfxGetMainWnd, NullWhileTheApplicationHasNoneWhateverWindowsAreShown)
{
    ASSERT_EQ(nullptr, AfxGetApp()->m_pMainWnd);
    HWND shown = Popup(WS_VISIBLE);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    DestroyWindow(shown);
}

TEST(AfxGetMainWnd, TheApplicationsMainWindowHiddenOrShown)
{
    MainWindow hidden(0);
    HWND shown = Popup(WS_VISIBLE);
    EXPECT_EQ(hidden.Window(), AfxGetMainWnd());
    hidden.Window()->ShowWindow(SW_SHOW);
    EXPECT_EQ(hidden.Window(), AfxGetMainWnd());
    DestroyWindow(shown);
}

TEST(AfxGetMainWnd, AnotherThreadHasNone)
{
    MainWindow main(WS_VISIBLE);
    EXPECT_EQ(nullptr, MainWindowOfAnotherThread());
    EXPECT_EQ(main.Window(), AfxGetMainWnd());
}

}  // namespace
