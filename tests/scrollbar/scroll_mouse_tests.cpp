// The scroll bar's answers to mouse events without waiting for its timers: presses, releases,
// drags and the wheel.
#include "scroll_fixture.h"

namespace {

class ScrollMouse : public TestScheme {};

TEST_F(ScrollMouse, PressOnTheArrowsStepsOneLine)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY));
    EXPECT_EQ(1, bar.GetScrollPos());
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kFirstArrowY));
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_EQ(0x80u, Internals::Flags(bar));
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kFirstArrowY);
}

TEST_F(ScrollMouse, PressOnTheTrackStepsAPage)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 26);  // just after the thumb
    EXPECT_EQ(10, bar.GetScrollPos());
    Send(bar, DMOUSE_LBUTTONUP, kBarX, 26);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 22);  // the thumb now covers 23-31
    EXPECT_EQ(0, bar.GetScrollPos());
    Send(bar, DMOUSE_LBUTTONUP, kBarX, 22);
}

TEST_F(ScrollMouse, PressStartsTheRepeatTimerAndReleaseStopsIt)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    EXPECT_TRUE(Internals::RepeatRunning(bar));
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    EXPECT_FALSE(Internals::RepeatRunning(bar));
}

TEST_F(ScrollMouse, LeavingTheBarStopsTheRepeat)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_MOVE, 50, 50));
    EXPECT_FALSE(Internals::RepeatRunning(bar));
}

TEST_F(ScrollMouse, ReleaseWhereTheMouseLastWasChangesNothing)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    EXPECT_EQ(PluginScrollBar::MOUSE_NOCHANGE, Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY));
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_LBUTTONUP, kBarX + 1, kSecondArrowY));
}

TEST_F(ScrollMouse, MovesWithoutADragAndOtherMessagesAreNotTheBars)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_MOVE, kBarX, 20));
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, 0x8, kBarX, 20));
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_LBUTTONDOWN, 10, 10));
    EXPECT_EQ(0, bar.GetScrollPos());
}

TEST_F(ScrollMouse, DraggingTheThumbFollowsTheMouseEvenOutsideTheBar)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 20));  // grabbed 3 below its start
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_MOVE, kBarX, 54));
    EXPECT_EQ(50, bar.GetScrollPos());  // (54 - 3 - 17) * 100 / 68
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_MOVE, kBarX, 54));  // no change
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_MOVE, 10, 500));
    EXPECT_EQ(90, bar.GetScrollPos());
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_MOVE, 10, -500));
    EXPECT_EQ(0, bar.GetScrollPos());
    Send(bar, DMOUSE_LBUTTONUP, 10, -500);
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_MOVE, kBarX, 54));
    EXPECT_EQ(0, bar.GetScrollPos());
}

TEST_F(ScrollMouse, WheelMovesOneLineOnAVerticalBar)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(5);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_WHEEL, 0, 0, 120));
    EXPECT_EQ(4, bar.GetScrollPos());
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_WHEEL, 0, 0, -720));
    EXPECT_EQ(5, bar.GetScrollPos());
}

TEST_F(ScrollMouse, WheelWithEverythingVisibleIsHandledAndChangesNothing)
{
    PluginScrollBar bar;
    MakeStandard(bar, 10);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_WHEEL, kBarX, 50, -120));
    EXPECT_EQ(0, bar.GetScrollPos());
}

TEST_F(ScrollMouse, WheelOnAHorizontalBarIsIgnored)
{
    PluginScrollBar bar;
    bar.Create(nullptr, PluginScrollBar::BORDER_NONE, 0);
    bar.SetScrollInfo(CRect(0, 0, 200, 100), 10, 100, 0);
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_WHEEL, 100, 95, -120));
    EXPECT_EQ(0, bar.GetScrollPos());
}

TEST_F(ScrollMouse, HorizontalArrowsStepAlongX)
{
    PluginScrollBar bar;
    bar.Create(nullptr, PluginScrollBar::BORDER_NONE, 0);
    bar.SetScrollInfo(CRect(0, 0, 200, 100), 10, 100, 0);  // bar (-1, 84)-(201, 101)
    Send(bar, DMOUSE_LBUTTONDOWN, 195, 92);
    EXPECT_EQ(1, bar.GetScrollPos());
    Send(bar, DMOUSE_LBUTTONUP, 195, 92);
}

}  // namespace
