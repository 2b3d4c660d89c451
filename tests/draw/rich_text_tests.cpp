// Rich text drawn through the tags, compared pixel for pixel with the same runs drawn by hand with
// direct GDI calls: colours, mixing, fonts, alignment, multi-line runs, icons, and the context
// left as it was; hostile markup draws without harm.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include <string>
#include <vector>

using kiv_skin::KivDraw;

namespace {

const COLORREF kInitialInk = RGB(10, 20, 30);
const COLORREF kWhite = RGB(255, 255, 255);

// A run drawn by hand: its text in a colour and a font (null: the sheet's font).
struct HandRun {
    std::wstring text;
    COLORREF ink;
    HFONT font;
};

// A sheet with a font of its own selected (at the given cell height and weight), the initial
// text colour set and the background transparent. The face's ASCII is fixed-pitch, as in the
// terminal's usual fonts, so that a text run's walk counts every character; the proportional
// case has a test of its own.
class RichSheet : public Sheet {
public:
    explicit RichSheet(int height = 16, int weight = FW_NORMAL, int width = 240, int rows = 30)
        : Sheet(width, rows), m_font(MakeFont(height, weight))
    {
        m_previous = ::SelectObject(dc()->m_hDC, m_font);
        ::SetTextColor(dc()->m_hDC, kInitialInk);
        ::SetBkMode(dc()->m_hDC, TRANSPARENT);
        check = DcStateCheck(dc());
    }
    ~RichSheet()
    {
        ::SelectObject(dc()->m_hDC, m_previous);
        ::DeleteObject(m_font);
    }
    static HFONT MakeFont(int height, int weight, BYTE underline = 0, BYTE italic = 0,
                          const char* face = "WenQuanYi Zen Hei Mono")
    {
        LOGFONTA lf = {};
        lf.lfHeight = height;
        lf.lfWeight = weight;
        lf.lfUnderline = underline;
        lf.lfItalic = italic;
        lf.lfCharSet = GB2312_CHARSET;
        lf.lfQuality = NONANTIALIASED_QUALITY;
        lstrcpyA(lf.lfFaceName, face);
        return ::CreateFontIndirectA(&lf);
    }
    int Width(const std::wstring& text, HFONT font = nullptr)
    {
        HGDIOBJ previous = ::SelectObject(dc()->m_hDC, font ? font : m_font);
        SIZE size;
        ::GetTextExtentPoint32W(dc()->m_hDC, text.c_str(), static_cast<int>(text.size()), &size);
        ::SelectObject(dc()->m_hDC, previous);
        return size.cx;
    }
    // Runs side by side from x, each clipped to its own width in the band top to bottom.
    void ByHand(int x, int top, int bottom, const std::vector<HandRun>& runs)
    {
        HDC hdc = dc()->m_hDC;
        for (const HandRun& run : runs) {
            HGDIOBJ previous = ::SelectObject(hdc, run.font ? run.font : m_font);
            COLORREF ink = ::SetTextColor(hdc, run.ink);
            int width = Width(run.text, run.font);
            RECT clip = {x, top, x + width, bottom};
            ::ExtTextOutW(hdc, x, top, ETO_CLIPPED, &clip, run.text.c_str(), static_cast<int>(run.text.size()), nullptr);
            ::SetTextColor(hdc, ink);
            ::SelectObject(hdc, previous);
            x += width;
        }
    }
    DWORD Draw(const char* markup, int percent = 100, int rows = -1)
    {
        CRect rect(0, 0, canvas.width(), canvas.height());
        return KivDraw::DrawRichText(dc(), &rect, rows, markup, CRect(0, 0, 0, 0), 0, percent);
    }

private:
    HFONT m_font;
    HGDIOBJ m_previous;
};

}  // namespace

using TestSchemeRichText = TestScheme;

