#include "kiv_skin/module.h"
#include <afxdllx.h>

namespace kiv_skin {
namespace {

const DWORD kSpinCount = 4000;
HMODULE g_module = nullptr;
CRITICAL_SECTION g_catalogueLock;
CRITICAL_SECTION g_managerLock;
CRITICAL_SECTION g_tagLock;
// The library is an MFC extension DLL: its module joins the program's resource chain, so that
// the framework finds the style dialog's template here whatever the resource handle is.
AFX_EXTENSION_MODULE g_extension = {};

}  // namespace

HMODULE ModuleHandle() { return g_module; }
CRITICAL_SECTION& StyleCatalogueLock() { return g_catalogueLock; }
CRITICAL_SECTION& StyleManagerLock() { return g_managerLock; }
CRITICAL_SECTION& RichTextTagLock() { return g_tagLock; }

}  // namespace kiv_skin

// Records the module, prepares the three locks and links the library into the resource chain:
// nothing else runs at load.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    using namespace kiv_skin;
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(g_extension, instance)) return FALSE;
        new CDynLinkLibrary(g_extension);
        g_module = instance;
        InitializeCriticalSectionAndSpinCount(&g_catalogueLock, kSpinCount);
        InitializeCriticalSectionAndSpinCount(&g_managerLock, kSpinCount);
        InitializeCriticalSectionAndSpinCount(&g_tagLock, kSpinCount);
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_extension);
        DeleteCriticalSection(&g_catalogueLock);
        DeleteCriticalSection(&g_managerLock);
        DeleteCriticalSection(&g_tagLock);
    }
    return TRUE;
}
