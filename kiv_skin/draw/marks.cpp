// Marks (small arrows and signs) of the scheme's "KIV_MARK" strip, at any whole scale.
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

const int kCell = 12;        // marks are 12 by 12
const int kMarkPitch = 24;   // each mark is a 12-column mask followed by its 12-column glyph
const int kSmallMark = 9;    // the one mark whose frame is 7 units instead of 13
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kWhite = RGB(255, 255, 255);

bool CanStretch(CDC* dc) { return (dc->GetDeviceCaps(RASTERCAPS) & RC_STRETCHBLT) != 0; }

// Paints the mask's ink (its black pixels) in color, scale by scale units per pixel, where the
// context cannot stretch.
void PaintMaskByHand(CDC* target, CMemoDC& marks, int mark, COLORREF color, int scale)
{
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, color);
    CBrush brush;
    brush.CreateSolidBrush(color);
    CPen* previousPen = target->SelectObject(&pen);
    CBrush* previousBrush = target->SelectObject(&brush);
    for (int j = 0; j < kCell; ++j)
        for (int i = 0; i < kCell; ++i)
            if (marks.GetPixel(kMarkPitch * mark + i, j) == 0)
                target->Rectangle(scale * i, scale * j, scale * (i + 1), scale * j + scale);
    target->SelectObject(previousBrush);
    target->SelectObject(previousPen);
}

// The mark enlarged scale times in a square of its own that starts as a copy of what lies at
// origin, then copied back.
void DrawScaledMark(CDC* dc, CMemoDC& marks, int mark, COLORREF color, int scale, CPoint origin)
{
    int size = kCell * scale;
    CMemoDC square(dc, size, size, kWhite);
    square.SetTextColor(kBlack);
    square.SetBkColor(kWhite);
    square.BitBlt(0, 0, size, size, dc, origin.x, origin.y, SRCCOPY);
    if (CanStretch(&square)) {
        square.StretchBlt(0, 0, size, size, &marks, kMarkPitch * mark, 0, kCell, kCell, SRCAND);
        square.SetBkColor(color);
        square.StretchBlt(0, 0, size, size, &marks, kMarkPitch * mark + kCell, 0, kCell, kCell, SRCPAINT);
    } else {
        PaintMaskByHand(&square, marks, mark, color, scale);
    }
    dc->BitBlt(origin.x, origin.y, size, size, &square, 0, 0, SRCCOPY);
}

}  // namespace

void KivDraw::DrawArrow(CDC* dc, int x, int y, int mark, COLORREF color, int framed, int scale, bool blackWhenPrinting)
{
    if (dc->IsPrinting() && blackWhenPrinting) color = kBlack;
    COLORREF previousInk = dc->SetTextColor(kBlack);
    CBitmap* strip = SchemeBitmap("KIV_MARK");
    if (strip == nullptr) return;  // the text colour stays black: callers rely on nothing else
    CMemoDC marks(dc, strip);
    COLORREF previousBack = dc->SetBkColor(kWhite);
    int half = (mark == kSmallMark ? 3 : 6) * scale;
    int frame = (mark == kSmallMark ? 7 : 13) * scale;
    CRect frameRect;
    if (scale == 1) {
        dc->BitBlt(x - 5, y - 5, kCell, kCell, &marks, kMarkPitch * mark, 0, SRCAND);
        dc->SetBkColor(color);
        dc->BitBlt(x - 5, y - 5, kCell, kCell, &marks, kMarkPitch * mark + kCell, 0, SRCPAINT);
        frameRect.SetRect(x - half, y - 5, x - half + frame, y - 5 + frame);
    } else {
        CPoint origin(x - 5 * scale, y - 5 * scale);
        DrawScaledMark(dc, marks, mark, color, scale, origin);
        frameRect.SetRect(origin.x, origin.y, origin.x + frame, origin.y + frame);
    }
    if (framed) dc->FrameRect(&frameRect, &m_frameBrush);
    dc->SetBkColor(previousBack);
    dc->SetTextColor(previousInk);
}

// Exported for the host's sake; draws nothing.
void KivDraw::DrawXorArrow(CDC*, int, int, int, int) {}

}  // namespace kiv_skin
