// The host's timer: repeated callbacks with the owner record (owner first, id second), on a real
// window and as a thread timer. Counts and order are asserted; times only with wide margins.
#include "kiv_base/kiv_timer.h"
#include <gtest/gtest.h>
#include <vector>

using kiv_base::KivTimer;
using kiv_base::KivTimerRecord;

namespace {

// An owner: what each tick brought, and optionally what the callback does to its timer.
struct Owner {
    struct Tick {
        void* owner;
        UINT_PTR id;
        DWORD time;
    };
    std::vector<Tick> ticks;
    KivTimer* timer = nullptr;
    size_t killAfter = 0;   // the callback kills the timer at this tick (0: never)
    size_t rearmAfter = 0;  // the callback sets the timer again, at 30 ms, at this tick (0: never)
};

void OnTick(void* record)
{
    // The record as the library reads it: the owner pointer, then the timer id.
    void* owner = static_cast<void**>(record)[0];
    UINT_PTR id = static_cast<KivTimerRecord*>(record)->nTimerId;
    Owner* o = static_cast<Owner*>(owner);
    o->ticks.push_back({owner, id, GetTickCount()});
    if (o->ticks.size() == o->killAfter) o->timer->KillTimer();
    if (o->ticks.size() == o->rearmAfter) o->timer->SetTimer(nullptr, o, OnTick, 30);
}

// Dispatches the calling thread's messages for ms milliseconds, or until done().
template <class Done>
void Pump(DWORD ms, Done done)
{
    DWORD start = GetTickCount();
    while (!done() && GetTickCount() - start < ms) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
    }
}

void Pump(DWORD ms)
{
    Pump(ms, [] { return false; });
}

class KivTimerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        WNDCLASSA wc = {};
        wc.lpfnWndProc = DefWindowProcA;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.lpszClassName = "KivTimerTestWindow";
        RegisterClassA(&wc);
        HWND hwnd = CreateWindowExA(0, wc.lpszClassName, "timer", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                    nullptr, nullptr, wc.hInstance, nullptr);
        ASSERT_NE(nullptr, hwnd);
        window.Attach(hwnd);
    }

    // Sets owner's timer and pumps until it has ticked n times (ten seconds at most).
    void RunUntilTicks(Owner& owner, CWnd* wnd, UINT elapse, size_t n)
    {
        owner.timer = &timer;
        start = GetTickCount();
        id = timer.SetTimer(wnd, &owner, OnTick, elapse);
        ASSERT_NE(0u, id);
        EXPECT_EQ(id, timer.GetTimerId());
        Pump(10000, [&] { return owner.ticks.size() >= n; });
        ASSERT_EQ(n, owner.ticks.size());
    }

    void ExpectRecords(const Owner& owner)
    {
        for (const Owner::Tick& tick : owner.ticks) {
            EXPECT_EQ(&owner, tick.owner);
            EXPECT_EQ(id, tick.id);
        }
    }

    // A 50 ms timer on wnd ticks three times with its owner record, no sooner than three ticks
    // can, and not again once killed.
    void ExpectThreeTicksThenStop(CWnd* wnd)
    {
        Owner owner;
        RunUntilTicks(owner, wnd, 50, 3);
        ExpectRecords(owner);
        EXPECT_GE(owner.ticks[2].time - start, 60u) << "three ticks of 50 ms cannot all come within 60 ms";
        timer.KillTimer();
        EXPECT_EQ(0u, timer.GetTimerId());
        Pump(300);
        EXPECT_EQ(3u, owner.ticks.size());
    }

    CWnd window;
    KivTimer timer;
    UINT_PTR id = 0;
    DWORD start = 0;
};

}  // namespace

TEST_F(KivTimerTest, AWindowTimerTicksRepeatedlyWithItsOwnerRecord) { ExpectThreeTicksThenStop(&window); }

TEST_F(KivTimerTest, ANullWindowMakesAThreadTimer) { ExpectThreeTicksThenStop(nullptr); }

