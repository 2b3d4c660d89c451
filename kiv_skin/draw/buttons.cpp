// Icon buttons of the scheme's "KIV_TOOL" strip in their normal, hover and pressed states.
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

const int kIcon = 16;        // icons are 16 by 16
const int kIconPitch = 32;   // each icon is a 16-column mask followed by its 16-column glyph

}  // namespace

void KivDraw::DrawButtonBackground(CDC* dc, CRect* rect, BUTTON_STATE state)
{
    dc->FillSolidRect(rect, GetButtonBackgroundColor(state));
}

void KivDraw::DrawButton(CDC* dc, CRect* rect, BUTTON_STATE state, int image, int transparent, int framed)
{
    if (dc == nullptr) return;
    if (!transparent) {
        // Filling a solid rectangle sets the background colour; the caller keeps its own.
        COLORREF callerBack = dc->GetBkColor();
        dc->FillSolidRect(rect, GetButtonBackgroundColor(state));
        dc->SetBkColor(callerBack);
    }
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
