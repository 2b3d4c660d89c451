// CWnd: a window handle with the members a dialog needs, and the window procedure that routes a
// subclassed window's messages through its message map; CClientDC and CPaintDC.
#pragma once
#include "afxdc.h"
#include "afxmsg_.h"
#include <commctrl.h>

// winuser.h's two-argument macro would swallow CWnd::GetNextWindow.
#undef GetNextWindow

class CWnd;
class CMenu;
class CScrollBar;
class CListBox;
class CDataExchange;
class CRgn;
class CPalette;
class CFile;
class CFrameWnd;
class CCreateContext;
class COleControlSite;
inline CHandleMap<CWnd, HWND>* afxMapHWND();
inline LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
inline LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

namespace afx_compat_detail {
// The message the window procedure is handling on this thread, for CWnd::Default.
inline MSG& LastSentMessage()
{
    thread_local MSG message = {};
    return message;
}
}  // namespace afx_compat_detail

class CWnd : public CCmdTarget {
public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    ~CWnd() override { if (m_hWnd != nullptr) DestroyWindow(); }

    operator HWND() const { return m_hWnd; }
    // Safe through a null pointer, as in MFC.
    HWND GetSafeHwnd() const { return this == nullptr ? nullptr : m_hWnd; }
    // Attaching to a window object that already holds a handle, or a handle that another
    // object owns, is a programming error.
    BOOL Attach(HWND hWndNew)
    {
        if (m_hWnd != nullptr || FromHandlePermanent(hWndNew) != nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
        if (hWndNew == nullptr) return FALSE;
        m_hWnd = hWndNew;
        afxMapHWND()->SetPermanent(hWndNew, this);
        return TRUE;
    }
    HWND Detach()
    {
        HWND h = m_hWnd;
        if (h != nullptr) afxMapHWND()->RemoveHandle(h);
        m_hWnd = nullptr;
        return h;
    }
    static CWnd* FromHandle(HWND hWnd) { return afxMapHWND()->FromHandle(hWnd); }
    static CWnd* FromHandlePermanent(HWND hWnd) { return hWnd ? afxMapHWND()->LookupPermanent(hWnd) : nullptr; }
    // A subclassed window detaches itself on WM_NCDESTROY; one that was only attached is
    // detached here.
    virtual BOOL DestroyWindow()
    {
        if (m_hWnd == nullptr) return FALSE;
        BOOL destroyed = ::DestroyWindow(m_hWnd);
        if (m_hWnd != nullptr) Detach();
        return destroyed;
    }

    // Attaches the object and routes the window's messages through its message map; the
    // window's own procedure handles what the map does not.
    BOOL SubclassWindow(HWND hWnd)
    {
        if (!Attach(hWnd)) return FALSE;
        m_pfnSuper = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
        return TRUE;
    }
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent)
    {
        HWND control = ::GetDlgItem(pParent->GetSafeHwnd(), nID);
        return control != nullptr && SubclassWindow(control);
    }
    HWND UnsubclassWindow()
    {
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
        m_pfnSuper = nullptr;
        return Detach();
    }

