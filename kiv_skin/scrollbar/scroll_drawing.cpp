// The scroll bar's painting: background, arrow buttons, separators and thumb, drawn off-screen
// and copied to the caller's context in one step. Faces come from the scheme's "KIV_BTN" strip.
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/arrow_button.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"
#include "kiv_skin/scrollbar/plugin_scroll_bar.h"
#include "kiv_skin/scrollbar/scroll_arithmetic.h"
#include <algorithm>

namespace kiv_skin {

namespace {

const int kCell = 21;  // button strip cells are 21 pixels square
const COLORREF kNoBackground = 0xFFFFFFFF;

// Arrow directions of DrawTriangleButton.
enum { kLeft = 0, kRight = 1, kDown = 2, kUp = 3 };

bool IsFace(int type) { return type >= -2 && type <= 1; }

// Strip cell of a face type: 0 for 1, 1 for 0, 2 for -1, 3 for -2; four more on a light
// background.
int FaceCell(int type, bool dark) { return 1 - type + (dark ? 0 : 4); }

bool IsFramedPlain(int type) { return type == 2 || type == 4 || type == 5 || type == -3; }

// The six-cornered outline of shape 1 (bottom corners cut by 4 pixels) or 2 (right corners cut).
void CornerCutOutline(const CRect& r, int shape, POINT* points)
{
    int l = r.left, t = r.top, rt = r.right, b = r.bottom;
    if (shape == 1) {
        POINT cut[6] = {{l, t}, {rt - 1, t}, {rt - 1, b - 5}, {rt - 5, b - 1}, {l + 4, b - 1}, {l, b - 5}};
        std::copy(cut, cut + 6, points);
    } else {
        POINT cut[6] = {{l, t}, {rt - 5, t}, {rt - 1, t + 4}, {rt - 1, b - 5}, {rt - 5, b - 1}, {l, b - 1}};
        std::copy(cut, cut + 6, points);
    }
}

// The arrow colour of a direction that can still scroll: black on a light background, the
// background's complement on a dark one.
COLORREF EnabledArrowColor(bool dark, COLORREF background) { return dark ? 0xFFFFFF - background : 0; }

}  // namespace

void PluginScrollBar::Draw(CDC* pDC)
{
    if (m_nTotal < 2) return;
    m_clrBack = SchemeColor("PLUG_BGCOLOR");
    m_clrAxis = SchemeColor("AXIS");
    m_clrText = SchemeColor("SCROLLBARTEXT");
    m_clrLine = SchemeColor("SCROLLBARLINE");
    m_clrBar = SchemeColor("SCROLLBARBACK");
    CRect bar(0, 0, scroll_arithmetic::Subtract(m_rcScroll.right, m_rcScroll.left),
              scroll_arithmetic::Subtract(m_rcScroll.bottom, m_rcScroll.top));
    if (bar.IsRectEmpty()) return;
    CMemoDC memory(pDC, bar.Width(), bar.Height(), m_clrBack);
    DrawScrollBar(&memory, &bar, m_nPos, m_nPage, m_nTotal, m_bVertical);
    pDC->BitBlt(m_rcScroll.left, m_rcScroll.top, bar.Width(), bar.Height(), &memory, 0, 0, SRCCOPY);
}

void PluginScrollBar::DrawScrollBar(CDC* pDC, const RECT* prc, int nPos, int nPage, int nTotal, int bVertical)
{
    CRect r(prc);
    bool dark = IsDarkBackground(pDC) != 0;
    COLORREF enabled = EnabledArrowColor(dark, m_clrBack);
    CPen axis(PS_SOLID, 1, m_clrAxis);
    CPen* previousPen = pDC->SelectObject(&axis);
    DrawWekToolButton(pDC, &r, BUTTON_BACKGROUND, 0);

    r.DeflateRect(2, 2);
    int out[4];
    CalcScrollPos(&r, out, nPos, nPage, nTotal, bVertical);

    CRect first(r);
    (bVertical ? first.bottom : first.right) = out[0];
    DrawWekToolButton(pDC, &first, BUTTON_FACE, 0);
    DrawArrowButton(pDC, &first, nPos > 0 ? enabled : m_clrText, kNoBackground, bVertical ? kUp : kLeft, 0);
    pDC->MoveTo(bVertical ? first.left : first.right, bVertical ? first.bottom : first.top);
    pDC->LineTo(first.right, first.bottom);

    CRect second(r);
    (bVertical ? second.top : second.left) = out[3];
    DrawWekToolButton(pDC, &second, BUTTON_FACE, 0);
    DrawArrowButton(pDC, &second, nPos + nPage < nTotal ? enabled : m_clrText, kNoBackground,
                    bVertical ? kDown : kRight, 0);
    pDC->MoveTo(second.left, second.top);
    pDC->LineTo(bVertical ? second.right : second.left, bVertical ? second.top : second.bottom);

    // The thumb: inset by a pixel at each end, but at least 3 pixels long.
    CRect thumb(second);
    LONG& nearEdge = bVertical ? thumb.top : thumb.left;
    LONG& farEdge = bVertical ? thumb.bottom : thumb.right;
    nearEdge = out[1] + 1;
    farEdge = out[2] - 1;
    if (farEdge - nearEdge < 3) {
        --nearEdge;
        ++farEdge;
    }
    DrawWekToolButton(pDC, &thumb, BUTTON_FACE, 0);
    pDC->SelectObject(previousPen);
}

void PluginScrollBar::DrawWekToolButton(CDC* pDC, const RECT* prc, BUTTON_TYPE type, int nShape)
{
    CRect r(prc);
    bool shaped = nShape == 1 || nShape == 2;
    POINT outline[6];
    if (shaped) {
        CornerCutOutline(r, nShape, outline);
        pDC->Polygon(outline, 6);
    }
    bool hasStrip = m_bmpButton.m_hObject != nullptr;
    bool gradient = (type >= 100 && type <= 132) || (type >= 200 && type <= 300 && hasStrip);
    if (!IsFace(type) && !gradient) {
        CBrush fill(type == BUTTON_BACKGROUND ? m_clrBack : m_clrBar);
        CBrush* previousBrush = pDC->SelectObject(&fill);
        if (IsFramedPlain(type)) {
            CPen line(PS_SOLID, 1, m_clrLine);
            CPen* previousPen = pDC->SelectObject(&line);
            if (shaped)
                pDC->Polygon(outline, 6);
            else
                pDC->Rectangle(r.left, r.top, r.right, r.bottom);
            pDC->SelectObject(previousPen);
        } else {
            pDC->PatBlt(r.left, r.top, r.Width(), r.Height(), PATCOPY);
        }
        pDC->SelectObject(previousBrush);
        return;
    }

    CMemoDC strip(pDC, &m_bmpButton);
    if (gradient) {
        int column = type >= 200 ? type - 200 : type + 68;
        pDC->StretchBlt(r.left, r.top, r.Width(), r.Height(), &strip, column, 0, 1, kCell, SRCCOPY);
        CPen black(PS_SOLID, 1, RGB(0, 0, 0));
        CPen* previousPen = pDC->SelectObject(&black);
        CRect frame(r.left, r.top, r.right - 1, r.bottom - 1);
        RectangleLine(pDC, &frame);
        pDC->SelectObject(previousPen);
        return;
    }

    // A face: the cell's 21-pixel corner art, its last column and row stretched over what is
    // larger, and the bottom and right edges in the cell's corner colour.
    strip.SetWindowOrg(-kCell * FaceCell(type, IsDarkBackground(pDC) != 0), 0);
    int w = r.Width(), h = r.Height();
    int cw = (std::min)(w, kCell), ch = (std::min)(h, kCell);
    pDC->BitBlt(r.left, r.top, cw, ch, &strip, 0, 0, SRCCOPY);
    if (w > kCell) pDC->StretchBlt(r.left + kCell, r.top, w - kCell, ch, &strip, kCell - 1, 0, 1, ch, SRCCOPY);
    if (h > kCell) pDC->StretchBlt(r.left, r.top + kCell, cw, h - kCell, &strip, 0, kCell - 1, cw, 1, SRCCOPY);
    if (w > kCell && h > kCell)
        pDC->StretchBlt(r.left + kCell, r.top + kCell, w - kCell, h - kCell, &strip, kCell - 1, kCell - 1, 1, 1,
                        SRCCOPY);
    CPen edge(PS_SOLID, 1, strip.GetPixel(0, 0));
    CPen* previousPen = pDC->SelectObject(&edge);
    CPoint position = pDC->MoveTo(r.left, r.bottom - 1);
    pDC->LineTo(r.right - 1, r.bottom - 1);
    pDC->LineTo(r.right - 1, r.top + 1);
    pDC->MoveTo(position);
    pDC->SelectObject(previousPen);
}

void PluginScrollBar::DrawArrowButton(CDC* pDC, const RECT* prc, DWORD clrArrow, DWORD clrBack, int nDirection,
                                      int nKeepShape)
{
    DrawTriangleButton(pDC, prc, clrArrow, clrBack, nDirection, nKeepShape);
}

int PluginScrollBar::IsDarkBackground(CDC* pDC)
{
    COLORREF c = pDC->GetNearestColor(m_clrBack);
    return (GetRValue(c) + GetGValue(c) + GetBValue(c)) / 3 < 65 ? 1 : 0;
}

void PluginScrollBar::RectangleLine(CDC* pDC, const RECT* prc) { KivDraw::RectangleLine(pDC, prc); }

}  // namespace kiv_skin
