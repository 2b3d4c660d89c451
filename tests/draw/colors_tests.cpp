// Colour arithmetic: mixes through the context's nearest colours, lit strips painted pixel by
// pixel, the dark-background boundary and the button backgrounds of each state.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"

using kiv_skin::KivDraw;

namespace {

// A context that can show black and white only.
class MonochromeDC {
public:
    MonochromeDC() : m_bitmap(::CreateBitmap(8, 8, 1, 1, nullptr))
    {
        m_dc.Attach(::CreateCompatibleDC(nullptr));
        m_previous = ::SelectObject(m_dc, m_bitmap);
    }
    ~MonochromeDC()
    {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
    }
    CDC* dc() { return &m_dc; }

private:
    CDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous = nullptr;
};

}  // namespace

using TestSchemeColors = TestScheme;

TEST_F(TestSchemeColors, MixWeighsTheFirstColourByPercent)
{
    Sheet sheet(1, 1);
    EXPECT_EQ(0x00123456u, KivDraw::MakeMixColor(sheet.dc(), 0x123456, 0xABCDEF, 100));
    EXPECT_EQ(0x00ABCDEFu, KivDraw::MakeMixColor(sheet.dc(), 0x123456, 0xABCDEF, 0));
    EXPECT_EQ(0x007F7F7Fu, KivDraw::MakeMixColor(sheet.dc(), 0x000000, 0xFFFFFF, 50));
    // red (0x10 * 25 + 0x40 * 75) / 100 = 52, green (0x20 * 25 + 0x50 * 75) / 100 = 68,
    // blue (0x30 * 25 + 0x60 * 75) / 100 = 84
    EXPECT_EQ(0x00544434u, KivDraw::MakeMixColor(sheet.dc(), 0x302010, 0x605040, 25));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeColors, MixOutsideTheRangeKeepsTheLowEightBits)
{
    Sheet sheet(1, 1);
    // 255 * 150 / 100 = 382, cut to 126
    EXPECT_EQ(0x007E7E7Eu, KivDraw::MakeMixColor(sheet.dc(), 0xFFFFFF, 0x000000, 150));
    // 255 * -20 / 100 = -51, cut to 205; the second colour's channels are 0
    EXPECT_EQ(0x00CDCDCDu, KivDraw::MakeMixColor(sheet.dc(), 0xFFFFFF, 0x000000, -20));
    // 0 * 120 / 100 + 200 * (100 - 120) / 100 = -40, cut to 216 (red only)
    EXPECT_EQ(0x000000D8u, KivDraw::MakeMixColor(sheet.dc(), 0x000000, 0x0000C8, 120));
}

TEST_F(TestSchemeColors, MixUsesTheColoursTheContextCanShow)
{
    MonochromeDC mono;
    // On black and white, 0x404040 shows as black and 0xC0C0C0 as white.
    EXPECT_EQ(0x00000000u, KivDraw::MakeMixColor(mono.dc(), 0x404040, 0xC0C0C0, 100));
    EXPECT_EQ(0x00FFFFFFu, KivDraw::MakeMixColor(mono.dc(), 0x404040, 0xC0C0C0, 0));
}

TEST_F(TestSchemeColors, LitStripRisesToTheHighlightAtThreeEighthsAndFalls)
{
    Sheet sheet(10, 2);
    COLORREF colour = RGB(96, 64, 32);
    KivDraw::Make3DColor(sheet.dc(), 8, &colour, 1, 0);
    // Weights 0, 3333, 6666, 10000, 7500, 5000, 2500, 0 of the distance to 224.
    EXPECT_EQ(RGB(96, 64, 32), sheet.At(0, 0));
    EXPECT_EQ(RGB(138, 117, 95), sheet.At(1, 0));
    EXPECT_EQ(RGB(181, 170, 159), sheet.At(2, 0));
    EXPECT_EQ(RGB(224, 224, 224), sheet.At(3, 0));
    EXPECT_EQ(RGB(192, 184, 176), sheet.At(4, 0));
    EXPECT_EQ(RGB(160, 144, 128), sheet.At(5, 0));
    EXPECT_EQ(RGB(128, 104, 80), sheet.At(6, 0));
    EXPECT_EQ(RGB(96, 64, 32), sheet.At(7, 0));
    EXPECT_EQ(kSentinel, sheet.At(8, 0));
    EXPECT_EQ(10, sheet.Count(kSentinel, {0, 1, 10, 2})) << "nothing below row 0";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeColors, LitStripsOfSeveralColoursLieEndToEnd)
{
    Sheet sheet(2, 20);
    COLORREF colours[2] = {RGB(0, 0, 0), RGB(224, 230, 255)};
    KivDraw::Make3DColor(sheet.dc(), 8, colours, 2, 1);
    EXPECT_EQ(RGB(0, 0, 0), sheet.At(0, 0));
    EXPECT_EQ(RGB(224, 224, 224), sheet.At(0, 3));
    EXPECT_EQ(RGB(56, 56, 56), sheet.At(0, 6));  // weight 2500: 224 * 2500 / 10000
    EXPECT_EQ(kSentinel, sheet.At(1, 3)) << "a vertical strip stays in column 0";
    for (int y = 8; y < 16; ++y) EXPECT_EQ(RGB(224, 230, 255), sheet.At(0, y)) << "row " << y;
    EXPECT_EQ(kSentinel, sheet.At(0, 16));
}

