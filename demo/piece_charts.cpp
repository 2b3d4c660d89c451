#include "demo/piece_painters.h"
#include "demo/scheme_text.h"
#include <cstdio>

using kiv_skin::KivDraw;

namespace {

const int kMarkCount = 10;
const int kIconCount = 28;

// The colour a mark stands for: up arrow and rise in the rising colour, down arrow and fall in
// the falling one, the rest plain.
COLORREF MarkColor(int mark)
{
    if (mark == 0 || mark == 3) return SchemeColor("UPTEXT");
    if (mark == 1 || mark == 2) return SchemeColor("DOWNTEXT");
    return SchemeColor("EQUTEXT");
}

// A small number centred under a picture that spans left to left + width.
void Caption(CDC* dc, int number, int left, int width, int top)
{
    char text[8];
    std::snprintf(text, sizeof(text), "%d", number);
    CRect box(left - 4, top, left + width + 4, top + 12);
    WriteText(dc, text, box, "SMALL", KivDraw::MakeMixColor(dc, SchemeColor("EQUTEXT"), SchemeColor("PLUG_BGCOLOR"), 55),
              DT_CENTER | DT_TOP | DT_SINGLELINE);
}

// Every mark in a row at scale, each numbered underneath.
void MarkRow(CDC* dc, KivDraw& kit, const CRect& area, int scale, int framed)
{
    int cell = 12 * scale, pitch = cell + 4 * scale;
    CRect row = Centred(area, kMarkCount * pitch - (pitch - cell), cell + 14);
    for (int mark = 0; mark < kMarkCount; ++mark) {
        int left = row.left + mark * pitch;
        kit.DrawArrow(dc, left + 5 * scale, row.top + 5 * scale, mark, MarkColor(mark), framed, scale, false);
        Caption(dc, mark, left, cell, row.top + cell + 2);
    }
}

void IconRow(CDC* dc, const CRect& area, int autoDark)
{
    const int icon = 19, pitch = 25;
    CRect row = Centred(area, kIconCount * pitch - (pitch - icon), icon + 14);
    for (int i = 0; i < kIconCount; ++i) {
        KivDraw::DrawWekIcons(dc, i, row.left + i * pitch, row.top, 1, autoDark);
        Caption(dc, i, row.left + i * pitch, icon, row.top + icon + 2);
    }
}

// A price right-aligned at x in the row font and the colour of its sign.
void Price(CDC* dc, KivDraw& kit, const char* text, int x, int y, int signArrow)
{
    COLORREF color = text[0] == '+' ? SchemeColor("UPTEXT") : text[0] == '-' ? SchemeColor("DOWNTEXT") : SchemeColor("EQUTEXT");
    SchemeTextStyle style(dc, "PLUG_STDFONT", color);
    UINT align = dc->SetTextAlign(TA_RIGHT | TA_TOP);
    kit.DrawUL(dc, x, y, text, signArrow);
    dc->SetTextAlign(align);
}

}  // namespace

// --- Text and prices -------------------------------------------------------------------------

void RichTextPiece(CDC* dc, KivDraw&, const CRect& area)
{
    // 最新 (last), then a rise and a fall, each with the scheme's image for it.
    const char markup[] = "\xE6\x9C\x80\xE6\x96\xB0 <*sc=UPTEXT*><*b*>1688.00<*b=0*><*si=IMG_RISE*> "
                          "<*sc=DOWNTEXT*>-1.84<*si=IMG_FALL*>";
    CRect line = Centred(area, 150, 20);
    WriteRichText(dc, markup, line, "PLUG_STDFONT", SchemeColor("EQUTEXT"));
}

void PricesPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    const char* prices[] = {"1688.00", "+12.50", "-1.84"};
    CRect box = Centred(area, 130, 3 * 17);
    for (int i = 0; i < 3; ++i) {
        Price(dc, kit, prices[i], box.left + 55, box.top + i * 17 + 2, 0);
        Price(dc, kit, prices[i], box.right, box.top + i * 17 + 2, 1);
    }
}

// --- Percentage bars -------------------------------------------------------------------------

// A horizontal bar over vertical ones, rising against falling, thin enough to be drawn flat or
// thick enough to be shaded.
void PercentBars(CDC* dc, const CRect& area, int thickness)
{
    COLORREF up = SchemeColor("UPTEXT"), down = SchemeColor("DOWNTEXT");
    const int splits[] = {62, 35, 80, 50, 20, 70};
    CRect box = Centred(area, 140, 44);
    CRect across(box.left, box.top, box.right, box.top + thickness);
    KivDraw::Draw3DPercentBar(dc, &across, across.left + across.Width() * splits[0] / 100, up, down, 1);
    for (int i = 0; i < 6; ++i) {
        int left = box.left + i * (box.Width() - thickness) / 5;
        CRect column(left, box.top + 14, left + thickness, box.bottom);
        KivDraw::Draw3DPercentBar(dc, &column, column.bottom - column.Height() * splits[i] / 100, up, down, 0);
    }
}

void FlatBarsPiece(CDC* dc, KivDraw&, const CRect& area) { PercentBars(dc, area, 3); }
void ShadedBarsPiece(CDC* dc, KivDraw&, const CRect& area) { PercentBars(dc, area, 10); }

// --- Axes ------------------------------------------------------------------------------------

// Minutes of the trading day, labelled every half hour, titled 分钟 (minutes).
void HorizontalAxisPiece(CDC* dc, KivDraw&, const CRect& area)
{
    CPoint from(area.left + 20, area.top + 18), to(area.right - 20, area.top + 18);
    std::string title = Utf8ToAnsi("\xE5\x88\x86\xE9\x92\x9F");
    KivDraw::DrawAxis(dc, 1, from, to, 0, 240, 8, title.c_str(), 0xFFFFFFFF, nullptr, 1, 0);
}

// Prices, titled 元 (yuan), with labels kept 24 units apart to fit two in the piece.
void VerticalAxisPiece(CDC* dc, KivDraw&, const CRect& area)
{
    CPoint from(area.left + 100, area.bottom - 4), to(area.left + 100, area.top + 4);
    std::string title = Utf8ToAnsi("\xE5\x85\x83");
    KivDraw::DrawAxis(dc, 0, from, to, 1668, 1692, 4, title.c_str(), 0xFFFFFFFF, nullptr, 0, 8);
}

// --- Arrows, marks and icons -----------------------------------------------------------------

void ArrowButtonsPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    const int button = 24, gap = 8;
    CRect row = Centred(area, 4 * button + 3 * gap, button);
    for (int direction = 0; direction < 4; ++direction) {
        CRect face(row.left + direction * (button + gap), row.top, row.left + direction * (button + gap) + button, row.bottom);
        kit.DrawArrowButton(dc, &face, SchemeColor("PLUG_BTN_TEXTCOLOR"), SchemeColor("PLUG_BTN_BGCOLOR"), direction, 0);
    }
}

void MarksPiece(CDC* dc, KivDraw& kit, const CRect& area) { MarkRow(dc, kit, area, 1, 0); }
void FramedMarksPiece(CDC* dc, KivDraw& kit, const CRect& area) { MarkRow(dc, kit, area, 1, 1); }
void ScaledMarksPiece(CDC* dc, KivDraw& kit, const CRect& area) { MarkRow(dc, kit, area, 2, 0); }
void LightIconsPiece(CDC* dc, KivDraw&, const CRect& area) { IconRow(dc, area, 0); }
void AutoDarkIconsPiece(CDC* dc, KivDraw&, const CRect& area) { IconRow(dc, area, 1); }
