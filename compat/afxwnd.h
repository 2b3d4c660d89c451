// A minimal CWnd (a window handle with its text), CClientDC and CPaintDC.
#pragma once
#include "afxdc.h"

class CWnd;
inline CHandleMap<CWnd, HWND>* afxMapHWND();

class CWnd {
public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd() { if (m_hWnd != nullptr) DestroyWindow(); }

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
    virtual BOOL DestroyWindow() { return m_hWnd ? ::DestroyWindow(Detach()) : FALSE; }

    void SetWindowText(LPCSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    void GetWindowText(CString& rString) const
    {
        int n = GetWindowTextLength();
        ::GetWindowTextA(m_hWnd, rString.GetBufferSetLength(n), n + 1);
        rString.ReleaseBuffer();
    }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
};

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
