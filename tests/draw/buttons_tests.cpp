// Icon buttons of the "KIV_TOOL" strip: placement, the copied height, the three state
// backgrounds, transparent drawing, frames, and a scheme without the strip.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "support/bitmap_files.h"

using kiv_skin::KivDraw;

namespace {

const int kImage = 2;

// Whether the strip's mask marks (x, y) of icon image as ink (black in the mask column).
class ToolStrip {
public:
    ToolStrip() : m_pixels(BitmapPixels(*kiv_skin::KivStyleMgr::GetInstance()->GetBitmap("KIV_TOOL"))) {}
    bool Ink(int image, int x, int y) const { return m_pixels.At(32 * image + x, y) == RGB(0, 0, 0); }
    int InkCount(int image) const
    {
        int n = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) n += Ink(image, x, y) ? 1 : 0;
        return n;
    }

private:
    PixelGrid m_pixels;
};

// The 16-column icon at (left, top), rows first to last, shows ink or background pixel by pixel.
void ExpectIcon(const Sheet& sheet, const ToolStrip& strip, int left, int top, int rows,
                COLORREF ink, COLORREF background)
{
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < 16; ++x)
            ASSERT_EQ(strip.Ink(kImage, x, y) ? ink : background, sheet.At(left + x, top + y))
                << "icon pixel " << x << ", " << y;
}

}  // namespace

using TestSchemeButtons = TestScheme;

TEST_F(TestSchemeButtons, StripHasInkAndGroundInTheIconTested)
{
    ToolStrip strip;
    EXPECT_GT(strip.InkCount(kImage), 10);
    EXPECT_LT(strip.InkCount(kImage), 200);
}

