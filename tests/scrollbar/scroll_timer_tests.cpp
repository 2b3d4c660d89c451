// The repeat timer for real, through this thread's message loop: holding an arrow, the track, a
// horizontal bar's arrow, and an arrow left for another part of the bar and entered again.
//
// The schedule, not the gaps between ticks, is what is asserted: every tick re-arms the 100 ms
// timer as it starts, and the owner hears of it a little later, so one tick heard late is
// followed by a short gap. Tick k (from 0) comes 300 + 100 k ms after the press: never more than
// kEarly before that, and at most kLate plus kLatePerTick for each tick before it after it: each
// re-arming starts a little late (about 1 ms a tick under Wine on an idle machine, 10 to 30 beside
// a parallel build), and kLate leaves room for a stall of the whole process. A period of 90 ms
// runs early by the third tick, one of 150 ms late by the 25th.
//
// The timer runs on the application's main window when it has one, on the thread when it has
// none; both paths are shown.
#include "scroll_fixture.h"
#include <sstream>

namespace {

const long kEarly = 20;
const long kLate = 500;
const long kLatePerTick = 30;

class ScrollTimer : public TestScheme {
protected:
    void SetUp() override
    {
        registration.Add("timer\\list", &owner);
        MakeOwned(bar, owner);
    }

    std::vector<int> Positions() const
    {
        std::vector<int> positions;
        for (const auto& r : owner.received) positions.push_back(r.pos);
        return positions;
    }

    // Each received change came on its tick of the schedule that began at press.
    ::testing::AssertionResult OnSchedule(DWORD press) const
    {
        std::ostringstream late;
        for (size_t k = 0; k < owner.received.size(); ++k) {
            long due = 300 + 100 * static_cast<long>(k);
            long at = static_cast<long>(owner.received[k].tick - press);
            if (at < due - kEarly || at > due + kLate + kLatePerTick * static_cast<long>(k))
                late << " tick " << k << " at " << at << " ms, due " << due << ";";
        }
        if (late.str().empty()) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "off schedule:" << late.str();
    }

    // Holds the button at (x, y) until the position is last, then a while more, and releases.
    void HoldUntil(int x, int y, int last, DWORD* press)
    {
        *press = ::GetTickCount();
        Send(bar, DMOUSE_LBUTTONDOWN, x, y);
        ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == last; }, 30000));
        Pump(500);
        Send(bar, DMOUSE_LBUTTONUP, x, y);
    }

    RecordingObject owner;
    Registration registration;
    PluginScrollBar bar;
};

std::vector<int> Range(int from, int to, int step)
{
    std::vector<int> values;
    for (int v = from; step > 0 ? v <= to : v >= to; v += step) values.push_back(v);
    return values;
}

TEST_F(ScrollTimer, HoldingTheSecondArrowRepeatsEveryHundredMillisecondsAfterThreeHundredAndStopsAtTheEnd)
{
    DWORD press = ::GetTickCount();
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    EXPECT_EQ(1, bar.GetScrollPos());
    EXPECT_TRUE(owner.received.empty());  // no command for the press itself
    ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == 90; }, 30000));
    DWORD reached = ::GetTickCount();
    Pump(600);
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);

    EXPECT_EQ(Range(2, 90, 1), Positions());  // one line per tick, in order, and none after 90
    EXPECT_EQ(90, bar.GetScrollPos());
    EXPECT_TRUE(OnSchedule(press));
    RecordProperty("press_to_end_ms", static_cast<int>(reached - press));
}

TEST_F(ScrollTimer, HoldingTheFirstArrowRepeatsBackToTheStart)
{
    bar.SetScrollPos(5);
    DWORD press = 0;
    HoldUntil(kBarX, kFirstArrowY, 0, &press);
    EXPECT_EQ(Range(3, 0, -1), Positions());  // 4 at the press, then one line per tick
    EXPECT_TRUE(OnSchedule(press));
}

// Above the thumb the track pages up by the page until the start.
TEST_F(ScrollTimer, HoldingTheTrackAboveTheThumbPagesUp)
{
    bar.SetScrollPos(90);
    DWORD press = 0;
    HoldUntil(kBarX, 20, 0, &press);
    EXPECT_EQ(Range(70, 0, -10), Positions());  // 80 at the press
    EXPECT_TRUE(OnSchedule(press));
}

TEST_F(ScrollTimer, HoldingAHorizontalBarsSecondArrowRepeatsAlongX)
{
    PluginScrollBar horizontal;
    owner.watched = &horizontal;
    horizontal.Create(&owner, PluginScrollBar::BORDER_NONE, 0);
    horizontal.SetScrollInfo(CRect(0, 0, 200, 100), 10, 100, 0);  // bar (-1, 84)-(201, 101)
    DWORD press = ::GetTickCount();
    Send(horizontal, DMOUSE_LBUTTONDOWN, 195, 92);
    EXPECT_EQ(1, horizontal.GetScrollPos());
    ASSERT_TRUE(PumpUntil([&] { return horizontal.GetScrollPos() == 6; }, 5000));
    Send(horizontal, DMOUSE_LBUTTONUP, 195, 92);
    Pump(300);
    EXPECT_EQ(Range(2, 6, 1), Positions());
    EXPECT_TRUE(OnSchedule(press));
}

