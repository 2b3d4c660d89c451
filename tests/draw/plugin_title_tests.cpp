// The plug-in title bar: the band's height from the title font, the band filled from the area's
// top only, the UTF-8 title centred in it (compared with the same title drawn by hand), and a
// scheme without a title font.
#include "draw_fixture.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/style/kiv_style_mgr.h"

using kiv_skin::PluginTitle;

namespace {

// 行情 600519 in UTF-8 and UTF-16.
const char kChineseTitle[] = "\xE8\xA1\x8C\xE6\x83\x85 600519";
const wchar_t kChineseTitleWide[] = L"\x884C\x60C5 600519";

CFont* TitleFont() { return const_cast<CFont*>(kiv_skin::KivStyleMgr::GetInstance()->GetFont("PLUG_TITLE")); }

// The band and title as the title bar is to draw them, by hand.
void DrawByHand(Sheet& sheet, const CRect& band, const wchar_t* title)
{
    HDC hdc = sheet.dc()->m_hDC;
    HGDIOBJ font = ::SelectObject(hdc, *TitleFont());
    COLORREF back = ::SetBkColor(hdc, scheme::kTitleBackground);
    ::ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, &band, nullptr, 0, nullptr);
    COLORREF ink = ::SetTextColor(hdc, scheme::kTitleText);
    RECT r = band;
    ::DrawTextW(hdc, title, -1, &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    ::SetTextColor(hdc, ink);
    ::SetBkColor(hdc, back);
    ::SelectObject(hdc, font);
}

}  // namespace

using TestSchemeTitle = TestScheme;

TEST_F(TestSchemeTitle, BandIsTheTitleFontsCellHeightPlusTwo)
{
    Sheet sheet(10, 10);
    TEXTMETRICA metrics;
    HGDIOBJ previous = ::SelectObject(sheet.dc()->m_hDC, *TitleFont());
    ::GetTextMetricsA(sheet.dc()->m_hDC, &metrics);
    ::SelectObject(sheet.dc()->m_hDC, previous);
    ASSERT_EQ(16, metrics.tmHeight) << "the test scheme's title font has a 16-unit cell";
    PluginTitle title("x");
    EXPECT_EQ(18, title.GetAreaHeight(sheet.dc()));
    EXPECT_EQ(0, title.GetAreaHeight(nullptr));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeTitle, ChineseTitleIsCentredInABandFromTheAreasTop)
{
    Sheet sheet(160, 40), byHand(160, 40);
    PluginTitle title(kChineseTitle);
    title.Draw(sheet.dc(), CRect(0, 4, 160, 40));
    DrawByHand(byHand, CRect(0, 4, 160, 22), kChineseTitleWide);
    EXPECT_GT(sheet.Count(scheme::kTitleText, {0, 4, 160, 22}), 40) << "the title is drawn";
    EXPECT_EQ(0, sheet.Count(scheme::kTitleText, {0, 4, 40, 22})) << "centred, not at the left";
    EXPECT_EQ(160 * 18, sheet.Count(scheme::kTitleBackground, {0, 4, 160, 22}) +
                            sheet.Count(scheme::kTitleText, {0, 4, 160, 22}))
        << "the band holds its background and the title's ink only (the font is not smoothed)";
    EXPECT_EQ(160 * 4, sheet.Count(kSentinel, {0, 0, 160, 4}));
    EXPECT_EQ(160 * 18, sheet.Count(kSentinel, {0, 22, 160, 40})) << "the rest of the area is untouched";
    EXPECT_TRUE(SamePixels(sheet, byHand));
    // The band is filled as the framework's FillSolidRect fills, which leaves the background colour
    // set to the band's; everything else is as it was.
    EXPECT_EQ(scheme::kTitleBackground, sheet.dc()->GetBkColor());
    ::SetBkColor(sheet.dc()->m_hDC, BusyDc::kPaper);  // the caller's own
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeTitle, EmptyTitleStillFillsTheBand)
{
    Sheet sheet(50, 30);
    PluginTitle title;
    title.Draw(sheet.dc(), CRect(5, 2, 45, 3));
    EXPECT_EQ(40 * 18, sheet.Count(scheme::kTitleBackground, {5, 2, 45, 20}));
    EXPECT_EQ(50 * 30 - 40 * 18, sheet.Count(kSentinel, {0, 0, 50, 30}));
}

TEST_F(TestSchemeTitle, TextIsCopiedAndReplaced)
{
    PluginTitle first("alpha"), second("beta");
    PluginTitle copy(first);
    EXPECT_EQ("alpha", copy.GetText());
    second = first;
    EXPECT_EQ("alpha", second.GetText());
    first.SetTitle("gamma");
    EXPECT_EQ("alpha", second.GetText()) << "copies own their text";
    first.SetTitle("");
    EXPECT_EQ("", first.GetText());
    EXPECT_EQ("", PluginTitle(nullptr).GetText());
    EXPECT_EQ("", PluginTitle("").GetText());
}

TEST_F(BareScheme, TitleWithoutTitleFontHasNoBandAndDrawsNothing)
{
    Sheet sheet(40, 30);
    PluginTitle title("x");
    EXPECT_EQ(0, title.GetAreaHeight(sheet.dc()));
    title.Draw(sheet.dc(), CRect(0, 0, 40, 30));
    EXPECT_EQ(40 * 30, sheet.Count(kSentinel, {0, 0, 40, 30}));
    EXPECT_TRUE(sheet.check.Unchanged());
}
