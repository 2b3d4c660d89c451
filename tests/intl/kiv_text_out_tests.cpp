// KivTextOut: UTF-8 texts drawn, measured and set as captions through the wide calls. Drawing is
// compared pixel for pixel with the same text drawn by a direct wide call; the lengths handed to
// GDI are read back from an enhanced metafile that records the calls.
#include "kiv_skin/intl/kiv_text_out.h"
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include <gtest/gtest.h>
#include <functional>
#include <vector>

using kiv_skin::KivTextOut;

namespace {

const char kChinese[] = "\xE4\xB8\xAD\xE6\x96\x87\xE5\xAD\x97";  // 中文字: 9 bytes, 3 characters
const wchar_t kChineseW[] = L"\x4E2D\x6587\x5B57";
const char kAstral[] = "A\xF0\xA0\x80\x80Z";  // A, U+20000 (a surrogate pair), Z
const wchar_t kAstralW[] = L"A\xD840\xDC00Z";

// A CJK font selected into a DC for the lifetime of the object.
class CjkFont {
public:
    explicit CjkFont(HDC hdc, int height = 24) : m_hdc(hdc)
    {
        m_font = CreateFontW(-height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                             NONANTIALIASED_QUALITY, 0, L"WenQuanYi Zen Hei");
        m_old = SelectObject(hdc, m_font);
    }
    ~CjkFont()
    {
        SelectObject(m_hdc, m_old);
        DeleteObject(m_font);
    }

private:
    HDC m_hdc;
    HFONT m_font;
    HGDIOBJ m_old;
};

bool SamePixels(const DibCanvas& a, const DibCanvas& b)
{
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.Pixel(x, y) != b.Pixel(x, y)) return false;
    return true;
}

// Draws with draw(ours) and direct(theirs) on two equal canvases with the CJK font; expects equal
// pixels and some ink.
void ExpectSameDrawing(const std::function<void(CDC*)>& ours, const std::function<void(HDC)>& direct)
{
    DibCanvas mine(160, 48), reference(160, 48);
    CjkFont fontMine(mine.dc()->m_hDC), fontReference(reference.dc()->m_hDC);
    // The comparison means something only if the CJK font asked for is the one selected and it
    // has glyphs for the Chinese text.
    wchar_t face[LF_FACESIZE] = L"";
    GetTextFaceW(mine.dc()->m_hDC, LF_FACESIZE, face);
    ASSERT_STREQ(L"WenQuanYi Zen Hei", face);
    WORD glyphs[3] = {};
    ASSERT_EQ(3u, GetGlyphIndicesW(mine.dc()->m_hDC, kChineseW, 3, glyphs, GGI_MARK_NONEXISTING_GLYPHS));
    for (WORD glyph : glyphs) ASSERT_NE(0xFFFF, glyph);
    DcStateCheck check(mine.dc());
    ours(mine.dc());
    direct(reference.dc()->m_hDC);
    EXPECT_TRUE(check.Unchanged());
    EXPECT_GT(mine.Count(RGB(255, 255, 255)), 0);
    EXPECT_LT(mine.Count(RGB(255, 255, 255)), 160 * 48) << "nothing drawn";
    EXPECT_TRUE(SamePixels(mine, reference));
}

// The texts of the text-output records an enhanced metafile got while draw ran, and how many
// records it got in all.
struct Recorded {
    std::vector<std::wstring> texts;
    size_t records = 0;
};

Recorded Record(const std::function<void(CDC*)>& draw)
{
    CDC dc;
    dc.Attach(CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr));
    draw(&dc);
    HENHMETAFILE emf = CloseEnhMetaFile(dc.Detach());
    std::vector<BYTE> bits(GetEnhMetaFileBits(emf, 0, nullptr));
    GetEnhMetaFileBits(emf, UINT(bits.size()), bits.data());
    DeleteEnhMetaFile(emf);
    Recorded recorded;
    for (size_t pos = 0; pos + sizeof(EMR) <= bits.size();) {
        const EMR* record = reinterpret_cast<const EMR*>(&bits[pos]);
        if (record->iType == EMR_EXTTEXTOUTW) {
            const EMREXTTEXTOUTW* text = reinterpret_cast<const EMREXTTEXTOUTW*>(record);
            const wchar_t* chars = reinterpret_cast<const wchar_t*>(&bits[pos] + text->emrtext.offString);
            recorded.texts.emplace_back(chars, text->emrtext.nChars);
        }
        ++recorded.records;
        if (record->nSize == 0) break;
        pos += record->nSize;
    }
    return recorded;
}

}  // namespace

