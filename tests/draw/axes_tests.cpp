// Value axes: the line and its head, the title ending at the tip, ticks with their labels spaced
// by three text heights and stopping short of the title, compared with the same axis drawn by
// hand with the literal coordinates it must have.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include <cstring>
#include <vector>

using kiv_skin::KivDraw;

namespace {

const COLORREF kInk = RGB(30, 160, 250);

struct Tick {
    int x, y;
    const char* label;
};

// A horizontal axis on row 100 from x 0 to 400, drawn by hand: line, head, title at the tip and
// the ticks given, in the scheme's small font.
void HorizontalByHand(Sheet& sheet, const char* title, const std::vector<Tick>& ticks)
{
    HDC hdc = sheet.dc()->m_hDC;
    SchemeFontIn font(sheet.dc(), "SMALL");
    HPEN pen = ::CreatePen(PS_SOLID, 1, kInk);
    HGDIOBJ previousPen = ::SelectObject(hdc, pen);
    COLORREF previousInk = ::SetTextColor(hdc, kInk);
    int previousMode = ::SetBkMode(hdc, TRANSPARENT);
    SIZE titleSize;
    ::GetTextExtentPoint32A(hdc, title, static_cast<int>(std::strlen(title)), &titleSize);
    ::TextOutA(hdc, 400 - titleSize.cx, 103, title, static_cast<int>(std::strlen(title)));
    ::MoveToEx(hdc, 0, 100, nullptr);
    ::LineTo(hdc, 400, 100);
    ::LineTo(hdc, 396, 96);
    ::MoveToEx(hdc, 400, 100, nullptr);
    ::LineTo(hdc, 396, 104);
    UINT previousAlign = ::SetTextAlign(hdc, TA_CENTER | TA_TOP);
    for (const Tick& t : ticks) {
        ::MoveToEx(hdc, t.x, t.y, nullptr);
        ::LineTo(hdc, t.x, t.y + 3);
        ::TextOutA(hdc, t.x, t.y + 3, t.label, static_cast<int>(std::strlen(t.label)));
    }
    ::SetTextAlign(hdc, previousAlign);
    ::SetBkMode(hdc, previousMode);
    ::SetTextColor(hdc, previousInk);
    ::SelectObject(hdc, previousPen);
    ::DeleteObject(pen);
}

void DrawHorizontal(Sheet& sheet, const char* title, float minValue, float maxValue, int ticks, int textHeight,
                    int integerLabels = 0, COLORREF colour = kInk)
{
    KivDraw::DrawAxis(sheet.dc(), 1, {0, 100}, {400, 100}, minValue, maxValue, ticks, title, colour, nullptr,
                      integerLabels, textHeight);
}

// The x of every tick mark on row 102 (the tick's last pixel, below the axis line).
std::vector<int> TickColumns(const Sheet& sheet, COLORREF colour)
{
    std::vector<int> xs;
    for (int x = 0; x < 410; ++x)
        if (sheet.At(x, 101) == colour && sheet.At(x, 102) == colour) xs.push_back(x);
    return xs;
}

}  // namespace

using TestSchemeAxes = TestScheme;

