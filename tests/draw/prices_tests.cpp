// Prices with the fraction underlined in place of the decimal point and a mark in place of the
// sign, compared with the same pieces drawn by hand.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "support/bitmap_files.h"
#include <cstring>

using kiv_skin::KivDraw;

namespace {

const COLORREF kInk = RGB(230, 60, 60);

// A sheet with the standard font and text colour set, text transparent.
class PriceSheet : public Sheet {
public:
    PriceSheet() : Sheet(160, 30), m_font(dc(), "PLUG_STDFONT")
    {
        ::SetTextColor(dc()->m_hDC, kInk);
        ::SetBkMode(dc()->m_hDC, TRANSPARENT);
        check = DcStateCheck(dc());
    }
    SIZE Extent(const char* text)
    {
        SIZE size;
        ::GetTextExtentPoint32A(dc()->m_hDC, text, static_cast<int>(std::strlen(text)), &size);
        return size;
    }
    // The integral part at x0 + pad, the fraction after it, its underline, and the mark.
    void ByHand(int x0, int y, const char* integral, const char* fraction, int pad, int mark)
    {
        HDC hdc = dc()->m_hDC;
        SIZE whole = Extent(integral), part = Extent(fraction);
        ::TextOutA(hdc, x0 + pad, y, integral, static_cast<int>(std::strlen(integral)));
        ::TextOutA(hdc, x0 + pad + whole.cx, y, fraction, static_cast<int>(std::strlen(fraction)));
        if (mark >= 0) MarkByHand(x0, y + whole.cy - 13, mark);
        HPEN pen = ::CreatePen(PS_SOLID, 1, kInk);
        HGDIOBJ previous = ::SelectObject(hdc, pen);
        ::MoveToEx(hdc, x0 + pad + whole.cx, y + whole.cy - 1, nullptr);
        ::LineTo(hdc, x0 + pad + whole.cx + part.cx, y + whole.cy - 1);
        ::SelectObject(hdc, previous);
        ::DeleteObject(pen);
    }

    // The mark's 12 x 12 cell of the strip at (x, y): ink where its mask is black.
    void MarkByHand(int x, int y, int mark)
    {
        PixelGrid strip = BitmapPixels(*kiv_skin::KivStyleMgr::GetInstance()->GetBitmap("KIV_MARK"));
        for (int j = 0; j < 12; ++j)
            for (int i = 0; i < 12; ++i)
                if (strip.At(24 * mark + i, j) == RGB(0, 0, 0)) ::SetPixel(dc()->m_hDC, x + i, y + j, kInk);
    }

private:
    SchemeFontIn m_font;
};

}  // namespace

using TestSchemePrices = TestScheme;

TEST_F(TestSchemePrices, SignBecomesAMarkAndTheFractionIsUnderlined)
{
    PriceSheet sheet, byHand;
    KivDraw draw;
    draw.DrawUL(sheet.dc(), 10, 5, "-12.34", 1);
    byHand.ByHand(10, 5, "12", "34", 11, 2);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_GT(sheet.Count(kInk, {0, 0, 160, 30}), 30);
    EXPECT_TRUE(sheet.check.Unchanged());

    PriceSheet rise, riseByHand;
    draw.DrawUL(rise.dc(), 10, 5, "+1688.00", 1);
    riseByHand.ByHand(10, 5, "1688", "00", 11, 3);
    EXPECT_TRUE(SamePixels(rise, riseByHand));
}

TEST_F(TestSchemePrices, WithoutSignArrowTheSignIsText)
{
    PriceSheet sheet, byHand;
    KivDraw draw;
    draw.DrawUL(sheet.dc(), 10, 5, "-12.34", 0);
    byHand.ByHand(10, 5, "-12", "34", 0, -1);
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemePrices, TextWithoutAPointIsDrawnUnchanged)
{
    PriceSheet sheet, byHand;
    KivDraw draw;
    draw.DrawUL(sheet.dc(), 10, 5, "1234", 1);
    ::TextOutA(byHand.dc()->m_hDC, 10, 5, "1234", 4);
    EXPECT_TRUE(SamePixels(sheet, byHand));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemePrices, TheLastPointCounts)
{
    PriceSheet sheet, byHand;
    KivDraw draw;
    draw.DrawUL(sheet.dc(), 10, 5, "1.2.50", 0);
    byHand.ByHand(10, 5, "1.2", "50", 0, -1);
    EXPECT_TRUE(SamePixels(sheet, byHand));
}

TEST_F(TestSchemePrices, RightAndCentreAlignmentEndThePriceAtX)
{
    for (UINT align : {UINT(TA_RIGHT), UINT(TA_CENTER)}) {
        PriceSheet sheet, byHand;
        ::SetTextAlign(sheet.dc()->m_hDC, align);
        sheet.check = DcStateCheck(sheet.dc());
        KivDraw draw;
        draw.DrawUL(sheet.dc(), 150, 5, "-12.34", 1);
        int width = byHand.Extent("12").cx + byHand.Extent("34").cx + 11;
        byHand.ByHand(150 - width, 5, "12", "34", 11, 2);
        EXPECT_TRUE(SamePixels(sheet, byHand)) << "alignment " << align;
        EXPECT_TRUE(sheet.check.Unchanged()) << "alignment " << align;
    }
}

TEST_F(TestSchemePrices, OnlyTheIntegralPartPaintsAnOpaqueBackground)
{
    PriceSheet sheet, byHand;
    ::SetBkColor(sheet.dc()->m_hDC, RGB(20, 20, 40));
    sheet.check = DcStateCheck(sheet.dc());
    CRect clip(5, 2, 120, 25);
    KivDraw draw;
    draw.DrawUL(sheet.dc(), 10, 5, ETO_OPAQUE | ETO_CLIPPED, &clip, "8.92", 4, nullptr, 0);
    HBRUSH background = ::CreateSolidBrush(RGB(20, 20, 40));
    ::FillRect(byHand.dc()->m_hDC, &clip, background);
    ::DeleteObject(background);
    byHand.ByHand(10, 5, "8", "92", 0, -1);
    EXPECT_TRUE(SamePixels(sheet, byHand)) << "the fraction must not paint over the integral part";
    EXPECT_TRUE(sheet.check.Unchanged());
}
