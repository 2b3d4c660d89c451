#include "demo/live_window.h"
#include "demo/console.h"
#include "demo/live_keys.h"
#include "demo/panel_data.h"
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include <cstdio>
#include <string>
#include <windowsx.h>

using kiv_skin::KivStyleMgr;

namespace {

const char kClassName[] = "KivDemoLiveWindow";
const UINT_PTR kCloseTimer = 1;

// The active scheme's name, and the next one of the catalogue after it.
CString NextSchemeName(const CString& current)
{
    const auto& entries = kiv_skin::StyleCatalogue::Instance()->m_entries;
    for (size_t i = 0; i < entries.size(); ++i)
        if (entries[i].name == current) return entries[(i + 1) % entries.size()].name;
    return entries.empty() ? current : entries.front().name;
}

}  // namespace

LiveWindow::LiveWindow(UINT closeAfter)
    : m_windowObject(kLiveWindowPath, RedrawOnRequest, &m_hwnd),
      m_panelObject(kLivePanelPath, CountChanges, &m_hwnd),
      m_panel(&m_panelObject)
{
    static const ATOM windowClass = [] {
        WNDCLASSA wc = {};
        wc.lpfnWndProc = &LiveWindow::WindowProc;
        wc.hInstance = ::GetModuleHandleA(nullptr);
        wc.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
        wc.lpszClassName = kClassName;
        return ::RegisterClassA(&wc);
    }();
    RECT frame = {0, 0, 560, 480};
    ::AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    m_hwnd = ::CreateWindowExA(0, MAKEINTATOM(windowClass), "kiv_skin live", WS_OVERLAPPEDWINDOW, 40, 40, frame.right - frame.left,
                               frame.bottom - frame.top, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr);
    ::SetWindowLongPtrA(m_hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // The application's main window first: the bars take it for their timers when they are made.
    m_mainWnd.Attach(m_hwnd);
    if (CWinApp* app = AfxGetApp()) app->m_pMainWnd = &m_mainWnd;
    ::ShowWindow(m_hwnd, SW_SHOW);
    m_panel.RenewBars();
    RECT client;
    ::GetClientRect(m_hwnd, &client);
    m_panel.Place(client);
    m_panel.Select(0);
    ShowTitle();
    if (closeAfter != 0) ::SetTimer(m_hwnd, kCloseTimer, closeAfter, nullptr);
    ::UpdateWindow(m_hwnd);
}

LiveWindow::~LiveWindow()
{
    if (m_hwnd != nullptr) ::DestroyWindow(m_hwnd);
}

int LiveWindow::Run()
{
    MSG msg;
    while (m_hwnd != nullptr && ::GetMessageA(&msg, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
    return 0;
}

void LiveWindow::Close()
{
    if (m_hwnd != nullptr) ::DestroyWindow(m_hwnd);
}

void LiveWindow::NextScheme()
{
    KivStyleMgr* styles = KivStyleMgr::GetInstance();
    if (styles->LoadStyle(NextSchemeName(styles->GetCurrentStyle()))) SchemeChanged();
}

void LiveWindow::SchemeChanged()
{
    m_panel.RenewBars();
    ShowTitle();
    ::InvalidateRect(m_hwnd, nullptr, FALSE);
}

// "自选股 · 沪深A股 · dark · S scheme · Esc close"
void LiveWindow::ShowTitle()
{
    std::string title = std::string(kPanelTitle) + " \xC2\xB7 " +
                        Gb2312ToUtf8(KivStyleMgr::GetInstance()->GetCurrentStyle());
    for (int i = 0; i < kLiveKeyCount; ++i) title += std::string(" \xC2\xB7 ") + kLiveKeys[i].help;
    m_panel.SetTitle(title);
}

LRESULT CALLBACK LiveWindow::WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* window = reinterpret_cast<LiveWindow*>(::GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (window == nullptr) return ::DefWindowProcA(hwnd, message, wParam, lParam);
    return window->OnMessage(message, wParam, lParam);
}

LRESULT LiveWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    CPoint pt(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    switch (message) {
    case WM_PAINT: {
        PAINTSTRUCT ps;
        HDC dc = ::BeginPaint(m_hwnd, &ps);
        Paint(dc);
        ::EndPaint(m_hwnd, &ps);
        return 0;
    }
    case WM_PRINTCLIENT: Paint(reinterpret_cast<HDC>(wParam)); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SIZE: {
        RECT client;
        ::GetClientRect(m_hwnd, &client);
        m_panel.Place(client);
        ::InvalidateRect(m_hwnd, nullptr, FALSE);
        return 0;
    }
    case WM_LBUTTONDOWN: ::SetCapture(m_hwnd); Mouse(DMOUSE_LBUTTONDOWN, pt, 0); return 0;
    case WM_LBUTTONUP: ::ReleaseCapture(); Mouse(DMOUSE_LBUTTONUP, pt, 0); return 0;
    case WM_MOUSEMOVE: Mouse(DMOUSE_MOVE, pt, 0); return 0;
    case WM_MOUSEWHEEL:
        ::ScreenToClient(m_hwnd, &pt);
        Mouse(DMOUSE_WHEEL, pt, GET_WHEEL_DELTA_WPARAM(wParam));
        return 0;
    case WM_KEYDOWN:
        for (int i = 0; i < kLiveKeyCount; ++i)
            if (kLiveKeys[i].key == wParam) kLiveKeys[i].run(*this);
        return 0;
    case WM_TIMER:
        if (wParam == kCloseTimer) Close();
        return 0;
    case WM_DESTROY:
        LeaveMainWindow();
        m_hwnd = nullptr;
        return 0;
    }
    return ::DefWindowProcA(m_hwnd, message, wParam, lParam);
}

void LiveWindow::LeaveMainWindow()
{
    CWinApp* app = AfxGetApp();
    if (app != nullptr && app->m_pMainWnd == &m_mainWnd) app->m_pMainWnd = nullptr;
    m_mainWnd.Detach();
}

// Through one off-screen copy, so that a repeat or a drag never flickers.
void LiveWindow::Paint(HDC target)
{
    RECT client;
    ::GetClientRect(m_hwnd, &client);
    CDC* screen = CDC::FromHandle(target);
    kiv_skin::CMemoDC buffer(screen, client.right, client.bottom, KivStyleMgr::GetInstance()->GetColor("BACKGROUND"));
    m_panel.Paint(&buffer);
    screen->BitBlt(0, 0, client.right, client.bottom, &buffer, 0, 0, SRCCOPY);
}

void LiveWindow::Mouse(uint16_t message, CPoint pt, short wheelDelta)
{
    _DMouseEvent event = {pt.x, pt.y, message, wheelDelta};
    if (m_panel.OnMouse(event)) ::InvalidateRect(m_hwnd, nullptr, FALSE);
}

int RunLiveWindow(UINT closeAfter)
{
    if (!KivStyleMgr::GetInstance()->InitStyleMgr()) {
        std::printf("the schemes did not load\n");
        return 1;
    }
    LiveWindow window(closeAfter);
    return window.Run();
}
