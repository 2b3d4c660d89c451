// MFC's CComboBox and CListBox: a window object over a combo box or list box control, each
// member one message to the control. Like MFC's, they add no data to CWnd, so code may also cast
// the CWnd* of GetDlgItem to them.
#pragma once
#include "afxwnd.h"

class CComboBox : public CWnd {
public:
    int AddString(LPCSTR lpszString) { return Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)); }
    int GetCount() const { return Send(CB_GETCOUNT, 0, 0); }
    int GetCurSel() const { return Send(CB_GETCURSEL, 0, 0); }
    int SetCurSel(int nSelect) { return Send(CB_SETCURSEL, nSelect, 0); }
    int GetLBTextLen(int nIndex) const { return Send(CB_GETLBTEXTLEN, nIndex, 0); }
    int GetLBText(int nIndex, LPSTR lpszText) const { return Send(CB_GETLBTEXT, nIndex, reinterpret_cast<LPARAM>(lpszText)); }
    // An index without an item gives an empty string.
    void GetLBText(int nIndex, CString& rString) const
    {
        GetLBText(nIndex, rString.GetBufferSetLength(GetLBTextLen(nIndex)));
        rString.ReleaseBuffer();
    }
    void ResetContent() { Send(CB_RESETCONTENT, 0, 0); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return Send(CB_SETITEMDATA, nIndex, dwItemData); }
    DWORD_PTR GetItemData(int nIndex) const { return ::SendMessageA(m_hWnd, CB_GETITEMDATA, nIndex, 0); }

private:
    int Send(UINT message, WPARAM wParam, LPARAM lParam) const
    {
        return static_cast<int>(::SendMessageA(m_hWnd, message, wParam, lParam));
    }
};

class CListBox : public CWnd {
public:
    int AddString(LPCSTR lpszItem) { return Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)); }
    int GetCount() const { return Send(LB_GETCOUNT, 0, 0); }
    int GetCurSel() const { return Send(LB_GETCURSEL, 0, 0); }
    int SetCurSel(int nSelect) { return Send(LB_SETCURSEL, nSelect, 0); }
    int GetTextLen(int nIndex) const { return Send(LB_GETTEXTLEN, nIndex, 0); }
    int GetText(int nIndex, LPSTR lpszBuffer) const { return Send(LB_GETTEXT, nIndex, reinterpret_cast<LPARAM>(lpszBuffer)); }
    // An index without an item gives an empty string.
    void GetText(int nIndex, CString& rString) const
    {
        GetText(nIndex, rString.GetBufferSetLength(GetTextLen(nIndex)));
        rString.ReleaseBuffer();
    }
    void ResetContent() { Send(LB_RESETCONTENT, 0, 0); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) { return Send(LB_SETITEMDATA, nIndex, dwItemData); }
    DWORD_PTR GetItemData(int nIndex) const { return ::SendMessageA(m_hWnd, LB_GETITEMDATA, nIndex, 0); }

private:
    int Send(UINT message, WPARAM wParam, LPARAM lParam) const
    {
        return static_cast<int>(::SendMessageA(m_hWnd, message, wParam, lParam));
    }
};
