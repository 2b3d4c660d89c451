// Running the calling thread's message loop for a while, for tests of timers, posted commands
// and windows.
#pragma once
#include <windows.h>

// Dispatches the thread's messages for ms milliseconds.
void Pump(DWORD ms);

// Dispatches them until done() or until ms milliseconds have passed; answers done().
template <class Done> bool PumpUntil(Done done, DWORD ms)
{
    DWORD start = ::GetTickCount();
    while (!done() && ::GetTickCount() - start < ms) Pump(5);
    return done();
}