TEST_F(KivTimerTest, AWindowObjectWithoutAWindowMakesAThreadTimer)
{
    CWnd empty;
    Owner owner;
    RunUntilTicks(owner, &empty, 20, 2);
    ExpectRecords(owner);
}

TEST_F(KivTimerTest, KillingFromTheCallbackStopsTheTimer)
{
    Owner owner;
    owner.killAfter = 2;
    RunUntilTicks(owner, &window, 20, 2);
    EXPECT_EQ(0u, timer.GetTimerId());
    Pump(300);
    EXPECT_EQ(2u, owner.ticks.size());
}

TEST_F(KivTimerTest, SettingAgainFromTheCallbackReplacesTheTimer)
{
    Owner owner;
    owner.rearmAfter = 1;
    RunUntilTicks(owner, &window, 50, 3);
    UINT_PTR rearmed = timer.GetTimerId();
    ASSERT_NE(0u, rearmed);
    EXPECT_EQ(id, owner.ticks[0].id);
    EXPECT_EQ(rearmed, owner.ticks[1].id);
    EXPECT_EQ(rearmed, owner.ticks[2].id);
}

TEST_F(KivTimerTest, KillingAnIdleTimerIsHarmless)
{
    KivTimer idle;
    idle.KillTimer();
    idle.KillTimer();
    EXPECT_EQ(0u, idle.GetTimerId());
    EXPECT_EQ(nullptr, idle.GetOwner());
    Owner owner;
    RunUntilTicks(owner, &window, 20, 1);  // the fixture's timer, after the idle one's kills
}

TEST_F(KivTimerTest, SettingARunningTimerAgainReplacesOwnerAndId)
{
    Owner first;
    Owner second;
    ASSERT_NE(0u, timer.SetTimer(&window, &first, OnTick, 20));
    UINT_PTR firstId = timer.GetTimerId();
    RunUntilTicks(second, &window, 20, 3);
    EXPECT_NE(firstId, id);
    ExpectRecords(second);
    EXPECT_TRUE(first.ticks.empty());
    EXPECT_EQ(&second, timer.GetOwner());
}

TEST_F(KivTimerTest, TwoTimersOnOneWindowTickApart)
{
    Owner a;
    Owner b;
    KivTimer other;
    b.timer = &other;
    ASSERT_NE(0u, other.SetTimer(&window, &b, OnTick, 20));
    RunUntilTicks(a, &window, 20, 2);
    Pump(10000, [&] { return b.ticks.size() >= 2; });
    ASSERT_GE(b.ticks.size(), 2u);
    EXPECT_NE(id, other.GetTimerId());
    ExpectRecords(a);
    for (const Owner::Tick& tick : b.ticks) {
        EXPECT_EQ(&b, tick.owner);
        EXPECT_EQ(other.GetTimerId(), tick.id);
    }
}

TEST_F(KivTimerTest, ANullCallbackLeavesTheTimerIdle)
{
    int owner = 0;
    EXPECT_EQ(0u, timer.SetTimer(&window, &owner, nullptr, 20));
    EXPECT_EQ(0u, timer.GetTimerId());
}

TEST_F(KivTimerTest, DestroyingARunningTimerStopsIt)
{
    Owner owner;
    {
        KivTimer scoped;
        owner.timer = &scoped;
        ASSERT_NE(0u, scoped.SetTimer(&window, &owner, OnTick, 20));
    }
    Pump(300);
    EXPECT_TRUE(owner.ticks.empty());
}

TEST_F(KivTimerTest, ACopyStartsIdleAndAssigningStopsTheTimer)
{
    Owner owner;
    RunUntilTicks(owner, &window, 20, 1);
    KivTimer copy(timer);
    EXPECT_EQ(0u, copy.GetTimerId());
    EXPECT_EQ(id, timer.GetTimerId());
    timer = copy;
    EXPECT_EQ(0u, timer.GetTimerId());
    Pump(300);
    EXPECT_EQ(1u, owner.ticks.size());
}
