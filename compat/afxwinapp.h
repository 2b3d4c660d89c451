// MFC's application object: CWinThread and CWinApp with the members a console program with MFC
// support uses, AfxWinInit, which such a program calls itself, and the functions that find the
// application, its thread and its main window. The application lives in the module state the
// program shares with its extension DLLs (afxstate.h), so a DLL finds the program's.
#pragma once
#include "afxdialog.h"
#include "afxstate.h"
#include "afxwnd.h"

class CWinThread : public CCmdTarget {
public:
    CWnd* m_pMainWnd = nullptr;
    DWORD m_nThreadID = 0;

    virtual CWnd* GetMainWnd() { return m_pMainWnd; }
};

// There is one application object; it belongs to the thread that constructs it.
class CWinApp : public CWinThread {
public:
    explicit CWinApp(LPCTSTR lpszAppName = NULL) : m_pszAppName(lpszAppName)
    {
        CWinApp*& current = afx_compat_detail::ModuleState().pCurrentWinApp;
        if (current != nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
        current = this;
        m_nThreadID = ::GetCurrentThreadId();
    }
    ~CWinApp() override
    {
        CWinApp*& current = afx_compat_detail::ModuleState().pCurrentWinApp;
        if (current == this) current = nullptr;
    }

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName;
};

inline CWinApp* AfxGetApp() { return afx_compat_detail::ModuleState().pCurrentWinApp; }

// The calling thread's thread object: the application on its own thread, none elsewhere (the
// layer starts no threads of its own).
inline CWinThread* AfxGetThread()
{
    CWinApp* app = AfxGetApp();
    return app != nullptr && app->m_nThreadID == ::GetCurrentThreadId() ? app : nullptr;
}

// The calling thread's main window, visible or not; null on a thread without a thread object.
inline CWnd* AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

// Makes hInstance the resource handle and hands the program's start-up values to the
// application object, naming it as MFC does when its constructor was given no name.
inline BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE /*hPrevInstance*/, LPTSTR lpCmdLine, int nCmdShow)
{
    AfxSetResourceHandle(hInstance);
    if (CWinApp* app = AfxGetApp()) {
        app->m_hInstance = hInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
        if (app->m_pszAppName == nullptr) app->m_pszAppName = afx_compat_detail::AppName();
    }
    return TRUE;
}
