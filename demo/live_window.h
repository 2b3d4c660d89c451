// The demo's live window: the scrolled quote panel in a real window, driven by the mouse and the
// wheel, its scroll bars reporting through the host's command system, and keys that act on it
// (live_keys.cpp lists them). kiv_demo --window runs it.
#pragma once
#include "demo/live_host.h"
#include "demo/scroll_panel.h"
#include <afxwin.h>

class LiveWindow {
public:
    // Creates and shows the window on the active scheme. closeAfter: milliseconds after which
    // the window closes itself (0: only when the user closes it).
    explicit LiveWindow(UINT closeAfter = 0);
    ~LiveWindow();
    LiveWindow(const LiveWindow&) = delete;
    LiveWindow& operator=(const LiveWindow&) = delete;

    // Runs the thread's message loop until the window is closed; the loop's exit code.
    int Run();
    void Close();
    // Loads the catalogue's next scheme and repaints.
    void NextScheme();
    // To be called after anything else made another scheme (or the same one, reloaded) active:
    // the bars take the new button strip (the old one is gone), the title and the window follow.
    void SchemeChanged();

    HWND Handle() const { return m_hwnd; }
    ScrollPanel& Panel() { return m_panel; }
    const LiveObject& WindowObject() const { return m_windowObject; }
    const LiveObject& PanelObject() const { return m_panelObject; }

private:
    static LRESULT CALLBACK WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint(HDC target);
    void Mouse(uint16_t message, CPoint pt, short wheelDelta);
    void ShowTitle();
    void LeaveMainWindow();

    HWND m_hwnd = nullptr;
    CWnd m_mainWnd;  // the window as the application's main window while it is open
    LiveObject m_windowObject;
    LiveObject m_panelObject;
    ScrollPanel m_panel;
};

// kiv_demo --window [--close-after MS]: the style manager initialised, the live window until
// it closes; the process's exit code.
int RunLiveWindow(UINT closeAfter);
