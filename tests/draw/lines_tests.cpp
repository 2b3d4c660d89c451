// Dotted and textured lines: one unit wide, showing the scheme's 8 x 8 pattern bitmaps aligned to
// the context's origin, and nothing when the scheme lacks them.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "support/bitmap_files.h"

using kiv_skin::KivDraw;

namespace {

PixelGrid SchemePattern(const char* key)
{
    const CBitmap* bitmap = kiv_skin::KivStyleMgr::GetInstance()->GetBitmap(key);
    return bitmap ? BitmapPixels(*bitmap) : PixelGrid();
}

// Every pixel of the line from (x, y) stepping by (dx, dy), n long, shows the pattern.
void ExpectPattern(const Sheet& sheet, const PixelGrid& pattern, int x, int y, int dx, int dy, int n)
{
    for (int i = 0; i < n; ++i, x += dx, y += dy)
        EXPECT_EQ(pattern.At(x % 8, y % 8), sheet.At(x, y)) << "at " << x << ", " << y;
}

}  // namespace

using TestSchemeLines = TestScheme;

TEST_F(TestSchemeLines, PatternsAreTwoColoursSoAWrongPhaseShows)
{
    for (const char* key : {"KIV_DOT", "KIV_FRAME"}) {
        PixelGrid pattern = SchemePattern(key);
        ASSERT_EQ(8, pattern.width) << key;
        int first = 0;
        for (int x = 0; x < 8; ++x) first += pattern.At(x, 0) == pattern.At(0, 0) ? 1 : 0;
        EXPECT_LT(first, 8) << key << ": row 0 holds more than one colour";
    }
}

TEST_F(TestSchemeLines, VerticalDotLineShowsThePatternInOneColumn)
{
    Sheet sheet(12, 14);
    KivDraw draw;
    draw.VertDotLine(sheet.dc(), 3, 2, 11);
    ExpectPattern(sheet, SchemePattern("KIV_DOT"), 3, 2, 0, 1, 9);
    EXPECT_EQ(kSentinel, sheet.At(3, 11)) << "ends before y2";
    EXPECT_EQ(kSentinel, sheet.At(3, 1));
    EXPECT_EQ(14, sheet.Count(kSentinel, {2, 0, 3, 14}));
    EXPECT_EQ(14, sheet.Count(kSentinel, {4, 0, 5, 14}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeLines, HorizontalDotLineShowsThePatternInOneRow)
{
    Sheet sheet(14, 8);
    KivDraw draw;
    draw.HoriDotLine(sheet.dc(), 1, 12, 5);
    ExpectPattern(sheet, SchemePattern("KIV_DOT"), 1, 5, 1, 0, 11);
    EXPECT_EQ(kSentinel, sheet.At(12, 5));
    EXPECT_EQ(14, sheet.Count(kSentinel, {0, 4, 14, 5}));
    EXPECT_EQ(14, sheet.Count(kSentinel, {0, 6, 14, 7}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeLines, FrameLinesShowTheFramePattern)
{
    Sheet sheet(20, 20);
    KivDraw draw;
    draw.VertFrameLine(sheet.dc(), 9, 0, 20);
    draw.HoriFrameLine(sheet.dc(), 0, 9, 13);
    PixelGrid pattern = SchemePattern("KIV_FRAME");
    ExpectPattern(sheet, pattern, 9, 0, 0, 1, 20);
    ExpectPattern(sheet, pattern, 0, 13, 1, 0, 9);
    EXPECT_EQ(20 * 20 - 20 - 9, sheet.Count(kSentinel, {0, 0, 20, 20}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeLines, ObjectKeepsTheSchemeItWasMadeWith)
{
    KivDraw draw;  // made on the test scheme's patterns
    PixelGrid pattern = SchemePattern("KIV_DOT");
    UseScheme("bare");
    Sheet sheet(4, 10);
    draw.VertDotLine(sheet.dc(), 1, 0, 10);
    ExpectPattern(sheet, pattern, 1, 0, 0, 1, 10);
    KivDraw fresh;
    fresh.VertDotLine(sheet.dc(), 2, 0, 10);
    EXPECT_EQ(10, sheet.Count(kSentinel, {2, 0, 3, 10})) << "a scheme without patterns draws no line";
    UseScheme("test");
}

TEST_F(BareScheme, LinesWithoutPatternBitmapsDrawNothing)
{
    Sheet sheet(10, 10);
    KivDraw draw;
    draw.VertDotLine(sheet.dc(), 1, 0, 10);
    draw.HoriDotLine(sheet.dc(), 0, 10, 2);
    draw.VertFrameLine(sheet.dc(), 3, 0, 10);
    draw.HoriFrameLine(sheet.dc(), 0, 10, 4);
    EXPECT_EQ(100, sheet.Count(kSentinel, {0, 0, 10, 10}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST(NoStyleLines, LinesWithoutStyleDataDrawNothing)
{
    Sheet sheet(10, 10);
    KivDraw draw;
    draw.VertDotLine(sheet.dc(), 1, 0, 10);
    draw.HoriFrameLine(sheet.dc(), 0, 10, 4);
    EXPECT_EQ(100, sheet.Count(kSentinel, {0, 0, 10, 10}));
}
