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

// The strip selected into a memory context compatible with dc, for the copies of one mark: the
// context and the selections a CMemoDC on the caller's bitmap makes, without the framework's
// handle-map entries or the size read that nothing here uses. Fails as CMemoDC does.
class StripContext {
public:
    StripContext(CDC* dc, CBitmap* strip) : m_hDC(::CreateCompatibleDC(dc->m_hDC))
    {
        if (m_hDC == nullptr) AfxThrowResourceException();
        m_previous = ::SelectObject(m_hDC, strip->m_hObject);
    }
    ~StripContext()
    {
        ::SelectObject(m_hDC, m_previous);
        ::DeleteDC(m_hDC);
    }
    StripContext(const StripContext&) = delete;
    StripContext& operator=(const StripContext&) = delete;
    HDC hdc() const { return m_hDC; }

private:
    HDC m_hDC;
    HGDIOBJ m_previous;
};

// Paints the mask's ink (its black pixels) in color, scale by scale units per pixel, where the
// context cannot stretch.
void PaintMaskByHand(CDC* target, const StripContext& marks, int mark, COLORREF color, int scale)
{
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, color);
    CBrush brush;
    brush.CreateSolidBrush(color);
    CPen* previousPen = target->SelectObject(&pen);
    CBrush* previousBrush = target->SelectObject(&brush);
    for (int j = 0; j < kCell; ++j)
        for (int i = 0; i < kCell; ++i)
            if (::GetPixel(marks.hdc(), kMarkPitch * mark + i, j) == 0)
                target->Rectangle(scale * i, scale * j, scale * (i + 1), scale * j + scale);
    target->SelectObject(previousBrush);
    target->SelectObject(previousPen);
}

// The mark enlarged scale times in a square of its own that starts as a copy of what lies at
// origin, then copied back.
void DrawScaledMark(CDC* dc, const StripContext& marks, int mark, COLORREF color, int scale, CPoint origin)
{
    int size = kCell * scale;
    CMemoDC square(dc, size, size, kWhite);
    square.SetTextColor(kBlack);
    square.SetBkColor(kWhite);
    square.BitBlt(0, 0, size, size, dc, origin.x, origin.y, SRCCOPY);
    if (CanStretch(&square)) {
        ::StretchBlt(square.m_hDC, 0, 0, size, size, marks.hdc(), kMarkPitch * mark, 0, kCell, kCell, SRCAND);
        square.SetBkColor(color);
        ::StretchBlt(square.m_hDC, 0, 0, size, size, marks.hdc(), kMarkPitch * mark + kCell, 0, kCell, kCell, SRCPAINT);
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
    StripContext marks(dc, strip);
    COLORREF previousBack = dc->SetBkColor(kWhite);
    int half = (mark == kSmallMark ? 3 : 6) * scale;
    int frame = (mark == kSmallMark ? 7 : 13) * scale;
    CRect frameRect;
    if (scale == 1) {
        ::BitBlt(dc->m_hDC, x - 5, y - 5, kCell, kCell, marks.hdc(), kMarkPitch * mark, 0, SRCAND);
        dc->SetBkColor(color);
        ::BitBlt(dc->m_hDC, x - 5, y - 5, kCell, kCell, marks.hdc(), kMarkPitch * mark + kCell, 0, SRCPAINT);
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
