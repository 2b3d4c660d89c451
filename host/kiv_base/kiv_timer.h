// A timer that calls back with its owner record. Set on a window it is a window timer with an id
// unique in the process; set with no window it is a thread timer with the id the system gives.
// Either way the callback runs from the message loop of the thread that set the timer.
#pragma once
#include "kiv_base/kiv_base_api.h"
#include <afxwin.h>

namespace kiv_base {

// What the callback receives: the owner given to SetTimer, then the running timer's id.
struct KivTimerRecord {
    void* pOwner;
    UINT_PTR nTimerId;
};

class KIV_BASE_API KivTimer {
public:
    KivTimer() = default;
    ~KivTimer() { KillTimer(); }
    // A timer belongs to the object that set it: a copy starts idle, and assigning to a timer
    // stops it.
    KivTimer(const KivTimer&) {}
    KivTimer& operator=(const KivTimer&);

    // Stops the timer if it runs, then calls pfnCallback(&record) every nElapse milliseconds.
    // pWnd may be null (or hold no window): a thread timer. Returns the new id, or 0 (idle) when
    // the system refuses the timer or pfnCallback is null.
    UINT_PTR SetTimer(CWnd* pWnd, void* pOwner, void (*pfnCallback)(void*), UINT nElapse);
    // Stops the timer; harmless when it is idle.
    void KillTimer();
    // The running timer's id; 0 while idle.
    UINT_PTR GetTimerId() const { return m_record.nTimerId; }
    void* GetOwner() const { return m_record.pOwner; }

private:
    static void CALLBACK TimerProc(HWND hwnd, UINT message, UINT_PTR id, DWORD time);

    KivTimerRecord m_record = {nullptr, 0};
    HWND m_hWnd = nullptr;
    void (*m_pfnCallback)(void*) = nullptr;
};

}  // namespace kiv_base
