// The scroll bar's arithmetic as tables: placing, page and total, absolute moves, the geometry of
// arrows, track and thumb, every part's first and last pixel, and the steps. Built for Windows
// and natively with the sanitizers (tests/native).
#include "kiv_skin/scrollbar/scroll_arithmetic.h"
#include <gtest/gtest.h>
#include <climits>

using namespace kiv_skin::scroll_arithmetic;

namespace {

bool operator==(const Box& a, const Box& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

testing::AssertionResult Is(const Geometry& g, int trackStart, int thumbStart, int thumbEnd, int trackEnd)
{
    if (g.trackStart == trackStart && g.thumbStart == thumbStart && g.thumbEnd == thumbEnd && g.trackEnd == trackEnd)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "{" << g.trackStart << ", " << g.thumbStart << ", " << g.thumbEnd << ", "
                                       << g.trackEnd << "}";
}

}  // namespace

TEST(ScrollArithmetic, VerticalBarIsTheRightStripSeventeenWideAndTwoTaller)
{
    EXPECT_TRUE(PlaceBar({10, 20, 210, 120}, 1) == (Box{194, 19, 211, 121}));
    EXPECT_TRUE(PlaceBar({10, 20, 210, 120}, 0) == (Box{9, 104, 211, 121}));
}

TEST(ScrollArithmetic, ScrollInfoTakesThePageFromTheAreaAndClamps)
{
    Model m{50, 1, 1, 0};
    ApplyScrollInfo(m, 100, 10, 55, 0);
    EXPECT_EQ(10, m.page);
    EXPECT_EQ(55, m.total);
    EXPECT_EQ(45, m.pos);  // min(50, 55 - 10)
    ApplyScrollInfo(m, 100, 10, 5, 0);
    EXPECT_EQ(0, m.pos);  // total below the page
}

TEST(ScrollArithmetic, KeepAtEndFollowsTheEndOnlyWhenTheViewShowedIt)
{
    Model atEnd{90, 10, 100, 0};
    ApplyScrollInfo(atEnd, 100, 10, 120, 1);
    EXPECT_EQ(110, atEnd.pos);
    Model elsewhere{40, 10, 100, 0};
    ApplyScrollInfo(elsewhere, 100, 10, 120, 1);
    EXPECT_EQ(40, elsewhere.pos);
    Model empty{0, 1, 1, 0};
    ApplyScrollInfo(empty, 100, 10, 30, 1);
    EXPECT_EQ(20, empty.pos);
    Model notAsked{90, 10, 100, 0};
    ApplyScrollInfo(notAsked, 100, 10, 120, 0);
    EXPECT_EQ(90, notAsked.pos);
}

TEST(ScrollArithmetic, RecomputeCountsOneLineLessFromTheBarsOwnHeight)
{
    Model m{0, 1, 1, 0};
    Recompute(m, 102, 10, 100, 5);
    EXPECT_EQ(9, m.page);
    EXPECT_EQ(100, m.total);
    EXPECT_EQ(5, m.pos);
    EXPECT_EQ(kFlagNeedsBar | kFlagScrolled, m.flags);
}

TEST(ScrollArithmetic, RecomputeWithANegativePositionKeepsAScrolledPosition)
{
    Model m{30, 9, 100, kFlagScrolled};
    Recompute(m, 102, 10, 100, -1);
    EXPECT_EQ(30, m.pos);
    Model fresh{30, 9, 100, 0};
    Recompute(fresh, 102, 10, 100, -1);
    EXPECT_EQ(91, fresh.pos);  // not scrolled: to the end
}

TEST(ScrollArithmetic, RecomputeUnchangedOnlySetsTheBarFlag)
{
    Model m{20, 9, 100, 0};
    Recompute(m, 102, 10, 100, 20);
    EXPECT_EQ(kFlagNeedsBar, m.flags);
    EXPECT_EQ(20, m.pos);
}

TEST(ScrollArithmetic, RecomputeWhenEverythingFitsEmptiesTheModel)
{
    Model m{3, 9, 100, kFlagNeedsBar | kFlagScrolled};
    Recompute(m, 102, 10, 9, 0);
    EXPECT_EQ(0, m.total);
    EXPECT_EQ(0, m.pos);
    EXPECT_EQ(kFlagScrolled, m.flags);
}

TEST(ScrollArithmetic, RecomputeClampsAPositionPastTheEnd)
{
    Model m{0, 1, 1, 0};
    Recompute(m, 102, 10, 100, 95);
    EXPECT_EQ(91, m.pos);
}

TEST(ScrollArithmetic, ScrollToMovesWithinTheTotalOnly)
{
    Model m{5, 10, 100, 0};
    EXPECT_EQ(0, ScrollTo(m, 100, 0));
    EXPECT_EQ(5, m.pos);
    EXPECT_EQ(0u, m.flags);
    EXPECT_EQ(0, ScrollTo(m, -1, 0));
    EXPECT_EQ(1, ScrollTo(m, 95, 0));
    EXPECT_EQ(90, m.pos);
    EXPECT_EQ(kFlagScrolled, m.flags);
    EXPECT_EQ(1, ScrollTo(m, 42, 0));
    EXPECT_EQ(42, m.pos);
}

TEST(ScrollArithmetic, ScrollToAnotherBarChangesNothing)
{
    Model m{5, 10, 100, 0};
    EXPECT_EQ(1, ScrollTo(m, 50, 1));
    EXPECT_EQ(1, ScrollTo(m, 50, -7));
    EXPECT_EQ(0, ScrollTo(m, 50, 2));
    EXPECT_EQ(5, m.pos);
    EXPECT_EQ(0u, m.flags);
}

// The geometry of arrows, track and thumb: {track start, thumb start, thumb end, track end}.
struct LayoutCase {
    const char* what;
    Box box;
    int pos, page, total, vertical;
    Geometry want;
};

const LayoutCase kLayouts[] = {
    // Arrows are squares of the thickness, or half the length when the bar is shorter.
    {"17 x 40: arrows of 17", {0, 0, 17, 40}, 0, 10, 10, 1, {17, 17, 23, 23}},
    {"17 x 30: arrows of 15", {0, 0, 17, 30}, 0, 10, 10, 1, {15, 15, 15, 15}},
    {"40 x 17 across: arrows of 17", {0, 0, 40, 17}, 0, 10, 10, 0, {17, 17, 23, 23}},
    {"31 x 17 across: arrows of 15", {0, 0, 31, 17}, 0, 10, 10, 0, {15, 15, 16, 16}},
    {"offset bar", {5, 100, 22, 300}, 0, 10, 20, 1, {117, 117, 200, 283}},
    // Proportional thumbs on a track from 17 to 123 (106 pixels).
    {"pos 20 of 100", {0, 0, 17, 140}, 20, 10, 100, 1, {17, 38, 48, 123}},
    {"pos 90 of 100", {0, 0, 17, 140}, 90, 10, 100, 1, {17, 112, 123, 123}},
    {"page larger than the total fills the track", {0, 0, 17, 140}, 0, 50, 5, 1, {17, 17, 123, 123}},
    // A 1-pixel thumb (100-pixel track, 1000 lines, page 10) grows to 8: forward while there is
    // room, then its end reaches the track end and the rest goes backward.
    {"short thumb at the start grows forward", {0, 0, 17, 134}, 0, 10, 1000, 1, {17, 17, 25, 117}},
    {"short thumb in the middle grows forward", {0, 0, 17, 134}, 500, 10, 1000, 1, {17, 67, 75, 117}},
    {"short thumb at the end grows backward", {0, 0, 17, 134}, 990, 10, 1000, 1, {17, 109, 117, 117}},
    {"one pixel of room: forward by one, back by six", {0, 0, 17, 134}, 985, 10, 1000, 1, {17, 109, 117, 117}},
    // A 4-pixel track: the thumb takes all of it, never starting before the track.
    {"4-pixel track at the start", {0, 0, 13, 30}, 0, 4, 100, 1, {13, 13, 17, 17}},
    {"4-pixel track at the end", {0, 0, 13, 30}, 96, 4, 100, 1, {13, 13, 17, 17}},
    // No geometry without a total or a page.
    {"total 0", {0, 0, 17, 140}, 0, 10, 0, 1, {0, 0, 0, 0}},
    {"page 0", {0, 0, 17, 140}, 0, 0, 100, 1, {0, 0, 0, 0}},
    {"negative page and total", {0, 0, 17, 140}, 0, -3, -100, 1, {0, 0, 0, 0}},
};

TEST(ScrollArithmetic, LayoutTable)
{
    for (const LayoutCase& c : kLayouts) {
        const Geometry& w = c.want;
        EXPECT_TRUE(Is(Layout(c.box, c.pos, c.page, c.total, c.vertical), w.trackStart, w.thumbStart, w.thumbEnd,
                       w.trackEnd))
            << c.what;
    }
}

// Vertical bar 17 x 140, pos 20 of 100, page 10: arrows 0-16 and 124-139, track before the
// thumb 17-37, thumb 38-48, track after it 49-123 (the track end itself counts as track).
TEST(ScrollArithmetic, HitTestFirstAndLastPixelOfEveryPart)
{
    Model m{20, 10, 100, 0};
    Box bar{0, 0, 17, 140};
    struct Case {
        int c;
        Part part;
    } cases[] = {{0, PART_LINEUP},    {16, PART_LINEUP},    {17, PART_PAGEUP},     {37, PART_PAGEUP},
                 {38, PART_THUMB},    {48, PART_THUMB},     {49, PART_PAGEDOWN},   {123, PART_PAGEDOWN},
                 {124, PART_LINEDOWN}, {139, PART_LINEDOWN}, {140, PART_NONE},      {-1, PART_NONE}};
    for (const Case& k : cases) {
        EXPECT_EQ(k.part, HitTest(bar, 8, k.c, m, 1)) << "y " << k.c;
        Box across{0, 0, 140, 17};
        EXPECT_EQ(k.part, HitTest(across, k.c, 8, m, 0)) << "x " << k.c;
    }
    EXPECT_EQ(PART_LINEUP, HitTest(bar, 0, 5, m, 1));
    EXPECT_EQ(PART_LINEUP, HitTest(bar, 16, 5, m, 1));
    EXPECT_EQ(PART_NONE, HitTest(bar, 17, 5, m, 1));
    EXPECT_EQ(PART_NONE, HitTest(bar, -1, 5, m, 1));
}

TEST(ScrollArithmetic, StepsOfArrowsAndTrack)
{
    Model m{20, 10, 100, 0};
    EXPECT_EQ(21, StepTarget(PART_LINEDOWN, m));
    EXPECT_EQ(19, StepTarget(PART_LINEUP, m));
    EXPECT_EQ(30, StepTarget(PART_PAGEDOWN, m));
    EXPECT_EQ(10, StepTarget(PART_PAGEUP, m));
    EXPECT_EQ(20, StepTarget(PART_THUMB, m));
    EXPECT_EQ(90, StepTarget(PART_PAGEDOWN, {85, 10, 100, 0}));
    EXPECT_EQ(0, StepTarget(PART_PAGEUP, {5, 10, 100, 0}));
    EXPECT_EQ(0, StepTarget(PART_LINEDOWN, {0, 10, 5, 0}));  // nothing to scroll: 0
}

TEST(ScrollArithmetic, WheelMovesOneLineWhateverTheDelta)
{
    EXPECT_EQ(19, WheelTarget({20, 10, 100, 0}, 120));
    EXPECT_EQ(19, WheelTarget({20, 10, 100, 0}, 1));
    EXPECT_EQ(21, WheelTarget({20, 10, 100, 0}, -360));
    EXPECT_EQ(21, WheelTarget({20, 10, 100, 0}, 0));
    EXPECT_EQ(0, WheelTarget({0, 10, 100, 0}, 120));
    EXPECT_EQ(90, WheelTarget({90, 10, 100, 0}, -120));
    EXPECT_EQ(3, WheelTarget({3, 10, 10, 0}, -120));  // total not above the page
    EXPECT_EQ(3, WheelTarget({3, 10, 1, 0}, 120));
}

TEST(ScrollArithmetic, DragFollowsTheGrabPointProportionally)
{
    Geometry g = Layout({0, 0, 17, 140}, 20, 10, 100, 1);  // track 17-123
    Model m{20, 10, 100, 0};
    EXPECT_EQ(19, DragTarget(g, 38 + 4, 4, m));  // 21 * 100 / 106, truncated
    EXPECT_EQ(50, DragTarget(g, 17 + 53, 0, m));
    EXPECT_EQ(0, DragTarget(g, -500, 0, m));
    EXPECT_EQ(90, DragTarget(g, 5000, 0, m));
}

TEST(ScrollArithmetic, HostileNumbersWrapAndAnswer)
{
    EXPECT_EQ(INT_MIN, Add(INT_MAX, 1));
    EXPECT_EQ(INT_MAX, Subtract(INT_MIN, 1));
    EXPECT_EQ(INT_MIN, Divide(INT_MIN, -1));
    EXPECT_EQ(7, Divide(7, 0));
    Geometry g = Layout({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, INT_MAX, INT_MAX, INT_MAX, 1);
    Model m{INT_MAX, INT_MAX, INT_MAX, 0};
    DragTarget(g, INT_MIN, INT_MAX, m);
    StepTarget(PART_PAGEDOWN, m);
    StepTarget(PART_PAGEUP, {INT_MIN, INT_MAX, INT_MIN, 0});
    WheelTarget({INT_MAX, 1, INT_MAX, 0}, -1);
    Model r{INT_MIN, INT_MIN, INT_MIN, 0};
    Recompute(r, INT_MIN, -1, INT_MAX, INT_MIN);
    ApplyScrollInfo(r, INT_MIN, 0, INT_MAX, 1);
    EXPECT_GE(r.pos, 0);  // a position is never negative after the owner's call
    EXPECT_EQ(PART_NONE, HitTest({0, 0, 17, 140}, INT_MIN, INT_MAX, m, 1));
}
