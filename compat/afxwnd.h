// A minimal CWnd (a window handle with its text) and CClientDC.
#pragma once
#include "afxdc.h"

class CWnd {
public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd() { if (m_hWnd != nullptr) DestroyWindow(); }

    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }
    BOOL Attach(HWND hWndNew)
    {
        if (hWndNew == nullptr) return FALSE;
        m_hWnd = hWndNew;
        return TRUE;
    }
    HWND Detach()
    {
        HWND h = m_hWnd;
        m_hWnd = nullptr;
        return h;
    }
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
