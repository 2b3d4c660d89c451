// MFC's CDialog: a modal dialog box from a dialog template resource, its window subclassed when
// it initialises so that its messages reach the message map; and AfxMessageBox.
#pragma once
#include "afxmodule.h"
#include "afxwnd.h"
#include <cstring>

inline INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

class CDialog : public CWnd {
public:
    CDialog();
    explicit CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd = NULL)
        : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL)
        : m_lpszTemplateName(MAKEINTRESOURCEA(nIDTemplate)), m_pParentWnd(pParentWnd) {}

    // A modeless dialog from the template in the module that holds it.
    virtual BOOL Create(LPCSTR lpszTemplateName, CWnd* pParentWnd = NULL)
    {
        HINSTANCE module = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
        HRSRC found = ::FindResourceA(module, lpszTemplateName, RT_DIALOG);
        HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
        return loaded != nullptr && CreateIndirect(loaded, pParentWnd);
    }
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL)
    {
        return Create(MAKEINTRESOURCEA(nIDTemplate), pParentWnd);
    }
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL, void* lpDialogInit = NULL)
    {
        (void)lpDialogInit;
        m_pParentWnd = pParentWnd;
        HINSTANCE module = AfxGetResourceHandle();
        return ::CreateDialogIndirectParamA(module, lpDialogTemplate, pParentWnd->GetSafeHwnd(), &AfxDlgProc,
                                            reinterpret_cast<LPARAM>(this)) != nullptr;
    }
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL)
    {
        return CreateIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(hDialogTemplate)), pParentWnd);
    }
    // No font of its own: the dialog keeps the template's.
    virtual void OnSetFont(CFont* pFont) { (void)pFont; }

    // Declared only (see the README).
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL, void* lpDialogInit = NULL);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);
    DWORD GetDefID() const;
    void SetDefID(UINT nID);
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void MapDialogRect(LPRECT lpRect) const;
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void SetHelpID(UINT nIDR);

    // Runs the dialog from the template in the module that holds it (AfxFindResourceHandle),
    // owned by the parent or else by the active window. Answers EndDialog's result, or -1 when
    // the template is missing or the dialog cannot be created.
    virtual INT_PTR DoModal()
    {
        HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
        HRSRC found = ::FindResourceA(module, m_lpszTemplateName, RT_DIALOG);
        HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
        if (loaded == nullptr) return -1;
        HWND owner = m_pParentWnd != nullptr ? m_pParentWnd->GetSafeHwnd() : ::GetActiveWindow();
        auto dialogTemplate = static_cast<LPCDLGTEMPLATEA>(::LockResource(loaded));
        return ::DialogBoxIndirectParamA(module, dialogTemplate, owner, &AfxDlgProc, reinterpret_cast<LPARAM>(this));
    }
    virtual BOOL OnInitDialog() { return TRUE; }
    void EndDialog(int nResult) { ::EndDialog(m_hWnd, nResult); }

protected:
    LPCSTR m_lpszTemplateName;
    CWnd* m_pParentWnd;

    virtual void OnOK() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }

    static const AFX_MSGMAP* PASCAL GetThisMessageMap()
    {
        static const AFX_MSGMAP_ENTRY entries[] = {ON_COMMAND(IDOK, &CDialog::OnOK) ON_COMMAND(IDCANCEL, &CDialog::OnCancel){
            0, 0, 0, 0, AfxSig_end, nullptr}};
        static const AFX_MSGMAP map = {&CWnd::GetThisMessageMap, entries};
        return &map;
    }
    const AFX_MSGMAP* GetMessageMap() const override { return GetThisMessageMap(); }
};

// The dialog procedure of DoModal: on WM_INITDIALOG it subclasses the new window for the
// CDialog that lParam names and answers its OnInitDialog; it leaves every other message to the
// dialog's default handling.
inline INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM /*wParam*/, LPARAM lParam)
{
    if (message != WM_INITDIALOG) return FALSE;
    CDialog* dialog = reinterpret_cast<CDialog*>(lParam);
    dialog->SubclassWindow(hWnd);
    return dialog->OnInitDialog();
}

namespace afx_compat_detail {
// The application's name, as MFC's message boxes show it: the program's string resource
// AFX_IDS_APP_TITLE (0xE000), or else its file name without the extension.
inline LPCSTR AppName()
{
    static char name[MAX_PATH] = "";
    if (name[0] != '\0') return name;
    HINSTANCE program = ::GetModuleHandleA(nullptr);
    if (::LoadStringA(program, 0xE000, name, MAX_PATH) > 0) return name;
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(program, path, MAX_PATH);
    const char* file = path;
    for (const char* c = path; *c != '\0'; ++c)
        if (*c == '\\' || *c == '/') file = c + 1;
    ::lstrcpynA(name, file, MAX_PATH);
    char* dot = std::strrchr(name, '.');
    if (dot != nullptr) *dot = '\0';
    return name;
}
}  // namespace afx_compat_detail

// A message box with the application's name as its caption, owned by the active window.
inline int AfxMessageBox(LPCSTR lpszText, UINT nType = MB_OK, UINT /*nIDHelp*/ = 0)
{
    return ::MessageBoxA(::GetActiveWindow(), lpszText, afx_compat_detail::AppName(), nType);
}