TEST_F(TestSchemeRichText, EmptyMarkupDrawsNothing)
{
    RichSheet sheet;
    EXPECT_EQ(0u, sheet.Draw(""));
    EXPECT_EQ(240 * 30, sheet.Count(kSentinel, {0, 0, 240, 30}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeRichText, ColourTagsSwitchTheInkFromTheirPlaceOn)
{
    RichSheet sheet, byHand;
    sheet.Draw("Open<*color=FF*>12.50<*c*> x<*sc=UPTEXT*>+1%");
    byHand.ByHand(0, 0, 30, {{L"Open", kInitialInk, nullptr}, {L"12.50", RGB(255, 0, 0), nullptr},
                             {L" x", kInitialInk, nullptr}, {L"+1%", RGB(0xE0, 0, 0), nullptr}});
    EXPECT_GT(sheet.Count(RGB(255, 0, 0), {0, 0, 240, 30}), 10);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeRichText, UnreadableColourIsTheInitialInkAndHexTakesItsPrefix)
{
    RichSheet sheet, byHand;
    sheet.Draw("<*color=zz*>x<*color=0xFF*>y<*c=FF0000*>z");
    byHand.ByHand(0, 0, 30, {{L"x", kInitialInk, nullptr}, {L"y", RGB(255, 0, 0), nullptr},
                             {L"z", RGB(0, 0, 255), nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeRichText, UnterminatedTagDropsTheRest)
{
    RichSheet sheet, byHand;
    sheet.Draw("abc<*color=FF");
    byHand.ByHand(0, 0, 30, {{L"abc", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeRichText, PercentMixesTagColoursIntoTheInitialBackground)
{
    struct Case { int percent; COLORREF ink; } cases[] = {
        {50, RGB(0x7F, 0x7F, 0x7F)}, {100, RGB(0, 0, 0)}, {150, RGB(0, 0, 0)}, {-5, kWhite}};
    for (const Case& c : cases) {
        RichSheet sheet, byHand;
        ::SetBkColor(sheet.dc()->m_hDC, kWhite);
        sheet.check = DcStateCheck(sheet.dc());
        sheet.Draw("<*c=0*>x<*c*>y", c.percent);
        byHand.ByHand(0, 0, 30, {{L"x", c.ink, nullptr}, {L"y", kInitialInk, nullptr}});
        EXPECT_TRUE(SamePixels(sheet, byHand)) << "percent " << c.percent;
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(TestSchemeRichText, BackgroundTagsPaintOpaqueAndEmptyOnesRestoreWithTheTextColour)
{
    RichSheet sheet, byHand;
    sheet.Draw("<*bk=FF00*>ab<*bk*>cd<*sysbk=PLUG_BGCOLOR*>ef<*sysbk*>gh");
    HDC hdc = byHand.dc()->m_hDC;
    ::SetBkMode(hdc, OPAQUE);
    ::SetBkColor(hdc, RGB(0, 255, 0));
    byHand.ByHand(0, 0, 30, {{L"ab", kInitialInk, nullptr}});
    int x = byHand.Width(L"ab");
    ::SetBkMode(hdc, TRANSPARENT);  // the initial mode: the restoring colour does not show
    byHand.ByHand(x, 0, 30, {{L"cd", kInitialInk, nullptr}});
    x += byHand.Width(L"cd");
    ::SetBkMode(hdc, OPAQUE);
    ::SetBkColor(hdc, scheme::kPlugBackground);
    byHand.ByHand(x, 0, 30, {{L"ef", kInitialInk, nullptr}});
    x += byHand.Width(L"ef");
    ::SetBkMode(hdc, TRANSPARENT);
    byHand.ByHand(x, 0, 30, {{L"gh", kInitialInk, nullptr}});
    ::SetBkColor(hdc, kWhite);
    EXPECT_GT(sheet.Count(RGB(0, 255, 0), {0, 0, 240, 30}), 20);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeRichText, EmptyBackgroundTagOnAnOpaqueContextPaintsTheTextColour)
{
    RichSheet sheet;
    ::SetBkMode(sheet.dc()->m_hDC, OPAQUE);
    ::SetBkColor(sheet.dc()->m_hDC, kWhite);
    sheet.check = DcStateCheck(sheet.dc());
    sheet.Draw("<*bk*>mm");
    EXPECT_EQ(0, sheet.Count(kWhite, {0, 0, 240, 30})) << "not the initial background";
    EXPECT_GT(sheet.Count(kInitialInk, {0, 0, 20, 16}), 60) << "the initial text colour behind the text";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeRichText, FontTagsAccumulateAndReturnToTheInitialFont)
{
    HFONT boldItalic = RichSheet::MakeFont(16, FW_BOLD, 0, 1);
    HFONT big = RichSheet::MakeFont(20, FW_NORMAL);
    RichSheet sheet, byHand;
    sheet.Draw("a<*b*><*it*>bc<*s=20*><*b=0*><*it=0*>de<*size=-12*>f<*size=0*>g");
    byHand.ByHand(0, 0, 30, {{L"a", kInitialInk, nullptr}, {L"bc", kInitialInk, boldItalic},
                             {L"de", kInitialInk, big}, {L"fg", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
    ::DeleteObject(boldItalic);
    ::DeleteObject(big);
}

TEST_F(TestSchemeRichText, BoldOffReturnsToTheInitialWeightNotNormal)
{
    RichSheet sheet(16, FW_BOLD), byHand(16, FW_BOLD);
    sheet.Draw("<*b*><*b=0*>abc");
    byHand.ByHand(0, 0, 30, {{L"abc", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeRichText, FaceAndUnderlineAndSchemeFont)
{
    HFONT underlined = RichSheet::MakeFont(16, FW_NORMAL, 1);
    RichSheet sheet, byHand;
    sheet.Draw("<*u*>ab<*u=0*><*f=Nonexistent Face*><*f*>cd<*sf=PLUG_TITLE*>ef");
    const CFont* title = kiv_skin::KivStyleMgr::GetInstance()->GetFont("PLUG_TITLE");
    byHand.ByHand(0, 0, 30, {{L"ab", kInitialInk, underlined}, {L"cd", kInitialInk, nullptr},
                             {L"ef", kInitialInk, static_cast<HFONT>(title->m_hObject)}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
    ::DeleteObject(underlined);
}

TEST_F(TestSchemeRichText, RightAlignmentEndsANarrowLineAtTheRightEdge)
{
    RichSheet sheet, byHand;
    ::SetTextAlign(sheet.dc()->m_hDC, TA_RIGHT);
    sheet.check = DcStateCheck(sheet.dc());
    CRect rect(0, 0, 240, 30);
    KivDraw::DrawRichText(sheet.dc(), &rect, "ab<*c=FF*>cd", CRect(5, 2, 10, 0), 0, 100);
    // The line ends at the inner area's right edge, 10 in from the rect's; each run drawn from its
    // right edge fills its own rectangle as the same run drawn from its left edge would.
    int x = 230 - byHand.Width(L"abcd");
    byHand.ByHand(x, 2, 30, {{L"ab", kInitialInk, nullptr}, {L"cd", RGB(255, 0, 0), nullptr}});
    EXPECT_GT(sheet.Count(RGB(255, 0, 0), {200, 0, 230, 30}), 5);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

namespace {

// The scheme image drawn by hand as an icon tag draws it, at (x, y).
void IconByHand(Sheet& sheet, const char* key, int x, int y)
{
    const CBitmap* image = kiv_skin::KivStyleMgr::GetInstance()->GetBitmap(key);
    ASSERT_NE(nullptr, image);
    HDC memory = ::CreateCompatibleDC(sheet.dc()->m_hDC);
    HGDIOBJ previous = ::SelectObject(memory, image->m_hObject);
    ::TransparentBlt(sheet.dc()->m_hDC, x, y, 16, 17, memory, 0, 0, 16, 17,
                     kiv_skin::KivStyleMgr::GetInstance()->GetTransparentColor("IDB_IMAGES"));
    ::SelectObject(memory, previous);
    ::DeleteDC(memory);
}

}  // namespace

TEST_F(TestSchemeRichText, AlignmentDecidesTheStartAsAWholeValue)
{
    // An icon shows wherever the vertical alignment puts it, so it tells where the line starts:
    // only exactly right (2) or centre (6) moves it off the left; the vertical bits (bottom 8,
    // baseline 24) move the icon down, and so do the horizontal ones, by half as much.
    struct Case { UINT align; POINT at; } cases[] = {
        {TA_LEFT, {1, 0}}, {TA_RIGHT, {225, 7}}, {TA_CENTER, {113, 7}}, {TA_RIGHT | TA_BOTTOM, {1, 14}},
        {TA_CENTER | TA_BASELINE, {1, 14}}};
    for (const Case& c : cases) {
        RichSheet sheet(12), byHand(12);  // a font low enough for a 16-wide icon
        ::SetTextAlign(sheet.dc()->m_hDC, c.align);
        sheet.check = DcStateCheck(sheet.dc());
        sheet.Draw("<*si=IMG_RISE*>");
        IconByHand(byHand, "IMG_RISE", c.at.x, c.at.y);
        EXPECT_GT(240 * 30 - sheet.Count(kSentinel, {0, 0, 240, 30}), 20) << "the icon shows";
        EXPECT_TRUE(SamePixels(sheet, byHand)) << "align " << c.align;
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(TestSchemeRichText, ProportionalTextIsWalkedAsCutTextIs)
{
    // A run's rectangle is exactly as wide as its text, so the run is walked character by
    // character with each ASCII character measured by the code before it: in a proportional face
    // "link" counts "i" as wide as "h" and "n" as wide as "m", and what no longer fits is cut.
    HFONT proportional = RichSheet::MakeFont(16, FW_NORMAL, 0, 0, "WenQuanYi Zen Hei");
    RichSheet sheet, byHand;
    HGDIOBJ previous = ::SelectObject(sheet.dc()->m_hDC, proportional);
    sheet.Draw("link");
    ::SelectObject(sheet.dc()->m_hDC, previous);
    int widths[128] = {};
    previous = ::SelectObject(byHand.dc()->m_hDC, proportional);
    ::GetCharWidthA(byHand.dc()->m_hDC, 0, 127, widths);
    ::SelectObject(byHand.dc()->m_hDC, previous);
    int available = byHand.Width(L"link", proportional), walked = 0, count = 0;
    for (char c : std::string("link")) {
        if (walked >= available) break;
        walked += widths[c - 1];
        ++count;
    }
    EXPECT_LT(count, 4) << "the face must make the walk cut";
    byHand.ByHand(0, 0, 30, {{std::wstring(L"link").substr(0, count), kInitialInk, proportional}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
    ::DeleteObject(proportional);
}

TEST_F(TestSchemeRichText, WalkAfterAFontTagUsesTheNewFontsWidths)
{
    // The walk's widths are read once for the runs of one font: after a tag selects another font,
    // "jjjj" is walked by the proportional face's narrow "i" and drawn whole, where the fixed-pitch
    // widths read for "abc" would cut it after two characters.
    const char* face = "WenQuanYi Zen Hei";
    HFONT proportional = RichSheet::MakeFont(16, FW_NORMAL, 0, 0, face);
    RichSheet sheet, byHand;
    sheet.Draw((std::string("abc<*f=") + face + "*>jjjj").c_str());
    auto walk = [&](HFONT font) {
        int widths[128] = {};
        HGDIOBJ previous = ::SelectObject(byHand.dc()->m_hDC, font);
        ::GetCharWidthA(byHand.dc()->m_hDC, 0, 127, widths);
        ::SelectObject(byHand.dc()->m_hDC, previous);
        int available = byHand.Width(L"jjjj", proportional), walked = 0, count = 0;
        for (; count < 4 && walked < available; ++count) walked += widths['j' - 1];
        return count;
    };
    HFONT fixed = RichSheet::MakeFont(16, FW_NORMAL);
    int count = walk(proportional);
    EXPECT_NE(count, walk(fixed)) << "the faces must walk \"jjjj\" differently";
    byHand.ByHand(0, 0, 30, {{L"abc", kInitialInk, nullptr}});
    byHand.ByHand(byHand.Width(L"abc"), 0, 30, {{std::wstring(L"jjjj").substr(0, count), kInitialInk, proportional}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
    ::DeleteObject(fixed);
    ::DeleteObject(proportional);
}

TEST_F(TestSchemeRichText, WideLineStartsAtTheLeftWhateverTheAlignment)
{
    RichSheet sheet(16, FW_NORMAL, 60, 30), byHand(16, FW_NORMAL, 60, 30);
    ::SetTextAlign(sheet.dc()->m_hDC, TA_RIGHT);
    std::wstring wide(20, L'm');
    sheet.Draw("mmmmmmmmmmmmmmmmmmmm");
    // The run is as wide as its text and starts at the left edge; the sheet cuts what lies past it.
    byHand.ByHand(0, 0, 30, {{wide, kInitialInk, nullptr}});
    EXPECT_GT(byHand.Width(wide), 60);
    EXPECT_GT(sheet.Count(kInitialInk, {0, 0, 60, 30}), 20);
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeRichText, MultiLineRunStepsByTheRowHeight)
{
    RichSheet sheet(16, FW_NORMAL, 120, 40), byHand(16, FW_NORMAL, 120, 40);
    sheet.Draw("<*t=a\nbb*>", 100, 2);
    int width = byHand.Width(L"bb");
    byHand.ByHand(0, 0, 40, {{L"a", kInitialInk, nullptr}});
    byHand.ByHand(0, 20, 40, {{L"bb", kInitialInk, nullptr}});
    EXPECT_GT(width, byHand.Width(L"a"));
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_EQ(0, sheet.Count(kInitialInk, {width, 0, 120, 40})) << "one run as wide as its widest line";
}

TEST_F(TestSchemeRichText, LinkTagsTakeNoRoomAndFlagsChangeNothing)
{
    RichSheet sheet, byHand, flagged;
    sheet.Draw("<*a href=x*>link<*a*>s");
    CRect rect(0, 0, 240, 30);
    KivDraw::DrawRichText(flagged.dc(), &rect, -1, "<*a href=x*>link<*a*>s", CRect(0, 0, 0, 0), 0xFFFFFFFF, 100);
    byHand.ByHand(0, 0, 30, {{L"links", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(SamePixels(flagged, byHand));
}

TEST_F(TestSchemeRichText, IconIsSixteenWideUnderASmallFontAndAsWideAsALargeOne)
{
    for (int height : {12, 20}) {
        RichSheet sheet(height), byHand(height);
        sheet.Draw("<*si=IMG_RISE*>x");
        IconByHand(byHand, "IMG_RISE", 1, 0);
        SIZE letter;
        ::GetTextExtentPoint32A(byHand.dc()->m_hDC, "A", 1, &letter);
        EXPECT_EQ(height, letter.cy) << "a cell height of " << height;
        int width = height <= 16 ? 16 : height;  // 16 wide under a small font, as high as a large one
        byHand.ByHand(width, 0, 30, {{L"x", kInitialInk, nullptr}});
        EXPECT_TRUE(SamePixels(sheet, byHand)) << "font height " << height;
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(TestSchemeRichText, EmptyOrUnknownIconTakesItsRoomOrNone)
{
    RichSheet sheet(12), byHand(12), unknown(12);
    sheet.Draw("<*si*>x");
    byHand.ByHand(0, 0, 30, {{L"x", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand)) << "an empty icon is 0 wide";
    unknown.Draw("<*si=NO_SUCH_IMAGE*>x");
    RichSheet shifted(12);
    shifted.ByHand(16, 0, 30, {{L"x", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(unknown, shifted)) << "an unknown image draws nothing but keeps its room";
}

TEST_F(TestSchemeRichText, ChineseTextInTheAnsiCodePage)
{
    if (::GetACP() != 936) GTEST_SKIP() << "GB2312 text needs code page 936";
    RichSheet sheet, byHand;
    sheet.Draw("\xD0\xD0\xC7\xE9<*sc=DOWNTEXT*>-1.84");  // 行情
    byHand.ByHand(0, 0, 30, {{L"\x884C\x60C5", kInitialInk, nullptr}, {L"-1.84", RGB(0, 0xE0, 0), nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeRichText, HostileMarkupDrawsWithoutHarm)
{
    std::string longText(100000, 'x'), manyTags, digits = "<*s=" + std::string(10000, '9') + "*>big",
                                                high;
    for (int i = 0; i < 10000; ++i) manyTags += i % 2 ? "<*c=FF*>" : "<*b*>y";
    for (int c = 0x80; c <= 0xFF; ++c) high += static_cast<char>(c);
    const std::string inputs[] = {"<*", "*>", "<**>", "<*=*>", "<*<*b*>*>", longText, manyTags, digits,
                                  "<*c=" + std::string(10000, 'F') + "*>z", high, "<*si=" + high + "*>",
                                  "<*f=" + std::string(300, 'F') + "*>q", "<*sf=NO_FONT*>w"};
    for (const std::string& input : inputs) {
        RichSheet sheet;
        EXPECT_EQ(0u, sheet.Draw(input.c_str(), 250, 0)) << input.substr(0, 40);
        EXPECT_TRUE(sheet.check.Unchanged()) << input.substr(0, 40);
    }
}

TEST_F(BareScheme, SchemeTagsWithoutFontsOrImagesFallBack)
{
    RichSheet sheet(12), byHand(12);
    sheet.Draw("<*sf=PLUG_TITLE*>a<*si=IMG_RISE*>b");
    byHand.ByHand(0, 0, 30, {{L"a", kInitialInk, nullptr}});
    byHand.ByHand(byHand.Width(L"a") + 16, 0, 30, {{L"b", kInitialInk, nullptr}});
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST(NoStyleRichText, SchemeColoursAreNoColourAndTextStillDraws)
{
    RichSheet sheet;
    sheet.Draw("ab<*sc=UPTEXT*>cd");
    EXPECT_GT(sheet.Count(kInitialInk, {0, 0, 240, 30}), 5);
    EXPECT_TRUE(sheet.check.Unchanged());
}
