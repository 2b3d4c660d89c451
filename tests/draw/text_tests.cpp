// Text cut to a width: a text that fits is drawn whole; one that does not is walked character by
// character with the font's ANSI widths (each ASCII character measured by the code before it)
// and the width of a double-byte character for the rest. Drawing is compared pixel for pixel
// with the same text drawn by hand.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include <string>

using kiv_skin::KivDraw;

namespace {

const COLORREF kTextInk = RGB(20, 30, 200);

// A sheet with the test scheme's standard font selected and text drawn in kTextInk.
class TextSheet : public Sheet {
public:
    TextSheet(int width, int height) : Sheet(width, height)
    {
        CFont* font = const_cast<CFont*>(kiv_skin::KivStyleMgr::GetInstance()->GetFont("PLUG_STDFONT"));
        m_previousFont = ::SelectObject(dc()->m_hDC, *font);
        m_previousInk = ::SetTextColor(dc()->m_hDC, kTextInk);
        ::SetBkMode(dc()->m_hDC, TRANSPARENT);
        check = DcStateCheck(dc());
    }
    ~TextSheet()
    {
        ::SelectObject(dc()->m_hDC, m_previousFont);
        ::SetTextColor(dc()->m_hDC, m_previousInk);
    }
    int Width(const std::wstring& text)
    {
        SIZE size;
        ::GetTextExtentPoint32W(dc()->m_hDC, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }
    int CharWidth(char c)
    {
        int width = 0;
        ::GetCharWidthA(dc()->m_hDC, static_cast<unsigned char>(c), static_cast<unsigned char>(c), &width);
        return width;
    }
    // The first n characters drawn by hand as the kit is to draw them.
    void DrawByHand(const CRect& area, int x, const std::wstring& text, int n)
    {
        ::ExtTextOutW(dc()->m_hDC, x, area.top, ETO_CLIPPED, &area, text.c_str(), n, nullptr);
    }

private:
    HGDIOBJ m_previousFont;
    COLORREF m_previousInk;
};

// Characters counted while the width walked is below available, each adding step.
int CountedBelow(int available, int step, int length)
{
    int count = 0;
    for (int walked = 0; walked < available && count < length; walked += step) ++count;
    return count;
}

}  // namespace

using TestSchemeText = TestScheme;

TEST_F(TestSchemeText, FixtureFontIsTheCjkFontItAsksFor)
{
    TextSheet sheet(4, 4);
    char face[LF_FACESIZE] = "";
    ::GetTextFaceA(sheet.dc()->m_hDC, LF_FACESIZE, face);
    EXPECT_STREQ("WenQuanYi Zen Hei", face);
}

TEST_F(TestSchemeText, TextThatFitsIsDrawnWholeFromTheLeft)
{
    std::wstring text = L"Ab 12.50";
    TextSheet sheet(120, 30), byHand(120, 30);
    CRect rect(5, 5, 115, 25), margins(3, 2, 4, 1), area(8, 7, 111, 24);
    int count = -7;
    EXPECT_EQ(sheet.Width(text), KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, margins, 0));
    EXPECT_EQ(-7, count) << "count is not written when the text fits";
    byHand.DrawByHand(area, area.left, text, static_cast<int>(text.size()));
    EXPECT_GT(sheet.Count(kTextInk, area), 20);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeText, RightAlignedContextDrawsFromTheRightEdge)
{
    std::wstring text = L"1688.00";
    TextSheet sheet(120, 20), byHand(120, 20);
    for (TextSheet* s : {&sheet, &byHand}) ::SetTextAlign(s->dc()->m_hDC, TA_RIGHT);
    sheet.check = DcStateCheck(sheet.dc());
    CRect rect(0, 0, 110, 20);
    int count = 0;
    KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 0);
    byHand.DrawByHand(rect, 110, text, static_cast<int>(text.size()));
    EXPECT_GT(sheet.Count(kTextInk, {100, 0, 110, 20}), 0) << "ends at the right edge";
    EXPECT_EQ(0, sheet.Count(kTextInk, {0, 0, 50, 20}));
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeText, OnlyExactlyRightAlignmentStartsAtTheRightEdge)
{
    // Centred (6) holds the right-alignment bit but is not exactly right: the text is placed at
    // the left edge, where centring shows only its right half.
    std::wstring text = L"1688.00";
    TextSheet sheet(120, 20), byHand(120, 20);
    for (TextSheet* s : {&sheet, &byHand}) ::SetTextAlign(s->dc()->m_hDC, TA_CENTER);
    CRect rect(40, 0, 110, 20);
    int count = 0;
    KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 0);
    byHand.DrawByHand(rect, 40, text, static_cast<int>(text.size()));
    EXPECT_GT(sheet.Count(kTextInk, {40, 0, 50, 20}), 0);
    EXPECT_EQ(0, sheet.Count(kTextInk, {80, 0, 120, 20}));
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemeText, TextExactlyAsWideAsTheRoomIsWalked)
{
    std::wstring text = L"mmmm";
    TextSheet sheet(100, 20);
    int width = sheet.Width(text);
    CRect rect(0, 0, width, 20);
    int count = -7;
    EXPECT_EQ(width, KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 0));
    EXPECT_EQ(4, count) << "the walk writes count";
}

