// Fills, outlines, grooved title strips, rounded rectangles, and the panel's frame and selection.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

// Outlines left, top, right, bottom with the selected pen, right and bottom included, and puts
// the current position back.
void Outline(CDC* dc, int left, int top, int right, int bottom)
{
    CPoint position = dc->MoveTo(left, top);
    dc->LineTo(right, top);
    dc->LineTo(right, bottom);
    dc->LineTo(left, bottom);
    dc->LineTo(left, top);
    dc->MoveTo(position);
}

// The outline just inside rect: its right and bottom lines lie on right - 1 and bottom - 1.
void InsideOutline(CDC* dc, const RECT* rect) { Outline(dc, rect->left, rect->top, rect->right - 1, rect->bottom - 1); }

// Horizontal lines across rect on rows first, first + 3, ... above its bottom; the current
// position is put back.
void EveryThirdRow(CDC* dc, const RECT* rect, int first)
{
    CPoint position = dc->MoveTo(rect->left, first);
    for (int y = first; y < rect->bottom; y += 3) {
        dc->MoveTo(rect->left, y);
        dc->LineTo(rect->right, y);
    }
    dc->MoveTo(position);
}

}  // namespace

void KivDraw::FillRect(CDC* dc, int x, int y, int width, int height, COLORREF color)
{
    if (color == kNoColor) color = SchemeColor("BACKGROUND");
    CBrush brush;
    brush.CreateSolidBrush(color);
    CBrush* previous = dc->SelectObject(&brush);
    dc->PatBlt(x, y, width, height, PATCOPY);
    dc->SelectObject(previous);
}

void KivDraw::FillRect(CDC* dc, const RECT* rect, COLORREF color)
{
    FillRect(dc, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, color);
}

void KivDraw::RectangleLine(CDC* dc, const RECT* rect) { Outline(dc, rect->left, rect->top, rect->right, rect->bottom); }

void KivDraw::DrawTitleLine(CDC* dc, const RECT* rect, COLORREF color)
{
    CPen light, dark;
    light.CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNHIGHLIGHT));
    dark.CreatePen(PS_SOLID, 1, color);
    CPen* previous = dc->SelectObject(&dark);
    EveryThirdRow(dc, rect, rect->top + 2);
    dc->SelectObject(&light);
    EveryThirdRow(dc, rect, rect->top + 1);
    dc->SelectObject(previous);
}

void KivDraw::FillRoundRect(CDC* dc, const RECT* rect, POINT corner, COLORREF color)
{
    CBrush brush;
    brush.CreateSolidBrush(color);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, color);
    CBrush* previousBrush = dc->SelectObject(&brush);
    CPen* previousPen = dc->SelectObject(&pen);
    dc->RoundRect(rect, corner);
    dc->SelectObject(previousBrush);
    dc->SelectObject(previousPen);
}

int KivDraw::DrawPluginSelect(CDC* dc, const RECT* rect, int width, int penStyle, COLORREF color)
{
    if (dc == nullptr) return -1;
    if (color == 0) color = SchemeColor("PLUG_SELCOLOR");
    int penWidth = width == 0 ? 1 : width;
    int style = penStyle == -1 || penWidth >= 2 ? PS_SOLID : penStyle;
    CPen pen;
    pen.CreatePen(style, penWidth, color);
    CPen* previous = dc->SelectObject(&pen);
    InsideOutline(dc, rect);
    dc->SelectObject(previous);
    return penWidth;
}

int KivDraw::DrawPluginFrame(CDC* dc, const RECT* rect)
{
    if (dc == nullptr) return -1;
    COLORREF background = SchemeColor("PLUG_BGCOLOR");
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, SchemeColor("PLUG_FRAME"));
    CPen* previous = dc->SelectObject(&pen);
    dc->FillSolidRect(rect, background);
    InsideOutline(dc, rect);
    dc->SelectObject(previous);
    return 1;
}

}  // namespace kiv_skin
