// Marks of the "KIV_MARK" strip at scales 1, 2 and 3, framed or not, black when printing, and a
// scheme without the strip; the triangle arrow button.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "support/bitmap_files.h"

using kiv_skin::KivDraw;

namespace {

const COLORREF kInk = RGB(240, 40, 20);

// Whether the strip's mask marks (i, j) of a mark as ink.
class MarkStrip {
public:
    MarkStrip() : m_pixels(BitmapPixels(*kiv_skin::KivStyleMgr::GetInstance()->GetBitmap("KIV_MARK"))) {}
    bool Ink(int mark, int i, int j) const { return m_pixels.At(24 * mark + i, j) == RGB(0, 0, 0); }

private:
    PixelGrid m_pixels;
};

// Each mask pixel of the mark shows as a scale by scale block at origin: ink or the sentinel.
void ExpectMark(const Sheet& sheet, int mark, int scale, POINT origin)
{
    MarkStrip strip;
    int inked = 0;
    for (int j = 0; j < 12 * scale; ++j)
        for (int i = 0; i < 12 * scale; ++i) {
            bool ink = strip.Ink(mark, i / scale, j / scale);
            inked += ink ? 1 : 0;
            ASSERT_EQ(ink ? kInk : kSentinel, sheet.At(origin.x + i, origin.y + j)) << i << ", " << j;
        }
    EXPECT_GT(inked, 4 * scale * scale) << "the mark has ink";
}

}  // namespace

using TestSchemeMarks = TestScheme;

