// Hostile use: absurd totals, pages and rectangles, coordinates at the ends of the integers,
// releases without presses, and a bar destroyed while its timers run. Each gets the documented
// result and never a crash.
#include "scroll_fixture.h"
#include <climits>

namespace {

class ScrollHostile : public TestScheme {};

TEST_F(ScrollHostile, NegativeAndHugeTotalsKeepThePositionInRange)
{
    PluginScrollBar bar;
    for (int total : {-5, INT_MIN, 0}) {
        bar.SetScrollInfo(kArea, 10, total, 1);
        EXPECT_EQ(0, bar.GetScrollPos());
        EXPECT_EQ(1, bar.GetFullHeight());
    }
    bar.SetScrollInfo(kArea, 10, INT_MAX, 1);
    EXPECT_EQ(INT_MAX - 10, bar.GetScrollPos());  // kept at the end
    bar.SetScrollPos(INT_MAX);
    EXPECT_EQ(0, bar.GetScrollPos());  // the sum wraps below 0, which clamps to 0
    bar.SetScrollPos(INT_MIN);
    EXPECT_GE(bar.GetScrollPos(), 0);
    Sheet sheet(120, 110);
    bar.Draw(sheet.dc());
    EXPECT_EQ(scheme::kPlugBackground, sheet.At(85, 50));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(ScrollHostile, PageLargerThanTheTotal)
{
    PluginScrollBar bar;
    bar.SetScrollInfo(kArea, 1, 5, 0);  // page 100
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_EQ(1, bar.IsMaxPostion());
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY));
    EXPECT_EQ(0, bar.GetScrollPos());
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    Sheet sheet(120, 110);
    bar.Draw(sheet.dc());
    EXPECT_EQ(0x909000u, sheet.At(84 + 8, 10));  // both arrows disabled
    EXPECT_EQ(0x909000u, sheet.At(84 + 8, 92));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(ScrollHostile, NegativePagesFromUpsideDownAreasAndZeroLineHeights)
{
    PluginScrollBar bar;
    bar.SetScrollInfo(CRect(0, 100, 50, 0), 10, 40, 0);  // height -100: page -10
    EXPECT_EQ(0, bar.GetScrollPos());
    Send(bar, DMOUSE_WHEEL, 0, 0, -120);
    EXPECT_GE(bar.GetScrollPos(), 0);
    bar.SetScrollInfo(kArea, 0, 40, 0);  // a caller error: counts as one-pixel lines
    EXPECT_EQ(0, bar.GetLineHeight());
    EXPECT_EQ(0, bar.GetScrollPos());
    Sheet sheet(120, 110);
    bar.Draw(sheet.dc());
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(ScrollHostile, AbsurdRectangles)
{
    PluginScrollBar bar;
    bar.SetScrollInfo(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), 1, 1000, 0);
    Send(bar, DMOUSE_LBUTTONDOWN, 0, 0);
    Send(bar, DMOUSE_MOVE, INT_MAX, INT_MIN);
    Send(bar, DMOUSE_LBUTTONUP, INT_MIN, INT_MAX);
    EXPECT_GE(bar.GetScrollPos(), 0);
    EXPECT_LE(bar.GetScrollPos(), 1000);
    bar.SetScrollInfo(CRect(50, 50, 50, 50), 10, 100, 0);  // an empty area: a bar 17 x 2, page 0
    Sheet sheet(120, 110);
    bar.Draw(sheet.dc());
    EXPECT_EQ(120 * 110 - 17 * 2, sheet.Count(kSentinel, {0, 0, 120, 110}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(ScrollHostile, EventsAtTheEndsOfTheIntegers)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    for (int x : {INT_MIN, INT_MAX, -1, 0})
        for (int y : {INT_MIN, INT_MAX, -1, 0})
            for (uint16_t message : {0x1, 0x2, 0x4, 0x800, 0xFFFF})
                Send(bar, message, x, y, INT16_MIN);
    EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, Send(bar, DMOUSE_LBUTTONDOWN, INT_MIN, INT_MAX));
    // A drag that runs off to the ends of the integers stays in range.
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 20);
    Send(bar, DMOUSE_MOVE, INT_MAX, INT_MAX);
    EXPECT_GE(bar.GetScrollPos(), 0);
    EXPECT_LE(bar.GetScrollPos(), 90);
    Send(bar, DMOUSE_MOVE, INT_MIN, INT_MIN);
    EXPECT_GE(bar.GetScrollPos(), 0);
    EXPECT_LE(bar.GetScrollPos(), 90);
    Send(bar, DMOUSE_LBUTTONUP, INT_MIN, INT_MIN);
    Send(bar, DMOUSE_WHEEL, INT_MIN, INT_MIN, INT16_MIN);
    Send(bar, DMOUSE_WHEEL, INT_MAX, INT_MAX, INT16_MAX);
    EXPECT_GE(bar.GetScrollPos(), 0);
}

TEST_F(ScrollHostile, ReleaseWithoutPressStopsNothingAndMovesNothing)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(7);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_LBUTTONUP, kBarX, 50));
    EXPECT_EQ(PluginScrollBar::MOUSE_NOCHANGE, Send(bar, DMOUSE_LBUTTONUP, kBarX, 50));
    EXPECT_EQ(7, bar.GetScrollPos());
}

TEST_F(ScrollHostile, BarDestroyedWhileItsTimersRun)
{
    OwnerAndParent host("h", "h\\i");
    {
        PluginScrollBar dragged(false);
        MakeOwned(dragged, host.owner);
        GrabThumbAndDrag(dragged);
        Send(dragged, DMOUSE_MOVE, kBarX, 50);  // the drag timer now runs too
        ASSERT_TRUE(Internals::DragTimerRunning(dragged));
        ASSERT_TRUE(Internals::RepeatRunning(dragged));
        auto* repeating = new PluginScrollBar;
        MakeOwned(*repeating, host.owner);
        Send(*repeating, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
        ASSERT_TRUE(Internals::RepeatRunning(*repeating));
        delete repeating;
    }
    Pump(700);
    EXPECT_TRUE(host.owner.received.empty());
    EXPECT_TRUE(host.parent.received.empty());
}

}  // namespace
