#include "support/message_pump.h"

void Pump(DWORD ms)
{
    DWORD start = ::GetTickCount();
    for (;;) {
        MSG msg;
        while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&msg);
            ::DispatchMessageA(&msg);
        }
        DWORD spent = ::GetTickCount() - start;
        if (spent >= ms) return;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, ms - spent, QS_ALLINPUT);
    }
}
