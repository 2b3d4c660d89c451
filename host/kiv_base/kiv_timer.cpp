#include "kiv_base/kiv_timer.h"
#include <map>
#include <mutex>
#include <utility>

namespace kiv_base {

namespace {

// Running timers by window and id, for the timer procedure to find its KivTimer.
using TimerKey = std::pair<HWND, UINT_PTR>;

std::mutex& TimersLock()
{
    static std::mutex lock;
    return lock;
}

std::map<TimerKey, KivTimer*>& Timers()
{
    static std::map<TimerKey, KivTimer*> timers;
    return timers;
}

// Window timer ids: one sequence for the process, so no two KivTimers share a window and an id.
// It starts high, away from the small ids windows give their own timers.
UINT_PTR NextWindowTimerId()
{
    static UINT_PTR next = 0x4B000;
    return ++next;
}

}  // namespace

KivTimer& KivTimer::operator=(const KivTimer&)
{
    KillTimer();
    return *this;
}

UINT_PTR KivTimer::SetTimer(CWnd* pWnd, void* pOwner, void (*pfnCallback)(void*), UINT nElapse)
{
    KillTimer();
    if (pfnCallback == nullptr) return 0;
    HWND hwnd = pWnd->GetSafeHwnd();
    std::lock_guard<std::mutex> hold(TimersLock());
    UINT_PTR id = ::SetTimer(hwnd, hwnd != nullptr ? NextWindowTimerId() : 0, nElapse, &KivTimer::TimerProc);
    if (id == 0) return 0;
    m_record = {pOwner, id};
    m_hWnd = hwnd;
    m_pfnCallback = pfnCallback;
    Timers()[{hwnd, id}] = this;
    return id;
}

void KivTimer::KillTimer()
{
    if (m_record.nTimerId == 0) return;
    std::lock_guard<std::mutex> hold(TimersLock());
    ::KillTimer(m_hWnd, m_record.nTimerId);
    Timers().erase({m_hWnd, m_record.nTimerId});
    m_record = {nullptr, 0};
    m_hWnd = nullptr;
    m_pfnCallback = nullptr;
}

// Runs outside the lock: the callback may kill or set its timer again, or destroy it.
void CALLBACK KivTimer::TimerProc(HWND hwnd, UINT, UINT_PTR id, DWORD)
{
    KivTimer* timer = nullptr;
    {
        std::lock_guard<std::mutex> hold(TimersLock());
        auto found = Timers().find({hwnd, id});
        if (found != Timers().end()) timer = found->second;
    }
    if (timer != nullptr) timer->m_pfnCallback(&timer->m_record);
}

}  // namespace kiv_base