TEST_F(TestSchemeColors, LitStripNeverChangesChannelsAtTheHighlight)
{
    Sheet sheet(12, 1);
    COLORREF colour = RGB(224, 240, 255);
    KivDraw::Make3DColor(sheet.dc(), 12, &colour, 1, 0);
    EXPECT_EQ(12, sheet.Count(colour, {0, 0, 12, 1}));
}

TEST_F(TestSchemeColors, LitStripWithoutColoursOrRoomPaintsNothing)
{
    Sheet sheet(8, 1);
    COLORREF colour = RGB(10, 20, 30);
    KivDraw::Make3DColor(sheet.dc(), 8, &colour, 0, 0);
    KivDraw::Make3DColor(sheet.dc(), 2, &colour, 1, 0);
    KivDraw::Make3DColor(sheet.dc(), 0, &colour, 1, 0);
    EXPECT_EQ(8, sheet.Count(kSentinel, {0, 0, 8, 1}));
}

TEST_F(TestSchemeColors, ButtonBackgroundOfEachState)
{
    EXPECT_EQ(scheme::kButtonNormal, KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_NORMAL));
    EXPECT_EQ(scheme::kButtonHover, KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_HOVER));
    EXPECT_EQ(scheme::kButtonPressed, KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_PRESSED));
    EXPECT_EQ(0u, KivDraw::GetButtonBackgroundColor(static_cast<KivDraw::BUTTON_STATE>(3)));
    EXPECT_EQ(0u, KivDraw::GetButtonBackgroundColor(static_cast<KivDraw::BUTTON_STATE>(-1)));
}

TEST_F(TestSchemeColors, TestSchemeBackgroundIsDark)
{
    Sheet sheet(1, 1);
    EXPECT_TRUE(KivDraw::IsDarkBackground(sheet.dc()));  // 0x112233 averages 34
}

TEST(DarkBoundary, AverageOf64IsDarkAnd65IsNot)
{
    Sheet sheet(1, 1);
    UseScheme("avg64");  // channels 64, 64, 65
    EXPECT_TRUE(KivDraw::IsDarkBackground(sheet.dc()));
    UseScheme("avg65");  // channels 64, 65, 66
    EXPECT_FALSE(KivDraw::IsDarkBackground(sheet.dc()));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST(NoStyleColors, ButtonBackgroundsAreNoColour)
{
    EXPECT_EQ(kNoColor, KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_NORMAL));
    EXPECT_EQ(kNoColor, KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_HOVER));
    EXPECT_EQ(kNoColor, KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_PRESSED));
    EXPECT_EQ(0u, KivDraw::GetButtonBackgroundColor(static_cast<KivDraw::BUTTON_STATE>(7)));
}

TEST(NoStyleColors, DarkTestLooksAtTheNearestColourToNoColour)
{
    Sheet sheet(1, 1);
    COLORREF nearest = sheet.dc()->GetNearestColor(kNoColor);
    bool dark = (GetRValue(nearest) + GetGValue(nearest) + GetBValue(nearest)) / 3 <= 64;
    EXPECT_EQ(dark, KivDraw::IsDarkBackground(sheet.dc())) << std::hex << nearest;
}
