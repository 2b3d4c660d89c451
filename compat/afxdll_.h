// MFC extension DLLs, from MFC's <afxdll_.h> and <afxv_dll.h>: the export macros, the state an
// extension DLL's DllMain initialises, and CDynLinkLibrary, the link of one DLL in the resource
// chain of the program's module state (afxstate.h).
#pragma once
#include "afxmsg_.h"
#include "afxstate.h"

// An extension DLL is built with _AFXEXT, which implies the shared MFC (_AFXDLL).
#if defined(_AFXEXT) && !defined(_AFXDLL)
#define _AFXDLL
#endif

#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif
#define AFX_EXT_DATADEF

class COleObjectFactory;

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    COleObjectFactory* pFirstSharedFactory;
};

// One extension DLL in the chain: created with new in its DllMain, it joins the chain at its
// head; deleting it (AfxTermExtensionModule does) takes it out.
class CDynLinkLibrary : public CCmdTarget {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE)
        : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem)
    {
        afx_compat_detail::LibraryListLock hold;
        CDynLinkLibrary*& head = afx_compat_detail::ModuleState().pLibraryList;
        m_pNextDLL = head;
        head = this;
    }
    ~CDynLinkLibrary() override
    {
        afx_compat_detail::LibraryListLock hold;
        for (CDynLinkLibrary** link = &afx_compat_detail::ModuleState().pLibraryList; *link != nullptr;
             link = &(*link)->m_pNextDLL) {
            if (*link != this) continue;
            *link = m_pNextDLL;
            break;
        }
    }

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

// Records the DLL's module, which also holds its resources, once. The layer keeps no list of
// run-time classes or object factories, so those members stay null.
inline BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (state.bInitialized) return TRUE;
    state = {TRUE, hModule, hModule, nullptr, nullptr};
    return TRUE;
}

// Deletes the chain's links of the module (of every module with bAll), one at a time and outside
// the lock, since each takes itself out of the chain.
inline void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE)
{
    for (;;) {
        CDynLinkLibrary* found = nullptr;
        {
            afx_compat_detail::LibraryListLock hold;
            for (CDynLinkLibrary* dll = afx_compat_detail::ModuleState().pLibraryList; dll != nullptr && found == nullptr;
                 dll = dll->m_pNextDLL)
                if (bAll || dll->m_hModule == state.hModule) found = dll;
        }
        if (found == nullptr) return;
        delete found;
    }
}
