// The scroll bar's model through its public operations: placing, the owner's calls, the
// relative move, the end test, and the private recomputation and absolute move.
#include "scroll_fixture.h"

namespace {

class ScrollModel : public TestScheme {};

TEST_F(ScrollModel, StartsWithoutContent)
{
    PluginScrollBar bar;
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_EQ(1, bar.GetFullHeight());
    EXPECT_EQ(0, bar.GetLineHeight());
    EXPECT_EQ(CRect(0, 0, 0, 0), bar.GetScrollRect());
    EXPECT_EQ(16, bar.GetScrollBarHeight());
    EXPECT_EQ(0, Internals::HasScrollBar(bar));
    EXPECT_EQ(1, Internals::GetNumScrollBar(bar));
}

TEST_F(ScrollModel, ScrollInfoPlacesTheBarAndTakesThePage)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    EXPECT_EQ(CRect(84, 0, 101, 102), bar.GetScrollRect());
    EXPECT_EQ(10, Internals::Page(bar));
    EXPECT_EQ(100, bar.GetFullHeight());
    EXPECT_EQ(10, bar.GetLineHeight());
    EXPECT_EQ(1, Internals::HasScrollBar(bar));
}

TEST_F(ScrollModel, HorizontalBarIsTheBottomStrip)
{
    PluginScrollBar bar;
    bar.Create(nullptr, PluginScrollBar::BORDER_NONE, 0);
    bar.SetScrollInfo(CRect(0, 0, 200, 50), 10, 30, 0);
    EXPECT_EQ(CRect(-1, 34, 201, 51), bar.GetScrollRect());
    EXPECT_EQ(5, Internals::Page(bar));  // the height, whatever the orientation
}

TEST_F(ScrollModel, NoContentResetsAndKeepsTheRectangle)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(30);
    bar.SetScrollInfo(CRect(0, 0, 500, 500), 20, 0, 1);
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_EQ(1, bar.GetFullHeight());
    EXPECT_EQ(1, Internals::Page(bar));
    EXPECT_EQ(0, bar.GetLineHeight());
    EXPECT_EQ(CRect(84, 0, 101, 102), bar.GetScrollRect());
}

TEST_F(ScrollModel, KeepAtEndFollowsTheLastLine)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(90);
    bar.SetScrollInfo(kArea, 10, 130, 1);
    EXPECT_EQ(120, bar.GetScrollPos());
    bar.SetScrollPos(-50);
    bar.SetScrollInfo(kArea, 10, 200, 1);
    EXPECT_EQ(70, bar.GetScrollPos());
}

TEST_F(ScrollModel, SetScrollRectMovesTheBarOnly)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(12);
    bar.SetScrollRect(CRect(10, 10, 60, 40));
    EXPECT_EQ(CRect(44, 9, 61, 41), bar.GetScrollRect());
    EXPECT_EQ(12, bar.GetScrollPos());
    EXPECT_EQ(10, Internals::Page(bar));
    EXPECT_EQ(100, bar.GetFullHeight());
}

TEST_F(ScrollModel, SetScrollPosAddsAndClamps)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(5);
    bar.SetScrollPos(5);
    EXPECT_EQ(10, bar.GetScrollPos());
    bar.SetScrollPos(500);
    EXPECT_EQ(90, bar.GetScrollPos());
    bar.SetScrollPos(-500);
    EXPECT_EQ(0, bar.GetScrollPos());
}

TEST_F(ScrollModel, IsMaxPostionIsStrict)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    bar.SetScrollPos(90);
    EXPECT_EQ(0, bar.IsMaxPostion());  // pos + page == total
    MakeStandard(bar, 5);
    EXPECT_EQ(1, bar.IsMaxPostion());  // a page longer than the content
}

TEST_F(ScrollModel, CalcScrollInfoCountsOneLineLessOfTheBarsHeight)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    EXPECT_EQ(0, Internals::CalcScrollInfo(bar, 100, 95));
    EXPECT_EQ(9, Internals::Page(bar));  // 102 / 10 - 1
    EXPECT_EQ(91, bar.GetScrollPos());
    EXPECT_EQ(0xC0u, Internals::Flags(bar));
    EXPECT_EQ(0, Internals::CalcScrollInfo(bar, 4, 0));
    EXPECT_EQ(0, bar.GetFullHeight());
    EXPECT_EQ(0x80u, Internals::Flags(bar));
}

TEST_F(ScrollModel, ScrollToLandsOnTheLastPageAndRefusesBeyondTheTotal)
{
    PluginScrollBar bar;
    MakeStandard(bar);
    EXPECT_EQ(0, Internals::ScrollTo(bar, 100, 0));
    EXPECT_EQ(0, bar.GetScrollPos());
    EXPECT_EQ(0u, Internals::Flags(bar));
    EXPECT_EQ(1, Internals::ScrollTo(bar, 95, 0));
    EXPECT_EQ(90, bar.GetScrollPos());
    EXPECT_EQ(0x80u, Internals::Flags(bar));
}

}  // namespace