TEST_F(TestSchemeMarks, MarkAtScaleOneSitsFiveUnitsUpAndLeft)
{
    Sheet sheet(40, 40);
    KivDraw draw;
    draw.DrawArrow(sheet.dc(), 20, 20, 3, kInk, 0, 1, false);
    ExpectMark(sheet, 3, 1, {15, 15});
    EXPECT_EQ(40 * 40 - sheet.Count(kInk, {15, 15, 27, 27}), sheet.Count(kSentinel, {0, 0, 40, 40}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeMarks, ScaledMarksAreEnlargedBlockByBlock)
{
    for (int scale : {2, 3}) {
        Sheet sheet(80, 80);
        KivDraw draw;
        draw.DrawArrow(sheet.dc(), 40, 40, 2, kInk, 0, scale, false);
        ExpectMark(sheet, 2, scale, {40 - 5 * scale, 40 - 5 * scale});
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

namespace {

// The pixels a frame adds to a mark at (20, 20) lie exactly on the border of frame.
void ExpectFrameBorder(int mark, int scale, const CRect& frame)
{
    Sheet plain(60, 60), framed(60, 60);
    KivDraw draw;
    draw.DrawArrow(plain.dc(), 20, 20, mark, kInk, 0, scale, false);
    draw.DrawArrow(framed.dc(), 20, 20, mark, kInk, 1, scale, false);
    int changed = 0;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x) {
            if (plain.At(x, y) == framed.At(x, y)) continue;
            ++changed;
            bool border = (x == frame.left || x == frame.right - 1 || y == frame.top || y == frame.bottom - 1) &&
                          frame.PtInRect(CPoint(x, y));
            EXPECT_TRUE(border) << "mark " << mark << " scale " << scale << ": " << x << ", " << y;
        }
    EXPECT_EQ(2 * frame.Width() + 2 * frame.Height() - 4, changed) << "mark " << mark << " scale " << scale;
}

}  // namespace

TEST_F(TestSchemeMarks, FramedMarksAreFramedWithTheFramePattern)
{
    ExpectFrameBorder(3, 1, CRect(14, 15, 27, 28));  // from (x - 6, y - 5), 13 across
    ExpectFrameBorder(9, 1, CRect(17, 15, 24, 22));  // the small mark: from (x - 3, y - 5), 7 across
    ExpectFrameBorder(3, 2, CRect(10, 10, 36, 36));  // scaled: from the cell's origin, 26 across
}

TEST_F(TestSchemeMarks, PrintingAskedForBlackDrawsBlack)
{
    Sheet sheet(40, 40);
    sheet.dc()->m_bPrinting = TRUE;
    KivDraw draw;
    draw.DrawArrow(sheet.dc(), 20, 20, 3, kInk, 0, 1, true);
    EXPECT_EQ(0, sheet.Count(kInk, {0, 0, 40, 40}));
    EXPECT_GT(sheet.Count(RGB(0, 0, 0), {15, 15, 27, 27}), 4);
    draw.DrawArrow(sheet.dc(), 20, 20, 3, kInk, 0, 1, false);
    EXPECT_GT(sheet.Count(kInk, {15, 15, 27, 27}), 4) << "printing alone keeps the colour";
    sheet.dc()->m_bPrinting = FALSE;
}

TEST_F(BareScheme, MarkWithoutStripDrawsNothingAndLeavesTheTextColourBlack)
{
    Sheet sheet(40, 40);
    ::SetTextColor(sheet.dc()->m_hDC, RGB(1, 2, 3));
    KivDraw draw;
    draw.DrawArrow(sheet.dc(), 20, 20, 3, kInk, 1, 2, false);
    EXPECT_EQ(40 * 40, sheet.Count(kSentinel, {0, 0, 40, 40}));
    EXPECT_EQ(RGB(0, 0, 0), sheet.dc()->GetTextColor()) << "kept as the host has always seen it";
}

TEST_F(TestSchemeMarks, ArrowButtonSquaresItsRectAndFillsTheMiddleThird)
{
    Sheet sheet(40, 40);
    KivDraw draw;
    CRect rect(5, 5, 35, 35);
    draw.DrawArrowButton(sheet.dc(), &rect, kInk, kNoColor, 3, 0);
    // Shrunk by 9 on each side: (14, 14) to (26, 26), pointing up.
    EXPECT_EQ(kInk, sheet.At(20, 15)) << "near the tip";
    EXPECT_EQ(kInk, sheet.At(15, 25)) << "the base's left end";
    EXPECT_EQ(kInk, sheet.At(25, 25)) << "the base's right end";
    EXPECT_EQ(kSentinel, sheet.At(15, 15)) << "beside the tip";
    EXPECT_GT(sheet.Count(kInk, {0, 14, 40, 15}), 0) << "the tip's row is 14";
    EXPECT_GT(sheet.Count(kInk, {14, 0, 15, 40}), 0) << "the base's left end is on column 14";
    EXPECT_GT(sheet.Count(kInk, {26, 0, 27, 40}), 0) << "and its right end on column 26";
    EXPECT_EQ(0, sheet.Count(kInk, {0, 0, 40, 14}) + sheet.Count(kInk, {0, 27, 40, 40}) +
                     sheet.Count(kInk, {0, 0, 14, 40}) + sheet.Count(kInk, {27, 0, 40, 40}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeMarks, ArrowButtonDirectionsPointWhereTheySay)
{
    KivDraw draw;
    CRect rect(0, 0, 30, 30);  // the triangle lies in (9, 9) to (21, 21)
    struct Case { int direction; POINT tip, back, beside; } cases[] = {
        {0, {10, 15}, {20, 10}, {10, 10}}, {1, {20, 15}, {10, 10}, {20, 10}},
        {2, {15, 20}, {10, 10}, {10, 20}}, {3, {15, 10}, {10, 20}, {10, 10}}};
    for (const Case& c : cases) {
        Sheet sheet(30, 30);
        draw.DrawArrowButton(sheet.dc(), &rect, kInk, kNoColor, c.direction, 0);
        EXPECT_EQ(kInk, sheet.At(c.tip.x, c.tip.y)) << "direction " << c.direction;
        EXPECT_EQ(kInk, sheet.At(c.back.x, c.back.y)) << "direction " << c.direction;
        EXPECT_EQ(kSentinel, sheet.At(c.beside.x, c.beside.y)) << "direction " << c.direction;
    }
}

TEST_F(TestSchemeMarks, ArrowButtonBackgroundIsOutlinedInTheArrowColour)
{
    Sheet sheet(40, 30);
    KivDraw draw;
    CRect rect(0, 0, 40, 30);
    draw.DrawArrowButton(sheet.dc(), &rect, kInk, scheme::kPlugBackground, 1, 1);
    EXPECT_EQ(40, sheet.Count(kInk, {0, 0, 40, 1})) << "the outline";
    EXPECT_EQ(scheme::kPlugBackground, sheet.At(3, 3));
    // keepShape: the 40 x 30 rect shrinks by 12 and 9: (12, 9) to (28, 21), pointing right.
    EXPECT_EQ(kInk, sheet.At(27, 15));
    EXPECT_EQ(kInk, sheet.At(13, 10));
    EXPECT_EQ(scheme::kPlugBackground, sheet.At(11, 15));
    EXPECT_TRUE(sheet.check.Unchanged());
}