TEST_F(TestSchemeButtons, IconIsCentredInALargerRectOnTheStateBackground)
{
    Sheet sheet(30, 30, Caller::Fresh);  // a caller in GDI's defaults exists too
    CRect rect(3, 3, 27, 27);  // 24 x 24
    KivDraw draw;
    draw.DrawButton(sheet.dc(), &rect, KivDraw::BUTTON_NORMAL, kImage, 0, 0);
    ToolStrip strip;
    ExpectIcon(sheet, strip, 7, 7, 16, scheme::kButtonInk, scheme::kButtonNormal);
    // Around the icon: the background, including the rows below the strip's 16 that the copy of
    // the whole 24-row height reaches into.
    EXPECT_EQ(24 * 4, sheet.Count(scheme::kButtonNormal, {3, 3, 27, 7}));
    EXPECT_EQ(24 * 4, sheet.Count(scheme::kButtonNormal, {3, 23, 27, 27}));
    EXPECT_EQ(16 * 4, sheet.Count(scheme::kButtonNormal, {3, 7, 7, 23}));
    EXPECT_EQ(30 * 30 - 24 * 24, sheet.Count(kSentinel, {0, 0, 30, 30}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeButtons, HoverAndPressedUseTheirBackgrounds)
{
    ToolStrip strip;
    KivDraw draw;
    for (auto state : {KivDraw::BUTTON_HOVER, KivDraw::BUTTON_PRESSED}) {
        Sheet sheet(20, 20);
        CRect rect(0, 0, 20, 20);
        draw.DrawButton(sheet.dc(), &rect, state, kImage, 0, 0);
        COLORREF background = KivDraw::GetButtonBackgroundColor(state);
        ExpectIcon(sheet, strip, 2, 2, 16, scheme::kButtonInk, background);
        EXPECT_EQ(20 * 20 - strip.InkCount(kImage), sheet.Count(background, rect));
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(TestSchemeButtons, SmallRectTakesTheIconFromItsCorner)
{
    Sheet sheet(20, 20);
    CRect rect(5, 6, 17, 14);  // 12 x 8: no centring, 12 columns and 8 rows copied
    KivDraw draw;
    draw.DrawButton(sheet.dc(), &rect, KivDraw::BUTTON_NORMAL, kImage, 0, 0);
    ToolStrip strip;
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 12; ++x)
            ASSERT_EQ(strip.Ink(kImage, x, y) ? scheme::kButtonInk : scheme::kButtonNormal,
                      sheet.At(5 + x, 6 + y));
    EXPECT_EQ(20 * 20 - 12 * 8, sheet.Count(kSentinel, {0, 0, 20, 20}));
}

TEST_F(TestSchemeButtons, TransparentButtonKeepsWhatIsBehindTheIcon)
{
    Sheet sheet(24, 24);
    CRect rect(0, 0, 24, 24);
    KivDraw draw;
    draw.DrawButton(sheet.dc(), &rect, KivDraw::BUTTON_PRESSED, kImage, 1, 0);
    ToolStrip strip;
    ExpectIcon(sheet, strip, 4, 4, 16, scheme::kButtonInk, kSentinel);
    EXPECT_EQ(24 * 24 - strip.InkCount(kImage), sheet.Count(kSentinel, rect));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeButtons, FramedButtonOutlinesTheWholeRect)
{
    Sheet sheet(26, 26);
    CRect rect(1, 1, 25, 25);
    KivDraw draw;
    draw.DrawButton(sheet.dc(), &rect, KivDraw::BUTTON_HOVER, kImage, 0, 1);
    EXPECT_EQ(24, sheet.Count(scheme::kPlugFrame, {1, 1, 25, 2}));
    EXPECT_EQ(24, sheet.Count(scheme::kPlugFrame, {1, 24, 25, 25}));
    EXPECT_EQ(24, sheet.Count(scheme::kPlugFrame, {1, 1, 2, 25}));
    EXPECT_EQ(24, sheet.Count(scheme::kPlugFrame, {24, 1, 25, 25}));
    EXPECT_EQ(22 * 22 - ToolStrip().InkCount(kImage), sheet.Count(scheme::kButtonHover, {2, 2, 24, 24}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

// Nothing is made for a null context: no GDI object lives on, the rect is untouched, and the
// same object then draws a button as a fresh one does.
TEST_F(TestSchemeButtons, NullContextDrawsNothing)
{
    KivDraw draw;
    CRect rect(1, 1, 25, 25);
    int before = GdiProbeSlot();
    draw.DrawButton(nullptr, &rect, KivDraw::BUTTON_NORMAL, kImage, 0, 1);
    EXPECT_EQ(before, GdiProbeSlot());
    EXPECT_EQ(CRect(1, 1, 25, 25), rect);
    Sheet after(26, 26), fresh(26, 26);
    draw.DrawButton(after.dc(), &rect, KivDraw::BUTTON_NORMAL, kImage, 0, 1);
    KivDraw().DrawButton(fresh.dc(), &rect, KivDraw::BUTTON_NORMAL, kImage, 0, 1);
    EXPECT_EQ(24, after.Count(scheme::kPlugFrame, {1, 1, 25, 2}));
    EXPECT_TRUE(SamePixels(after, fresh));
}

TEST_F(TestSchemeButtons, BackgroundFillLeavesTheBackgroundColourSet)
{
    Sheet sheet(10, 10);
    CRect rect(2, 2, 8, 8);
    KivDraw draw;
    draw.DrawButtonBackground(sheet.dc(), &rect, KivDraw::BUTTON_PRESSED);
    EXPECT_EQ(36, sheet.Count(scheme::kButtonPressed, {0, 0, 10, 10}));
    EXPECT_EQ(36, sheet.Count(scheme::kButtonPressed, rect));
    // As the framework's FillSolidRect does; everything else is as it was.
    EXPECT_EQ(scheme::kButtonPressed, sheet.dc()->GetBkColor());
    ::SetBkColor(sheet.dc()->m_hDC, BusyDc::kPaper);  // the caller's own
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(BareScheme, ButtonWithoutStripIsBackgroundOnlyWithoutFrame)
{
    Sheet sheet(22, 22);
    CRect rect(1, 1, 21, 21);
    KivDraw draw;
    draw.DrawButton(sheet.dc(), &rect, KivDraw::BUTTON_NORMAL, kImage, 0, 1);
    EXPECT_EQ(20 * 20, sheet.Count(scheme::kButtonNormal, rect));
    draw.DrawButton(sheet.dc(), &rect, KivDraw::BUTTON_HOVER, kImage, 1, 1);
    EXPECT_EQ(20 * 20, sheet.Count(scheme::kButtonNormal, rect)) << "transparent: nothing at all";
    EXPECT_TRUE(sheet.check.Unchanged());
}