    void SetWindowText(LPCSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    void GetWindowText(CString& rString) const
    {
        int n = GetWindowTextLength();
        ::GetWindowTextA(m_hWnd, rString.GetBufferSetLength(n), n + 1);
        rString.ReleaseBuffer();
    }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const { ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const { ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
    {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    // The message being handled on this thread, with the time and cursor position of the
    // last message retrieved.
    static const MSG* PASCAL GetCurrentMessage()
    {
        MSG& message = afx_compat_detail::LastSentMessage();
        message.time = ::GetMessageTime();
        DWORD pos = ::GetMessagePos();
        message.pt = {static_cast<short>(LOWORD(pos)), static_cast<short>(HIWORD(pos))};
        return &message;
    }

    // Overridables. The layer creates no windows and has no help, tool tips, accessibility,
    // touch or ActiveX support of its own: these answer failure or nothing, as noted in the
    // README, so that derived classes override them as under MFC.
    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL)
    {
        (void)pContext;
        return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID);
    }
    virtual BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x,
                          int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = NULL)
    {
        CREATESTRUCT cs = {lpParam, nullptr, nIDorHMenu, hWndParent, nHeight, nWidth, y, x,
                            static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
        if (!PreCreateWindow(cs)) return FALSE;
        HWND hWnd = ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, cs.style, cs.x, cs.y, cs.cx,
                                      cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
        return hWnd != nullptr && SubclassWindow(hWnd);
    }
    virtual BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = NULL)
    {
        return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                        rect.right - rect.left, rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
    }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_hWnd, GWL_EXSTYLE)); }
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs) { (void)cs; return TRUE; }
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder)
    {
        DWORD exStyle = nAdjustType == adjustBorder ? GetExStyle() & ~WS_EX_CLIENTEDGE : GetExStyle();
        ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
    }
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const { (void)point; (void)pTI; return -1; }
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const { (void)nBar; return NULL; }
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT) { (void)dwData; (void)nCmd; }
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F) { (void)dwData; (void)nCmd; }
    virtual BOOL ContinueModal() { return FALSE; }
    virtual void EndModalLoop(int nResult) { (void)nResult; }
    virtual BOOL OnAmbientProperty(COleControlSite* pSite, DISPID dispid, VARIANT* pvar)
    {
        (void)pSite, (void)dispid, (void)pvar;
        return FALSE;
    }
    virtual void PreSubclassWindow() {}
    virtual BOOL PreTranslateMessage(MSG* pMsg) { (void)pMsg; return FALSE; }
    virtual HRESULT get_accParent(IDispatch** ppdispParent) { (void)ppdispParent; return E_NOTIMPL; }
    virtual HRESULT get_accChildCount(long* pcountChildren) { (void)pcountChildren; return E_NOTIMPL; }
    virtual HRESULT get_accChild(VARIANT varChild, IDispatch** ppdispChild) { (void)varChild, (void)ppdispChild; return E_NOTIMPL; }
    virtual HRESULT get_accName(VARIANT varChild, BSTR* pszName) { (void)varChild, (void)pszName; return E_NOTIMPL; }
    virtual HRESULT get_accValue(VARIANT varChild, BSTR* pszValue) { (void)varChild, (void)pszValue; return E_NOTIMPL; }
    virtual HRESULT get_accDescription(VARIANT varChild, BSTR* pszDescription) { (void)varChild, (void)pszDescription; return E_NOTIMPL; }
    virtual HRESULT get_accRole(VARIANT varChild, VARIANT* pvarRole) { (void)varChild, (void)pvarRole; return E_NOTIMPL; }
    virtual HRESULT get_accState(VARIANT varChild, VARIANT* pvarState) { (void)varChild, (void)pvarState; return E_NOTIMPL; }
    virtual HRESULT get_accHelp(VARIANT varChild, BSTR* pszHelp) { (void)varChild, (void)pszHelp; return E_NOTIMPL; }
    virtual HRESULT get_accHelpTopic(BSTR* pszHelpFile, VARIANT varChild, long* pidTopic)
    {
        (void)pszHelpFile, (void)varChild, (void)pidTopic;
        return E_NOTIMPL;
    }
    virtual HRESULT get_accKeyboardShortcut(VARIANT varChild, BSTR* pszKeyboardShortcut)
    {
        (void)varChild, (void)pszKeyboardShortcut;
        return E_NOTIMPL;
    }
    virtual HRESULT get_accFocus(VARIANT* pvarChild) { (void)pvarChild; return E_NOTIMPL; }
    virtual HRESULT get_accSelection(VARIANT* pvarChildren) { (void)pvarChildren; return E_NOTIMPL; }
    virtual HRESULT get_accDefaultAction(VARIANT varChild, BSTR* pszDefaultAction) { (void)varChild, (void)pszDefaultAction; return E_NOTIMPL; }
    virtual HRESULT accSelect(long flagsSelect, VARIANT varChild) { (void)flagsSelect, (void)varChild; return E_NOTIMPL; }
    virtual HRESULT accLocation(long* pxLeft, long* pyTop, long* pcxWidth, long* pcyHeight, VARIANT varChild)
    {
        (void)pxLeft, (void)pyTop, (void)pcxWidth, (void)pcyHeight, (void)varChild;
        return E_NOTIMPL;
    }
    virtual HRESULT accNavigate(long navDir, VARIANT varStart, VARIANT* pvarEndUpAt)
    {
        (void)navDir, (void)varStart, (void)pvarEndUpAt;
        return E_NOTIMPL;
    }
    virtual HRESULT accHitTest(long xLeft, long yTop, VARIANT* pvarChild) { (void)xLeft, (void)yTop, (void)pvarChild; return E_NOTIMPL; }
    virtual HRESULT accDoDefaultAction(VARIANT varChild) { (void)varChild; return E_NOTIMPL; }
    virtual BOOL OnGestureZoom(CPoint ptCenter, long lDelta) { (void)ptCenter, (void)lDelta; return FALSE; }
    virtual BOOL OnGesturePan(CPoint ptFrom, CPoint ptTo) { (void)ptFrom, (void)ptTo; return FALSE; }
    virtual BOOL OnGestureRotate(CPoint ptCenter, double dblAngle) { (void)ptCenter, (void)dblAngle; return FALSE; }
    virtual BOOL OnGestureTwoFingerTap(CPoint ptCenter) { (void)ptCenter; return FALSE; }
    virtual BOOL OnGesturePressAndTap(CPoint ptPress, long lDelta) { (void)ptPress, (void)lDelta; return FALSE; }
    virtual BOOL OnTouchInput(CPoint pt, int nInputNumber, int nInputsCount, PTOUCHINPUT pInput)
    {
        (void)pt, (void)nInputNumber, (void)nInputsCount, (void)pInput;
        return FALSE;
    }
    virtual BOOL OnTouchInputs(UINT nInputsCount, PTOUCHINPUT pInputs) { (void)nInputsCount, (void)pInputs; return FALSE; }
    virtual ULONG GetGestureStatus(CPoint ptTouch) { (void)ptTouch; return 0; }

