// The library's module handle and the locks that guard the creation of its shared objects.
// All are set up when the library is loaded.
#pragma once
#include <afxwin.h>
#include <atomic>
#include <cstdlib>

namespace kiv_skin {

// The library's own module (for its dialog resources).
HMODULE ModuleHandle();

// Guard the first creation of the style catalogue, the style manager and the rich-text tag table.
CRITICAL_SECTION& StyleCatalogueLock();
CRITICAL_SECTION& StyleManagerLock();
CRITICAL_SECTION& RichTextTagLock();

// Holds a critical section for the lifetime of a scope.
class ScopedLock {
public:
    explicit ScopedLock(CRITICAL_SECTION& section) : m_section(section) { EnterCriticalSection(&m_section); }
    ~ScopedLock() { LeaveCriticalSection(&m_section); }
    ScopedLock(const ScopedLock&) = delete;
    ScopedLock& operator=(const ScopedLock&) = delete;

private:
    CRITICAL_SECTION& m_section;
};

// Answers the object in instance, creating it on first use with a test before and after taking
// lock, so that two threads cannot create two; destroy runs when the library unloads.
template <class T, class Create>
T* CreateOnce(std::atomic<T*>& instance, CRITICAL_SECTION& lock, Create create, void (*destroy)())
{
    if (!instance) {
        ScopedLock hold(lock);
        if (!instance) {
            instance = create();
            std::atexit(destroy);
        }
    }
    return instance;
}

}  // namespace kiv_skin
