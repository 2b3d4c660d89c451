// Fills, outlines, grooved title strips, rounded rectangles, and the panel's frame and selection,
// checked pixel by pixel on a sentinel-filled canvas.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"

using kiv_skin::KivDraw;

namespace {

const COLORREF kInk = RGB(10, 200, 30);

// A pen of kInk selected into the sheet's DC for the length of a test.
class InkPen {
public:
    explicit InkPen(CDC* dc) : m_dc(dc), m_pen(PS_SOLID, 1, kInk), m_previous(dc->SelectObject(&m_pen)) {}
    ~InkPen() { m_dc->SelectObject(m_previous); }

private:
    CDC* m_dc;
    CPen m_pen;
    CPen* m_previous;
};

// Pixels of colour on the outline of left, top, right, bottom (all four inclusive).
int OutlineCount(const Sheet& sheet, COLORREF colour, int left, int top, int right, int bottom)
{
    return sheet.Count(colour, {left, top, right + 1, top + 1}) +
           sheet.Count(colour, {left, bottom, right + 1, bottom + 1}) +
           sheet.Count(colour, {left, top + 1, left + 1, bottom}) +
           sheet.Count(colour, {right, top + 1, right + 1, bottom});
}

}  // namespace

using TestSchemeShapes = TestScheme;

TEST_F(TestSchemeShapes, FillPaintsTheColourWithExclusiveRightAndBottom)
{
    Sheet sheet(10, 10, Caller::Fresh);  // a caller in GDI's defaults exists too
    KivDraw::FillRect(sheet.dc(), 2, 3, 4, 5, kInk);
    EXPECT_EQ(20, sheet.Count(kInk, {0, 0, 10, 10}));
    EXPECT_EQ(20, sheet.Count(kInk, {2, 3, 6, 8}));
    EXPECT_EQ(kSentinel, sheet.At(6, 3));
    EXPECT_EQ(kSentinel, sheet.At(2, 8));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeShapes, FillWithNoColourUsesTheSchemeBackgroundAndZeroIsBlack)
{
    Sheet sheet(10, 10);
    CRect left(0, 0, 5, 10), right(5, 0, 10, 10);
    KivDraw::FillRect(sheet.dc(), &left, kNoColor);
    KivDraw::FillRect(sheet.dc(), &right, 0);
    EXPECT_EQ(50, sheet.Count(scheme::kBackground, left));
    EXPECT_EQ(50, sheet.Count(RGB(0, 0, 0), right));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeShapes, RectangleLineIncludesRightAndBottomWithTheSelectedPen)
{
    Sheet sheet(12, 12);
    CRect rect(2, 2, 8, 7);
    {
        InkPen pen(sheet.dc());
        DcStateCheck check(sheet.dc());
        KivDraw::RectangleLine(sheet.dc(), &rect);
        EXPECT_TRUE(check.Unchanged());
    }
    EXPECT_EQ(2 * 7 + 2 * 4, OutlineCount(sheet, kInk, 2, 2, 8, 7));
    EXPECT_EQ(22, sheet.Count(kInk, {0, 0, 12, 12})) << "nothing inside or outside the outline";
    EXPECT_EQ(kInk, sheet.At(8, 7));
}

TEST_F(TestSchemeShapes, TitleLineGroovesEveryThirdRow)
{
    Sheet sheet(10, 8);
    CRect rect(1, 0, 9, 6);
    KivDraw::DrawTitleLine(sheet.dc(), &rect, kInk);
    COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    for (int row : {2, 5}) EXPECT_EQ(8, sheet.Count(kInk, {1, row, 9, row + 1})) << "row " << row;
    for (int row : {1, 4}) EXPECT_EQ(8, sheet.Count(light, {1, row, 9, row + 1})) << "row " << row;
    for (int row : {0, 3, 6, 7}) EXPECT_EQ(10, sheet.Count(kSentinel, {0, row, 10, row + 1})) << "row " << row;
    EXPECT_EQ(kSentinel, sheet.At(0, 2));
    EXPECT_EQ(kSentinel, sheet.At(9, 2)) << "the line stops before right";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeShapes, RoundRectFillsAndOutlinesInOneColourWithRoundCorners)
{
    Sheet sheet(24, 24);
    CRect rect(2, 2, 22, 22);
    KivDraw::FillRoundRect(sheet.dc(), &rect, CPoint(10, 10), kInk);
    EXPECT_EQ(kInk, sheet.At(12, 12));
    EXPECT_EQ(kInk, sheet.At(12, 2)) << "the top edge's middle";
    EXPECT_EQ(kInk, sheet.At(2, 12)) << "the left edge's middle";
    EXPECT_EQ(kSentinel, sheet.At(2, 2)) << "the corner is rounded off";
    EXPECT_EQ(kSentinel, sheet.At(21, 21));
    EXPECT_EQ(kSentinel, sheet.At(22, 12));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeShapes, SelectionOfWidthZeroIsAOneUnitDottedFrame)
{
    Sheet sheet(24, 24);
    ::SetBkMode(sheet.dc()->m_hDC, TRANSPARENT);
    DcStateCheck check(sheet.dc());
    CRect rect(2, 2, 22, 20);
    EXPECT_EQ(1, KivDraw::DrawPluginSelect(sheet.dc(), &rect, 0, PS_DOT, kInk));
    int onTop = sheet.Count(kInk, {2, 2, 22, 3});
    EXPECT_GT(onTop, 4);
    EXPECT_LT(onTop, 20) << "dotted, not solid";
    EXPECT_EQ(0, sheet.Count(kInk, {3, 3, 21, 4})) << "one unit thick";
    EXPECT_GT(sheet.Count(kInk, {21, 2, 22, 20}), 4) << "the right side lies on right - 1";
    EXPECT_EQ(0, sheet.Count(kInk, {22, 0, 24, 24}));
    EXPECT_GT(sheet.Count(kInk, {2, 19, 22, 20}), 4) << "the bottom lies on bottom - 1";
    EXPECT_EQ(0, sheet.Count(kInk, {3, 3, 21, 19})) << "nothing inside";
    EXPECT_TRUE(check.Unchanged());
}