#include "afxwnd_members_.h"

protected:
    virtual void DoDataExchange(CDataExchange* pDX) { (void)pDX; }
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
    {
        (void)wParam, (void)lParam, (void)pResult;
        return FALSE;
    }
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
    {
        (void)message, (void)wParam, (void)lParam, (void)pLResult;
        return FALSE;
    }
    // Called after the window is gone (WM_NCDESTROY): a class that allocates its objects with
    // new deletes itself here.
    virtual void PostNcDestroy() {}
    virtual BOOL CheckAutoCenter() { return TRUE; }
    virtual BOOL IsFrameWnd() const { return FALSE; }

protected:
    WNDPROC m_pfnSuper = nullptr;

    static const AFX_MSGMAP* PASCAL GetThisMessageMap()
    {
        typedef CWnd ThisClass;
        static const AFX_MSGMAP_ENTRY entries[] = {ON_WM_NCDESTROY(){0, 0, 0, 0, AfxSig_end, nullptr}};
        static const AFX_MSGMAP map = {&CCmdTarget::GetThisMessageMap, entries};
        return &map;
    }
    const AFX_MSGMAP* GetMessageMap() const override { return GetThisMessageMap(); }

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
    {
        LRESULT result = 0;
        if (!OnWndMsg(message, wParam, lParam, &result)) result = DefWindowProc(message, wParam, lParam);
        return result;
    }
    // Calls the map's handler of the message, if any: commands through OnCommand, window
    // messages with the parameters their handler's signature takes.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
    {
        if (message == WM_COMMAND) {
            if (!OnCommand(wParam, lParam)) return FALSE;
            *pResult = 1;
            return TRUE;
        }
        const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(message, 0, 0);
        if (entry == nullptr) return FALSE;
        using afx_compat_detail::HandlerOf;
        switch (entry->nSig) {
        case AfxSig_vv: (this->*HandlerOf<void (CWnd::*)()>(entry->pfn))(); break;
        case AfxSig_v_up_v: (this->*HandlerOf<void (CWnd::*)(UINT_PTR)>(entry->pfn))(wParam); break;
        case AfxSig_v_u_p:
            (this->*HandlerOf<void (CWnd::*)(UINT, CPoint)>(entry->pfn))(
                static_cast<UINT>(wParam), CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))));
            break;
        default: return FALSE;
        }
        *pResult = 0;
        return TRUE;
    }
    // A control's notification carries its code; a menu's or accelerator's command is CN_COMMAND.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam)
    {
        int code = lParam != 0 ? HIWORD(wParam) : CN_COMMAND;
        return OnCmdMsg(LOWORD(wParam), code, nullptr, nullptr);
    }
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (m_pfnSuper != nullptr) return ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam);
        return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
    }
    // The window's own handling of the current message.
    LRESULT Default()
    {
        const MSG& message = afx_compat_detail::LastSentMessage();
        return DefWindowProc(message.message, message.wParam, message.lParam);
    }

    afx_msg void OnPaint() { Default(); }
    afx_msg void OnTimer(UINT_PTR /*nIDEvent*/) { Default(); }
    afx_msg void OnLButtonDown(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnDestroy() { Default(); }
    // The last message: the window gets its own procedure back and the object lets go of it.
    afx_msg void OnNcDestroy()
    {
        Default();
        UnsubclassWindow();
        PostNcDestroy();
    }

    friend LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
};

// Runs the message through the window object, remembering it for Default meanwhile.
inline LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    MSG& current = afx_compat_detail::LastSentMessage();
    MSG outer = current;
    current.hwnd = hWnd;
    current.message = nMsg;
    current.wParam = wParam;
    current.lParam = lParam;
    LRESULT result = pWnd->WindowProc(nMsg, wParam, lParam);
    current = outer;
    return result;
}

// The window procedure of subclassed windows.
inline LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == nullptr || pWnd->m_hWnd != hWnd) return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(pWnd, hWnd, nMsg, wParam, lParam);
}

class CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->GetSafeHwnd() : nullptr)
    {
        if (!Attach(::GetDC(m_hWnd))) AfxThrowResourceException();
    }
    ~CClientDC() override { ::ReleaseDC(m_hWnd, Detach()); }

protected:
    HWND m_hWnd;
};

// The context of a window's WM_PAINT: BeginPaint on construction, EndPaint on destruction.
class CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd)
    {
        if (!Attach(::BeginPaint(m_hWnd, &m_ps))) AfxThrowResourceException();
    }
    ~CPaintDC() override
    {
        ::EndPaint(m_hWnd, &m_ps);
        Detach();
    }

    PAINTSTRUCT m_ps = {};

protected:
    HWND m_hWnd;
};

inline CHandleMap<CWnd, HWND>* afxMapHWND()
{
    static auto* map = new CHandleMap<CWnd, HWND>(
        [](CWnd& wrapper, HWND h) { wrapper.m_hWnd = h; },
        [](HWND h) { return ::IsWindow(h) != FALSE; });
    return map;
}
