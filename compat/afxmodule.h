// The module state's resource handle, from MFC's <afxwin.h>: the module whose resources the
// framework loads first. It starts as the program's own module; AfxSetResourceHandle switches it.
#pragma once
#include <windows.h>

namespace afx_compat_detail {
// One per module, as each module that links MFC statically has its own module state.
inline HINSTANCE& ResourceHandle()
{
    static HINSTANCE handle = ::GetModuleHandleA(nullptr);
    return handle;
}
}  // namespace afx_compat_detail

inline HINSTANCE AfxGetResourceHandle() { return afx_compat_detail::ResourceHandle(); }
inline void AfxSetResourceHandle(HINSTANCE hInstResource) { afx_compat_detail::ResourceHandle() = hInstResource; }

// The module that holds the resource: the resource handle's module if it has it, else the
// program's own module, else the resource handle.
inline HINSTANCE AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType)
{
    HINSTANCE current = AfxGetResourceHandle();
    if (::FindResourceA(current, lpszName, lpszType) != nullptr) return current;
    HINSTANCE program = ::GetModuleHandleA(nullptr);
    if (::FindResourceA(program, lpszName, lpszType) != nullptr) return program;
    return current;
}