TEST(KivTextOutDraw, ChineseUtf8MatchesDirectTextOutW)
{
    ExpectSameDrawing([](CDC* dc) { KivTextOut::DrawString(dc, 4, 8, kChinese); },
                      [](HDC hdc) { TextOutW(hdc, 4, 8, kChineseW, 3); });
    ExpectSameDrawing([](CDC* dc) { KivTextOut(dc).DrawString(4, 8, kChinese); },
                      [](HDC hdc) { TextOutW(hdc, 4, 8, kChineseW, 3); });
}

TEST(KivTextOutDraw, DrawsWithTheLengthInUtf16CodeUnits)
{
    Recorded chinese = Record([](CDC* dc) { KivTextOut::DrawString(dc, 0, 0, kChinese); });
    ASSERT_EQ(1u, chinese.texts.size());
    EXPECT_EQ(std::wstring(kChineseW), chinese.texts[0]);  // 9 bytes drawn as 3 characters

    Recorded astral = Record([](CDC* dc) { KivTextOut(dc).DrawString(0, 0, 0, nullptr, kAstral, nullptr); });
    ASSERT_EQ(1u, astral.texts.size());
    EXPECT_EQ(std::wstring(kAstralW), astral.texts[0]);
    EXPECT_EQ(4u, astral.texts[0].size());  // the surrogate pair counts two
}

TEST(KivTextOutDraw, SurrogatePairMatchesDirectTextOutW)
{
    ExpectSameDrawing([](CDC* dc) { KivTextOut::DrawString(dc, 4, 8, kAstral); },
                      [](HDC hdc) { TextOutW(hdc, 4, 8, kAstralW, 4); });
}

TEST(KivTextOutDraw, ExtTextOutPassesOptionsRectangleAndAdvances)
{
    RECT rect = {2, 2, 150, 40};
    int dx[] = {40, 30, 50};
    auto prepare = [](HDC hdc) { SetBkColor(hdc, RGB(0, 0, 255)); };
    ExpectSameDrawing(
        [&](CDC* dc) {
            prepare(dc->m_hDC);
            KivTextOut::DrawString(dc, 6, 6, ETO_OPAQUE | ETO_CLIPPED, &rect, kChinese, dx);
            SetBkColor(dc->m_hDC, RGB(255, 255, 255));
        },
        [&](HDC hdc) {
            prepare(hdc);
            ExtTextOutW(hdc, 6, 6, ETO_OPAQUE | ETO_CLIPPED, &rect, kChineseW, 3, dx);
            SetBkColor(hdc, RGB(255, 255, 255));
        });
    ExpectSameDrawing([&](CDC* dc) { KivTextOut(dc).DrawString(0, 0, 0, nullptr, kAstral, nullptr); },
                      [&](HDC hdc) { ExtTextOutW(hdc, 0, 0, 0, nullptr, kAstralW, 4, nullptr); });
}

