// The repeat timer for real, through this thread's message loop: holding an arrow and holding
// the track, and where the timer runs: on the application's main window when it has one, on the
// thread when it has none. Times are asserted within ranges that a loaded machine keeps.
#include "scroll_fixture.h"
#include <algorithm>

namespace {

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

    RecordingObject owner;
    Registration registration;
    PluginScrollBar bar;
};

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

    std::vector<int> expected;
    for (int pos = 2; pos <= 90; ++pos) expected.push_back(pos);
    EXPECT_EQ(expected, Positions());  // one line per tick, in order, and none after 90
    EXPECT_EQ(90, bar.GetScrollPos());

    ASSERT_EQ(89u, owner.received.size());
    DWORD first = owner.received[0].tick - press;
    EXPECT_GE(first, 280u);
    EXPECT_LE(first, 1500u);
    std::vector<DWORD> gaps;
    for (size_t i = 1; i < owner.received.size(); ++i)
        gaps.push_back(owner.received[i].tick - owner.received[i - 1].tick);
    EXPECT_GE(*std::min_element(gaps.begin(), gaps.end()), 80u);
    std::nth_element(gaps.begin(), gaps.begin() + gaps.size() / 2, gaps.end());
    DWORD median = gaps[gaps.size() / 2];
    EXPECT_GE(median, 90u);
    EXPECT_LE(median, 250u);
    RecordProperty("first_repeat_ms", static_cast<int>(first));
    RecordProperty("median_repeat_ms", static_cast<int>(median));
    RecordProperty("press_to_end_ms", static_cast<int>(reached - press));
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
