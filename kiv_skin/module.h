// The library's module handle and the locks that guard the creation of its shared objects.
// All are set up when the library is loaded.
#pragma once
#include <windows.h>

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

}  // namespace kiv_skin
