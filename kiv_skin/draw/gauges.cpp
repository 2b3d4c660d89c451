// Two-colour percentage bars, lit from a strip of shaded colours when there is room for one.
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"

namespace kiv_skin {
namespace {

const COLORREF kWhite = RGB(255, 255, 255);

// The closed outline through the four corners, with the selected pen; the current position is
// put back.
void Outline(CDC* dc, POINT a, POINT b, POINT c, POINT d)
{
    CPoint position = dc->MoveTo(a);
    dc->LineTo(b);
    dc->LineTo(c);
    dc->LineTo(d);
    dc->LineTo(a);
    dc->MoveTo(position);
}

// Copies the part of the shading strip that starts at (x, y) and is w by h over rect.
void Shade(CDC* dc, const CRect& rect, CMemoDC& strip, int x, int y, int w, int h)
{
    dc->StretchBlt(rect.left, rect.top, rect.Width(), rect.Height(), &strip, x, y, w, h, SRCCOPY);
}

void HorizontalBar(CDC* dc, CRect bar, int split, COLORREF first, COLORREF second, CMemoDC& strip, bool shaded)
{
    int half = strip.GetSize().cy / 2;
    if (split < bar.right) {
        CRect rest(split, bar.top, bar.right, bar.bottom);
        if (shaded)
            Shade(dc, rest, strip, 0, half, 1, half);
        else
            KivDraw::FillRect(dc, &rest, second);
        bar.right = split;
    } else if (split > bar.right) {
        Outline(dc, {split, bar.top}, {bar.right - 1, bar.top}, {bar.right - 1, bar.bottom - 1}, {split, bar.bottom - 1});
    }
    if (shaded)
        Shade(dc, bar, strip, 0, 0, 1, half);
    else
        KivDraw::FillRect(dc, bar.left, bar.top, bar.Width(), bar.Height() - 1, first);
}

void VerticalBar(CDC* dc, CRect bar, int split, COLORREF first, COLORREF second, CMemoDC& strip, bool shaded)
{
    int half = strip.GetSize().cx / 2;
    if (split > bar.top) {
        CRect rest(bar.left, bar.top, bar.right, split);
        if (shaded)
            Shade(dc, rest, strip, half, 0, half, 1);
        else
            KivDraw::FillRect(dc, &rest, second);
        bar.top = split;
    } else if (split < bar.top) {
        Outline(dc, {bar.left, bar.top}, {bar.right - 1, bar.top}, {bar.right - 1, split}, {bar.left, split});
    }
    if (shaded)
        Shade(dc, bar, strip, 0, 0, half, 1);
    else
        KivDraw::FillRect(dc, bar.left, bar.top, bar.Width() - 1, bar.Height(), first);
}

}  // namespace

// The flat forms leave the last row (or column) of the first colour's part unpainted while the
// second colour's part is painted whole: that asymmetry is the bar's look.
void KivDraw::Draw3DPercentBar(CDC* dc, const RECT* rect, int split, COLORREF first, COLORREF second, int horizontal)
{
    CRect bar(rect);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, first);
    CPen* previousPen = dc->SelectObject(&pen);
    // The shading strip: both colours lit end to end across twice the bar's thickness.
    int across = horizontal ? bar.Height() : bar.Width();
    CMemoDC strip(dc, horizontal ? 1 : 2 * across, horizontal ? 2 * across : 1, kWhite);
    bool shaded = 2 * across >= 8;
    if (shaded) {
        COLORREF colors[2] = {first, second};
        Make3DColor(&strip, across, colors, 2, horizontal);
    }
    if (horizontal)
        HorizontalBar(dc, bar, split, first, second, strip, shaded);
    else
        VerticalBar(dc, bar, split, first, second, strip, shaded);
    dc->SelectObject(previousPen);
}

// Exported for the host's sake; draws nothing.
void KivDraw::Draw3DProgress(CDC*, int, const RECT*, int, int) {}

}  // namespace kiv_skin
