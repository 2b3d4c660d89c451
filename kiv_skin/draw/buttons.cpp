// Icon buttons of the scheme's "KIV_TOOL" strip in their normal, hover and pressed states.
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/arrow_button.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

const int kIcon = 16;        // icons are 16 by 16
const int kIconPitch = 32;   // each icon is a 16-column mask followed by its 16-column glyph

// Fills rect with color and puts the context's background colour back.
void FillKeepingBackground(CDC* dc, const CRect* rect, COLORREF color)
{
    COLORREF background = dc->GetBkColor();
    dc->FillSolidRect(rect, color);
    dc->SetBkColor(background);
}

// The triangle's corners in r, for each direction.
void TrianglePoints(const CRect& r, int direction, POINT points[3])
{
    int midX = (r.left + r.right) / 2, midY = (r.top + r.bottom) / 2;
    switch (direction) {
    case 0: points[0] = {r.left, midY}, points[1] = {r.right, r.top}, points[2] = {r.right, r.bottom}; break;
    case 1: points[0] = {r.left, r.top}, points[1] = {r.right, midY}, points[2] = {r.left, r.bottom}; break;
    case 2: points[0] = {r.left, r.top}, points[1] = {r.right, r.top}, points[2] = {midX, r.bottom}; break;
    case 3: points[0] = {midX, r.top}, points[1] = {r.right, r.bottom}, points[2] = {r.left, r.bottom}; break;
    default: points[0] = {r.left, r.top}, points[1] = {r.right, r.top}, points[2] = {r.left, r.bottom}; break;
    }
}

}  // namespace

void DrawTriangleButton(CDC* dc, const RECT* rect, COLORREF arrowColor, COLORREF background, int direction,
                        int keepShape)
{
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, arrowColor);
    CPen* previousPen = dc->SelectObject(&pen);
    if (background != kNoColor) {
        CBrush fill;
        fill.CreateSolidBrush(background);
        CBrush* previous = dc->SelectObject(&fill);
        dc->Rectangle(rect);
        dc->SelectObject(previous);
    }
    CRect r(rect);
    if (!keepShape) {
        int w = r.Width(), h = r.Height();
        if (w <= h)
            r.InflateRect(0, -((h - w) / 2));
        else
            r.InflateRect(-((w - h) / 2), 0);
    }
    r.InflateRect(1 - r.Width() / 3, 1 - r.Height() / 3);
    POINT points[3];
    TrianglePoints(r, direction, points);
    CBrush arrow;
    arrow.CreateSolidBrush(arrowColor);
    CBrush* previousBrush = dc->SelectObject(&arrow);
    dc->Polygon(points, 3);
    dc->SelectObject(previousBrush);
    dc->SelectObject(previousPen);
}

void KivDraw::DrawArrowButton(CDC* dc, const RECT* rect, COLORREF arrowColor, COLORREF background, int direction,
                              int keepShape)
{
    DrawTriangleButton(dc, rect, arrowColor, background, direction, keepShape);
}

void KivDraw::DrawButtonBackground(CDC* dc, CRect* rect, BUTTON_STATE state)
{
    dc->FillSolidRect(rect, GetButtonBackgroundColor(state));
}

void KivDraw::DrawButton(CDC* dc, CRect* rect, BUTTON_STATE state, int image, int transparent, int framed)
{
    if (dc == nullptr) return;
    if (!transparent) FillKeepingBackground(dc, rect, GetButtonBackgroundColor(state));
    CBitmap* strip = SchemeBitmap("KIV_TOOL");
    if (strip == nullptr) return;
    CMemoDC icons(dc, strip);

    // Centred when the rect is larger than the icon; the full height is copied, not 16 rows.
    int x = rect->left, w = rect->Width(), y = rect->top, h = rect->Height();
    if (w > kIcon) {
        x = (rect->left - kIcon + rect->right) / 2;
        w = kIcon;
    }
    if (h > kIcon) y = (rect->top - kIcon + rect->bottom) / 2;
    COLORREF ink = SchemeColor("PLUG_BTN_TEXTCOLOR");
    int mask = kIconPitch * image;

    // The one-bit strip maps its black pixels to the text colour and white ones to the background.
    if (transparent) {
        COLORREF oldText = dc->SetTextColor(RGB(0, 0, 0));
        COLORREF oldBack = dc->SetBkColor(RGB(255, 255, 255));
        dc->BitBlt(x, y, w, h, &icons, mask, 0, SRCAND);
        dc->SetBkColor(ink);
        dc->BitBlt(x, y, w, h, &icons, mask + kIcon, 0, SRCPAINT);
        dc->SetBkColor(oldBack);
        dc->SetTextColor(oldText);
    } else {
        COLORREF oldBack = dc->SetBkColor(GetButtonBackgroundColor(state));
        COLORREF oldText = dc->SetTextColor(ink);
        dc->BitBlt(x, y, w, h, &icons, mask, 0, SRCCOPY);
        dc->SetBkColor(oldBack);
        dc->SetTextColor(oldText);
    }
    if (framed) dc->FrameRect(rect, &m_plugFrameBrush);
}

// Exported for the host's sake; draws nothing.
void KivDraw::DrawDlgButton(CDC*, const RECT*, const char*, int) {}

}  // namespace kiv_skin