TEST(KivTextOutDraw, DrawTextFormsMatchDrawTextW)
{
    RECT rect = {0, 0, 160, 48};
    ExpectSameDrawing(
        [&](CDC* dc) {
            RECT r = rect;
            KivTextOut::DrawString(dc, kChinese, &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        },
        [&](HDC hdc) {
            RECT r = rect;
            DrawTextW(hdc, kChineseW, 3, &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        });
    DibCanvas canvas(10, 10);
    CjkFont font(canvas.dc()->m_hDC);
    RECT ours = rect, theirs = rect;
    KivTextOut(canvas.dc()).DrawString(kAstral, &ours, DT_CALCRECT | DT_SINGLELINE);
    DrawTextW(canvas.dc()->m_hDC, kAstralW, 4, &theirs, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(CRect(theirs), CRect(ours));
    EXPECT_NE(CRect(rect), CRect(ours));
}

TEST(KivTextOutDraw, EmptyOrNullTextCallsNothing)
{
    Recorded baseline = Record([](CDC*) {});
    Recorded direct = Record([](CDC* dc) { ExtTextOutW(dc->m_hDC, 0, 0, 0, nullptr, L"", 0, nullptr); });
    ASSERT_GT(direct.records, baseline.records) << "an empty direct call must show in the record";
    RECT rect = {0, 0, 10, 10};
    for (const char* text : {"", static_cast<const char*>(nullptr)}) {
        Recorded ours = Record([&](CDC* dc) {
            KivTextOut::DrawString(dc, 0, 0, text);
            KivTextOut(dc).DrawString(0, 0, text);
            KivTextOut::DrawString(dc, 0, 0, ETO_OPAQUE, &rect, text, nullptr);
            KivTextOut(dc).DrawString(0, 0, ETO_OPAQUE, &rect, text, nullptr);
            RECT r = rect;
            KivTextOut::DrawString(dc, text, &r, DT_CALCRECT);
            KivTextOut(dc).DrawString(text, &r, 0);
            EXPECT_EQ(CRect(rect), CRect(r));
        });
        EXPECT_EQ(baseline.records, ours.records);
    }
}

TEST(KivTextOutDraw, EmptyOpaqueTextLeavesPixelsAlone)
{
    DibCanvas canvas(20, 20);
    RECT rect = {0, 0, 20, 20};
    SetBkColor(canvas.dc()->m_hDC, RGB(255, 0, 0));
    KivTextOut::DrawString(canvas.dc(), 0, 0, ETO_OPAQUE, &rect, "", nullptr);
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(10, 10));
    ExtTextOutW(canvas.dc()->m_hDC, 0, 0, ETO_OPAQUE, &rect, L"", 0, nullptr);
    EXPECT_EQ(RGB(255, 0, 0), canvas.Pixel(10, 10));  // what a call would have done
}

TEST(KivTextOutDraw, MissingContextOrHandleIsANoOp)
{
    RECT rect = {0, 0, 5, 5};
    CDC empty;
    for (CDC* dc : {static_cast<CDC*>(nullptr), &empty}) {
        KivTextOut::DrawString(dc, 0, 0, kChinese);
        KivTextOut(dc).DrawString(0, 0, ETO_OPAQUE, &rect, kChinese, nullptr);
        KivTextOut::DrawString(dc, kChinese, &rect, 0);
        EXPECT_EQ(CSize(0, 0), KivTextOut::GetTextExtent(dc, kChinese));
        EXPECT_EQ(CSize(0, 0), KivTextOut(dc).GetOutputTextExtent(kChinese));
    }
    DibCanvas canvas(8, 8);
    KivTextOut::DrawString(canvas.dc(), kChinese, nullptr, 0);  // no rectangle
    EXPECT_EQ(canvas.width() * canvas.height(), canvas.Count(RGB(255, 255, 255)));
}

TEST(KivTextOutDraw, AssignmentCopiesTheContext)
{
    DibCanvas first(40, 40), second(40, 40);
    KivTextOut a(first.dc()), b(second.dc());
    a = b;
    a.DrawString(2, 2, "X");
    EXPECT_EQ(40 * 40, first.Count(RGB(255, 255, 255)));
    EXPECT_LT(second.Count(RGB(255, 255, 255)), 40 * 40);
}

TEST(KivTextOutMeasure, ExtentsCountUtf16CodeUnits)
{
    DibCanvas canvas(10, 10);
    CjkFont font(canvas.dc()->m_hDC);
    SIZE chinese, astral;
    GetTextExtentPoint32W(canvas.dc()->m_hDC, kChineseW, 3, &chinese);
    GetTextExtentPoint32W(canvas.dc()->m_hDC, kAstralW, 4, &astral);
    EXPECT_GT(chinese.cx, 0);
    EXPECT_EQ(CSize(chinese), KivTextOut::GetTextExtent(canvas.dc(), kChinese));
    EXPECT_EQ(CSize(chinese), KivTextOut(canvas.dc()).GetTextExtent(kChinese));
    EXPECT_EQ(CSize(chinese), KivTextOut::GetOutputTextExtent(canvas.dc(), kChinese));
    EXPECT_EQ(CSize(astral), KivTextOut(canvas.dc()).GetOutputTextExtent(kAstral));
    EXPECT_EQ(CSize(0, 0), KivTextOut::GetTextExtent(canvas.dc(), ""));
    EXPECT_EQ(CSize(0, 0), KivTextOut::GetOutputTextExtent(canvas.dc(), nullptr));
}

TEST(KivTextOutMeasure, AttributeHandleForTextExtentOutputHandleForOutputExtent)
{
    DibCanvas output(10, 10), attribute(10, 10);
    CjkFont smallFont(output.dc()->m_hDC, 12), largeFont(attribute.dc()->m_hDC, 36);
    SIZE smallSize, largeSize;
    GetTextExtentPoint32W(output.dc()->m_hDC, kChineseW, 3, &smallSize);
    GetTextExtentPoint32W(attribute.dc()->m_hDC, kChineseW, 3, &largeSize);
    ASSERT_NE(smallSize.cx, largeSize.cx);

    CDC both;
    both.SetOutputDC(output.dc()->m_hDC);
    both.SetAttribDC(attribute.dc()->m_hDC);
    EXPECT_EQ(CSize(largeSize), KivTextOut::GetTextExtent(&both, kChinese));
    EXPECT_EQ(CSize(smallSize), KivTextOut::GetOutputTextExtent(&both, kChinese));

    both.ReleaseAttribDC();  // an output handle without an attribute handle
    EXPECT_EQ(CSize(0, 0), KivTextOut::GetTextExtent(&both, kChinese));
    EXPECT_EQ(CSize(smallSize), KivTextOut(&both).GetOutputTextExtent(kChinese));
    KivTextOut(&both).DrawString(0, 0, "X");  // drawing needs only the output handle
    EXPECT_LT(output.Count(RGB(255, 255, 255)), 100);
    both.ReleaseOutputDC();
}

namespace {

// A top-level window with a caption, destroyed with the CWnd.
class CaptionWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        HWND hwnd = CreateWindowExW(0, L"STATIC", L"initial", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                                    nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        ASSERT_NE(nullptr, hwnd);
        wnd.Attach(hwnd);
    }
    std::wstring Caption()
    {
        wchar_t text[256] = {0};
        GetWindowTextW(wnd.m_hWnd, text, 256);
        return text;
    }

    CWnd wnd;
};

}  // namespace

TEST_F(CaptionWindow, SetCaptionConvertsFromUtf8)
{
    KivTextOut::SetCaption(&wnd, kChinese);
    EXPECT_EQ(std::wstring(kChineseW), Caption());
    KivTextOut::SetCaption(wnd, kAstral);
    EXPECT_EQ(std::wstring(kAstralW), Caption());
}

TEST_F(CaptionWindow, NullTextLeavesTheCaptionEmptyTextClearsIt)
{
    KivTextOut::SetCaption(&wnd, nullptr);
    EXPECT_EQ(L"initial", Caption());
    KivTextOut::SetCaption(wnd, "");
    EXPECT_EQ(L"", Caption());
    EXPECT_EQ(0, GetWindowTextLengthW(wnd.m_hWnd));
}

TEST_F(CaptionWindow, NullWindowPassesANullHandle)
{
    SetLastError(0);
    KivTextOut::SetCaption(static_cast<CWnd*>(nullptr), "x");
    EXPECT_EQ(DWORD(ERROR_INVALID_WINDOW_HANDLE), GetLastError());
    EXPECT_EQ(L"initial", Caption());
}

TEST_F(CaptionWindow, GetCaptionConvertsToUtf8)
{
    SetWindowTextW(wnd.m_hWnd, kChineseW);
    std::string out = "old";
    KivTextOut::GetCaption(&wnd, out);
    EXPECT_EQ(kChinese, out);
    SetWindowTextW(wnd.m_hWnd, kAstralW);
    KivTextOut::GetCaption(wnd, out);
    EXPECT_EQ(kAstral, out);
}

TEST_F(CaptionWindow, GetCaptionEmptiesOutWithoutACaptionOrWindow)
{
    SetWindowTextW(wnd.m_hWnd, L"");
    std::string out = "old";
    KivTextOut::GetCaption(wnd, out);
    EXPECT_EQ("", out);
    out = "old";
    KivTextOut::GetCaption(static_cast<CWnd*>(nullptr), out);
    EXPECT_EQ("", out);
    CWnd none;
    out = "old";
    KivTextOut::GetCaption(none, out);
    EXPECT_EQ("", out);
}
