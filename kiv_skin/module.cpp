#include "kiv_skin/module.h"

namespace kiv_skin {
namespace {

const DWORD kSpinCount = 4000;
HMODULE g_module = nullptr;
CRITICAL_SECTION g_catalogueLock;
CRITICAL_SECTION g_managerLock;
CRITICAL_SECTION g_tagLock;

}  // namespace

HMODULE ModuleHandle() { return g_module; }
CRITICAL_SECTION& StyleCatalogueLock() { return g_catalogueLock; }
CRITICAL_SECTION& StyleManagerLock() { return g_managerLock; }
CRITICAL_SECTION& RichTextTagLock() { return g_tagLock; }

}  // namespace kiv_skin

// Only records the module and prepares the three locks: nothing else runs at load.
BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    using namespace kiv_skin;
    if (reason == DLL_PROCESS_ATTACH) {
        g_module = instance;
        InitializeCriticalSectionAndSpinCount(&g_catalogueLock, kSpinCount);
        InitializeCriticalSectionAndSpinCount(&g_managerLock, kSpinCount);
        InitializeCriticalSectionAndSpinCount(&g_tagLock, kSpinCount);
    } else if (reason == DLL_PROCESS_DETACH) {
        DeleteCriticalSection(&g_catalogueLock);
        DeleteCriticalSection(&g_managerLock);
        DeleteCriticalSection(&g_tagLock);
    }
    return TRUE;
}