// Moved from the arrow onto the track, still inside the bar, the repeat pauses; back on the arrow
// it resumes on the next tick.
TEST_F(ScrollTimer, ArrowLeftForTheTrackPausesAndResumesWhenEnteredAgain)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == 3; }, 5000));
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_MOVE, kBarX, 50));
    Pump(600);
    EXPECT_EQ(3, bar.GetScrollPos()) << "paused over the track";
    EXPECT_TRUE(Internals::RepeatRunning(bar));
    DWORD back = ::GetTickCount();
    Send(bar, DMOUSE_MOVE, kBarX, kSecondArrowY);
    ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == 5; }, 5000));
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    EXPECT_EQ(Range(2, 5, 1), Positions());
    DWORD resumed = owner.received[2].tick - back;
    EXPECT_LE(resumed, static_cast<DWORD>(100 + kLate)) << "the next tick after the return";
}

TEST_F(ScrollTimer, ReleasingTheButtonStopsTheRepeat)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == 3; }, 5000));
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    Pump(500);
    EXPECT_EQ(3, bar.GetScrollPos());
}

TEST_F(ScrollTimer, LeavingTheBarStopsTheRepeat)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    Send(bar, DMOUSE_MOVE, 40, 40);
    Pump(600);
    EXPECT_EQ(1, bar.GetScrollPos());
    EXPECT_TRUE(owner.received.empty());
}

// Pressed at y 70 on the track: pages 10, 20 ... until the thumb (64-72 at position 70) reaches
// the mouse, and goes on when the mouse moves further down.
TEST_F(ScrollTimer, HoldingTheTrackPagesUntilTheThumbReachesTheMouseThenResumesWhenItMovesOn)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 70);
    EXPECT_EQ(10, bar.GetScrollPos());
    ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == 70; }, 10000));
    Pump(700);  // paused under the mouse
    EXPECT_EQ(70, bar.GetScrollPos());
    EXPECT_EQ((std::vector<int>{20, 30, 40, 50, 60, 70}), Positions());

    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_MOVE, kBarX, 80));
    ASSERT_TRUE(PumpUntil([&] { return bar.GetScrollPos() == 90; }, 5000));
    Pump(500);
    Send(bar, DMOUSE_LBUTTONUP, kBarX, 80);
    EXPECT_EQ((std::vector<int>{20, 30, 40, 50, 60, 70, 80, 90}), Positions());
}

TEST_F(ScrollTimer, HoldingTheThumbChangesNothing)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 20);
    Pump(600);
    Send(bar, DMOUSE_LBUTTONUP, kBarX, 20);
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_TRUE(owner.received.empty());
}

// Where the timer messages of this thread went.
struct TimerTicks {
    int onWindow = 0;  // to the window watched
    int onThread = 0;  // thread timers
    int elsewhere = 0;
};

// Dispatches the thread's messages until done() or until ms milliseconds have passed, counting
// its timer messages by their window; answers done().
template <class Done> bool PumpCountingTimers(HWND window, TimerTicks& ticks, Done done, DWORD ms)
{
    DWORD start = ::GetTickCount();
    while (!done() && ::GetTickCount() - start < ms) {
        MSG msg;
        while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.message == WM_TIMER) ++(msg.hwnd == window ? ticks.onWindow : msg.hwnd == nullptr ? ticks.onThread : ticks.elsewhere);
            ::TranslateMessage(&msg);
            ::DispatchMessageA(&msg);
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
    return done();
}

// A hidden window that is the application's main window while it lives.
class ApplicationMainWindow {
public:
    ApplicationMainWindow()
    {
        m_window.Attach(::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr,
                                          ::GetModuleHandleA(nullptr), nullptr));
        AfxGetApp()->m_pMainWnd = &m_window;
    }
    ~ApplicationMainWindow()
    {
        AfxGetApp()->m_pMainWnd = nullptr;
        m_window.DestroyWindow();
    }
    HWND Handle() const { return m_window.m_hWnd; }

private:
    CWnd m_window;
};

TEST_F(ScrollTimer, WithAMainWindowTheRepeatTicksOnThatWindow)
{
    ApplicationMainWindow main;
    PluginScrollBar onMain;  // made while the application has its main window
    MakeOwned(onMain, owner);
    Send(onMain, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    TimerTicks ticks;
    ASSERT_TRUE(PumpCountingTimers(main.Handle(), ticks, [&] { return onMain.GetScrollPos() == 5; }, 5000));
    Send(onMain, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    EXPECT_EQ((std::vector<int>{2, 3, 4, 5}), Positions());
    EXPECT_GE(ticks.onWindow, 4);
    EXPECT_EQ(0, ticks.onThread);
    EXPECT_EQ(0, ticks.elsewhere);
}

TEST_F(ScrollTimer, WithoutAMainWindowTheRepeatTicksOnTheThread)
{
    ASSERT_EQ(nullptr, AfxGetMainWnd());
    HWND shown = ::CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                   ::GetModuleHandleA(nullptr), nullptr);  // not the application's
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    TimerTicks ticks;
    ASSERT_TRUE(PumpCountingTimers(shown, ticks, [&] { return bar.GetScrollPos() == 5; }, 5000));
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    EXPECT_EQ((std::vector<int>{2, 3, 4, 5}), Positions());
    EXPECT_GE(ticks.onThread, 4);
    EXPECT_EQ(0, ticks.onWindow);
    EXPECT_EQ(0, ticks.elsewhere);
    ::DestroyWindow(shown);
}

}  // namespace