TEST_F(TestSchemeAxes, TenTicksFortyApartWithTwoDecimalLabels)
{
    Sheet sheet(420, 130), byHand(420, 130);
    DrawHorizontal(sheet, "", 0, 10, 10, 12);
    HorizontalByHand(byHand, "", {{0, 100, "0.00"}, {40, 100, "1.00"}, {80, 100, "2.00"}, {120, 100, "3.00"},
                                  {160, 100, "4.00"}, {200, 100, "5.00"}, {240, 100, "6.00"}, {280, 100, "7.00"},
                                  {320, 100, "8.00"}, {360, 100, "9.00"}});
    EXPECT_EQ((std::vector<int>{0, 40, 80, 120, 160, 200, 240, 280, 320, 360}), TickColumns(sheet, kInk));
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeAxes, TicksCloserThanThreeTextHeightsAreSkipped)
{
    Sheet sheet(420, 130), byHand(420, 130);
    DrawHorizontal(sheet, "", 0, 10, 10, 20);
    HorizontalByHand(byHand, "", {{0, 100, "0.00"}, {80, 100, "2.00"}, {160, 100, "4.00"}, {240, 100, "6.00"},
                                  {320, 100, "8.00"}});
    EXPECT_EQ((std::vector<int>{0, 80, 160, 240, 320}), TickColumns(sheet, kInk));
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeAxes, WideTitleCutsOffTheTicksNearIt)
{
    Sheet sheet(420, 130), byHand(420, 130);
    const char* title = "Price CNY";
    DrawHorizontal(sheet, title, 0, 10, 10, 12);
    SIZE titleSize;
    {
        SchemeFontIn font(sheet.dc(), "SMALL");
        ::GetTextExtentPoint32A(sheet.dc()->m_hDC, title, 9, &titleSize);
    }
    ASSERT_GT(titleSize.cx, 31) << "the title must reach past the tick at 360";
    ASSERT_LT(titleSize.cx, 70);
    std::vector<Tick> ticks;
    static const char* labels[] = {"0.00", "1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00", "8.00", "9.00"};
    for (int i = 0; i < 10 && 40 * i <= 400 - titleSize.cx - 10; ++i) ticks.push_back({40 * i, 100, labels[i]});
    HorizontalByHand(byHand, title, ticks);
    EXPECT_EQ(ticks.size(), TickColumns(sheet, kInk).size());
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeAxes, TicksStopTenUnitsShortOfTheTitle)
{
    // A tick every 3 units (value per unit, gap of 3 for a text height of 1) finds the boundary.
    Sheet sheet(420, 130);
    const char* title = "Volume";
    KivDraw::DrawAxis(sheet.dc(), 1, {0, 100}, {400, 100}, 0, 400, 400, title, kInk, nullptr, 1, 1);
    SIZE titleSize;
    {
        SchemeFontIn font(sheet.dc(), "SMALL");
        ::GetTextExtentPoint32A(sheet.dc()->m_hDC, title, 6, &titleSize);
    }
    std::vector<int> xs = TickColumns(sheet, kInk);
    ASSERT_FALSE(xs.empty());
    int limit = 400 - titleSize.cx - 10;
    EXPECT_LE(xs.back(), limit);
    EXPECT_GT(xs.back(), limit - 3);
}

TEST_F(TestSchemeAxes, EqualBoundsSpreadTheTicksOverAHundredth)
{
    Sheet sheet(420, 130);
    DrawHorizontal(sheet, "", 5, 5, 4, 12);
    std::vector<int> xs = TickColumns(sheet, kInk);
    ASSERT_EQ(4u, xs.size()) << "the range becomes 0.01, not zero";
    EXPECT_EQ(0, xs[0]);
    for (size_t i = 1; i < xs.size(); ++i) EXPECT_NEAR(100 * static_cast<int>(i), xs[i], 1);
}

TEST_F(TestSchemeAxes, WholeLabelsThatTruncateToOnePlaceDrawOneTick)
{
    Sheet sheet(420, 130), byHand(420, 130);
    DrawHorizontal(sheet, "", 0, 1, 4, 12, 1);
    HorizontalByHand(byHand, "", {{0, 100, "0"}});
    EXPECT_EQ((std::vector<int>{0}), TickColumns(sheet, kInk));
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeAxes, NoColourMeansTheSchemeAxisColour)
{
    Sheet sheet(420, 130);
    DrawHorizontal(sheet, "", 0, 10, 2, 12, 0, kNoColor);
    EXPECT_EQ(scheme::kAxis, sheet.At(10, 100));
    EXPECT_EQ(2u, TickColumns(sheet, scheme::kAxis).size());
}

TEST_F(TestSchemeAxes, VerticalAxisHasItsHeadAndRightAlignedLabelsToTheLeft)
{
    Sheet sheet(120, 320);
    KivDraw::DrawAxis(sheet.dc(), 0, {80, 300}, {80, 20}, 0, 100, 4, "", kInk, nullptr, 1, 12);
    EXPECT_EQ(kInk, sheet.At(80, 150)) << "the line";
    EXPECT_EQ(kInk, sheet.At(77, 23)) << "the head's left stroke";
    EXPECT_EQ(kInk, sheet.At(83, 23)) << "the head's right stroke";
    for (int y : {300, 230, 160, 90}) {
        EXPECT_EQ(kInk, sheet.At(78, y)) << "tick at " << y;
        EXPECT_GT(sheet.Count(kInk, {40, y - 14, 77, y}), 0) << "label left of and above the tick at " << y;
    }
    EXPECT_EQ(0, sheet.Count(kInk, {81, 30, 120, 320})) << "nothing right of the axis below its head";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeAxes, LabelsAreClippedToTheClipRectangle)
{
    Sheet sheet(420, 130);
    CRect clip(0, 0, 100, 130);
    KivDraw::DrawAxis(sheet.dc(), 1, {0, 100}, {400, 100}, 0, 10, 10, "", kInk, &clip, 0, 12);
    EXPECT_GT(sheet.Count(kInk, {0, 104, 100, 130}), 0);
    EXPECT_EQ(0, sheet.Count(kInk, {100, 104, 420, 130})) << "labels beyond the clip rectangle";
    EXPECT_EQ(kInk, sheet.At(200, 101)) << "tick marks are not clipped";
}
