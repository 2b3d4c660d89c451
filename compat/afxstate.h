// The module state that a program shares with its extension DLLs. In a shared-MFC build
// (_AFXDLL) it lives in MFC's DLL, the one module that every other module of the process calls;
// this layer is header-only and has no such module, so the first module that asks creates a
// small block of memory named after the process and every later one opens the same block.
#pragma once
#include <windows.h>
#include "afxexcept.h"

class CWinApp;
class CDynLinkLibrary;

namespace afx_compat_detail {

// The block starts zeroed, which is an unlocked SRWLOCK and no handle, application or library.
struct SharedModuleState {
    SRWLOCK libraryListLock;              // guards pLibraryList
    HINSTANCE hCurrentResourceHandle;     // set by AfxWinInit and AfxSetResourceHandle
    CWinApp* pCurrentWinApp;              // the application object, while it exists
    CDynLinkLibrary* pLibraryList;        // the extension DLLs' resource chain
};

inline SharedModuleState* OpenSharedModuleState()
{
    char name[64];
    ::wsprintfA(name, "afx_compat_module_state_1_%lu", ::GetCurrentProcessId());
    // Kept open for the life of the process; a second CreateFileMapping of the name opens it.
    HANDLE mapping = ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                          sizeof(SharedModuleState), name);
    void* view = mapping != nullptr ? ::MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, 0) : nullptr;
    if (view == nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
    return static_cast<SharedModuleState*>(view);
}

inline SharedModuleState& ModuleState()
{
    static SharedModuleState* state = OpenSharedModuleState();
    return *state;
}

// Holds the lock of the extension DLLs' chain for a scope.
class LibraryListLock {
public:
    LibraryListLock() { ::AcquireSRWLockExclusive(&ModuleState().libraryListLock); }
    ~LibraryListLock() { ::ReleaseSRWLockExclusive(&ModuleState().libraryListLock); }
    LibraryListLock(const LibraryListLock&) = delete;
    LibraryListLock& operator=(const LibraryListLock&) = delete;
};

}  // namespace afx_compat_detail