TEST_F(TestSchemeText, WalkMeasuresEachAsciiCharacterByTheCodeBeforeIt)
{
    // "m" is walked with the width of "l", so many more than fit are counted; the clipping cuts
    // what runs past the edge.
    std::wstring text(30, L'm');
    TextSheet sheet(200, 20), byHand(200, 20);
    int narrow = sheet.CharWidth('l'), wide = sheet.CharWidth('m');
    ASSERT_LT(narrow, wide) << "the test needs a proportional font";
    CRect rect(0, 0, 3 * wide, 20);
    int count = 0;
    int drawn = KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 0);
    int expected = CountedBelow(3 * wide, narrow, 30);
    EXPECT_EQ(expected, count);
    EXPECT_GT(count, 4);
    EXPECT_EQ(sheet.Width(text.substr(0, count)), drawn);
    byHand.DrawByHand(rect, 0, text, count);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_EQ(0, sheet.Count(kTextInk, {3 * wide, 0, 200, 20})) << "clipped at the edge";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeText, LineFeedEndsTheWalk)
{
    std::wstring text = L"ab\ncdefgh";
    TextSheet sheet(200, 20);
    CRect rect(0, 0, sheet.Width(text) - 1, 20);
    int count = 0;
    int drawn = KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 0);
    EXPECT_EQ(2, count);
    EXPECT_EQ(sheet.Width(L"ab"), drawn);
}

TEST_F(TestSchemeText, OtherCharactersCountAsWideAsADoubleByteCharacter)
{
    std::wstring text = L"\x4E2D\x6587\x4E2D\x6587\x4E2D\x6587";  // 中文中文中文
    TextSheet sheet(200, 20);
    int wide = sheet.dc()->GetTextExtent("\xD6\xD0", 2).cx;  // the ANSI bytes of 中 in GB2312
    CRect rect(0, 0, wide * 5 / 2, 20);
    int count = 0;
    KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 0);
    EXPECT_EQ(CountedBelow(wide * 5 / 2, wide, 6), count);
    if (::GetACP() == 936) {
        EXPECT_EQ(sheet.Width(L"\x4E2D"), wide) << "under GB2312 the bytes are the character";
        EXPECT_EQ(3, count);
    }
}

TEST_F(TestSchemeText, MeasuringDrawsNothing)
{
    std::wstring text(30, L'm');
    TextSheet sheet(200, 20);
    CRect rect(0, 0, 100, 20);
    int count = 0;
    int fitting = KivDraw::TextOutLimitWidth(sheet.dc(), &rect, text, count, CRect(0, 0, 0, 0), 1);
    EXPECT_GT(count, 0);
    EXPECT_EQ(sheet.Width(text.substr(0, count)), fitting);
    int whole = KivDraw::TextOutLimitWidth(sheet.dc(), &rect, L"m", count, CRect(0, 0, 0, 0), 1);
    EXPECT_EQ(sheet.Width(L"m"), whole);
    EXPECT_EQ(200 * 20, sheet.Count(kSentinel, {0, 0, 200, 20}));
}

TEST_F(TestSchemeText, EmptyTextAndNoRoomDrawNothing)
{
    TextSheet sheet(50, 20);
    CRect none(10, 0, 10, 20), some(0, 0, 40, 20);
    int count = -7;
    EXPECT_EQ(0, KivDraw::TextOutLimitWidth(sheet.dc(), &none, L"", count, CRect(0, 0, 0, 0), 0));
    EXPECT_EQ(0, count);
    count = -7;
    EXPECT_EQ(0, KivDraw::TextOutLimitWidth(sheet.dc(), &some, L"", count, CRect(0, 0, 0, 0), 0));
    EXPECT_EQ(-7, count);
    EXPECT_EQ(0, KivDraw::TextOutLimitWidth(sheet.dc(), &none, L"abc", count, CRect(0, 0, 0, 0), 0));
    EXPECT_EQ(0, count);
    EXPECT_EQ(50 * 20, sheet.Count(kSentinel, {0, 0, 50, 20}));
    EXPECT_TRUE(sheet.check.Unchanged());
}
