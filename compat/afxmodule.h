// The module state's resource handle, from MFC's <afxwin.h>: the module whose resources the
// framework loads first. It belongs to the state the program shares with its extension DLLs
// (afxstate.h); AfxWinInit sets it to the program, AfxSetResourceHandle switches it.
#pragma once
#include "afxdll_.h"

// Asking before AfxWinInit has set a handle is a programming error, as MFC asserts it.
inline HINSTANCE AfxGetResourceHandle()
{
    HINSTANCE handle = afx_compat_detail::ModuleState().hCurrentResourceHandle;
    if (handle == nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
    return handle;
}

inline void AfxSetResourceHandle(HINSTANCE hInstResource)
{
    if (hInstResource == nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
    afx_compat_detail::ModuleState().hCurrentResourceHandle = hInstResource;
}

// The module that holds the resource: the resource handle's module if it has it, else the first
// extension DLL of the chain that has it (the DLLs MFC calls non-system ones first, then the
// system ones), else the resource handle.
inline HINSTANCE AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType)
{
    HINSTANCE current = AfxGetResourceHandle();
    if (::FindResourceA(current, lpszName, lpszType) != nullptr) return current;
    afx_compat_detail::LibraryListLock hold;
    for (int system = 0; system < 2; ++system)
        for (CDynLinkLibrary* dll = afx_compat_detail::ModuleState().pLibraryList; dll != nullptr; dll = dll->m_pNextDLL)
            if ((dll->m_bSystem != FALSE) == (system != 0) && dll->m_hResource != nullptr &&
                ::FindResourceA(dll->m_hResource, lpszName, lpszType) != nullptr)
                return dll->m_hResource;
    return current;
}