TEST_F(TestSchemeShapes, SelectionTwoOrMoreWideIsSolidWhateverTheStyle)
{
    Sheet sheet(30, 30);
    CRect rect(5, 5, 25, 25);
    EXPECT_EQ(3, KivDraw::DrawPluginSelect(sheet.dc(), &rect, 3, PS_DOT, kInk));
    EXPECT_EQ(kInk, sheet.At(15, 4));
    EXPECT_EQ(kInk, sheet.At(15, 5));
    EXPECT_EQ(kInk, sheet.At(15, 6));
    EXPECT_EQ(kSentinel, sheet.At(15, 7)) << "three units thick, centred on the line";
    EXPECT_EQ(20 + 2, sheet.Count(kInk, {4, 5, 26, 6})) << "solid along the top";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeShapes, SelectionStyleMinusOneIsSolid)
{
    Sheet sheet(24, 24);
    CRect rect(2, 2, 22, 22);
    EXPECT_EQ(1, KivDraw::DrawPluginSelect(sheet.dc(), &rect, 1, -1, kInk));
    EXPECT_EQ(20, sheet.Count(kInk, {2, 2, 22, 3}));
}

TEST_F(TestSchemeShapes, SelectionColourZeroIsTheSchemeSelectionColour)
{
    Sheet sheet(24, 24);
    CRect rect(2, 2, 22, 22);
    EXPECT_EQ(1, KivDraw::DrawPluginSelect(sheet.dc(), &rect, 0, PS_SOLID, 0));
    EXPECT_EQ(20, sheet.Count(scheme::kPlugSelect, {2, 2, 22, 3}));
    EXPECT_EQ(0, sheet.Count(RGB(0, 0, 0), {0, 0, 24, 24}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeShapes, NullContextAnswersMinusOne)
{
    CRect rect(0, 0, 5, 5);
    EXPECT_EQ(-1, KivDraw::DrawPluginSelect(nullptr, &rect, 1, 0, kInk));
    EXPECT_EQ(-1, KivDraw::DrawPluginFrame(nullptr, &rect));
}

TEST_F(TestSchemeShapes, PanelFrameFillsTheBackgroundAndOutlinesInside)
{
    Sheet sheet(24, 24);
    CRect rect(2, 2, 20, 18);
    EXPECT_EQ(1, KivDraw::DrawPluginFrame(sheet.dc(), &rect));
    EXPECT_EQ(2 * 18 + 2 * 14, OutlineCount(sheet, scheme::kPlugFrame, 2, 2, 19, 17));
    EXPECT_EQ(16 * 14, sheet.Count(scheme::kPlugBackground, {3, 3, 19, 17}));
    EXPECT_EQ(24 * 24 - 18 * 16, sheet.Count(kSentinel, {0, 0, 24, 24})) << "nothing outside rect";
    // Filling a solid rectangle leaves the background colour set to the fill, as the framework's
    // FillSolidRect does; everything else is as it was.
    EXPECT_EQ(scheme::kPlugBackground, sheet.dc()->GetBkColor());
    ::SetBkColor(sheet.dc()->m_hDC, BusyDc::kPaper);  // the caller's own
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST(NoStyleShapes, MissingColoursReachThePensAndBrushesAsTheyStand)
{
    // What GDI makes of 0xFFFFFFFF, drawn by hand on a second canvas.
    Sheet expected(12, 12);
    HBRUSH brush = ::CreateSolidBrush(kNoColor);
    RECT all = {0, 0, 6, 12};
    ::FillRect(expected.dc()->m_hDC, &all, brush);
    ::DeleteObject(brush);

    Sheet sheet(12, 12);
    KivDraw::FillRect(sheet.dc(), 0, 0, 6, 12, kNoColor);
    EXPECT_EQ(expected.At(3, 3), sheet.At(3, 3));
    EXPECT_EQ(kSentinel, sheet.At(6, 3));
    CRect rect(0, 0, 12, 12);
    EXPECT_EQ(1, KivDraw::DrawPluginFrame(sheet.dc(), &rect));
    EXPECT_EQ(-1, KivDraw::DrawPluginSelect(nullptr, &rect, 0, 0, 0));
    EXPECT_EQ(1, KivDraw::DrawPluginSelect(sheet.dc(), &rect, 0, 0, 0));
    ::SetBkColor(sheet.dc()->m_hDC, BusyDc::kPaper);  // the caller's own
    EXPECT_TRUE(sheet.check.Unchanged());
}
