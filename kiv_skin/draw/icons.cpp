// The 28 icons of the scheme's icon strips, with the dark-background variant chosen on request.
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

const unsigned kIconCount = 28;
const int kIcon = 19;
// At scale 1 an icon is read from a 23-unit pitch with a 2-unit inset; scaled, from a 19-unit
// pitch without inset. The scheme's strips are made for the first.
const int kPitch = 23, kInset = 2;

}  // namespace

void KivDraw::DrawWekIcons(CDC* dc, int icon, int x, int y, int scale, int autoDark)
{
    if (static_cast<unsigned>(icon) >= kIconCount) return;
    bool dark = autoDark && IsDarkBackground(dc);
    CBitmap* maskStrip = SchemeBitmap("IDB_ICONS");
    CBitmap* darkStrip = SchemeBitmap("IDB_ICONREVBLACK");
    CBitmap* lightStrip = SchemeBitmap("IDB_ICONREV");
    if (!maskStrip || !darkStrip || !lightStrip) return;
    CMemoDC mask(dc, maskStrip);
    CMemoDC glyph(dc, dark ? darkStrip : lightStrip);
    COLORREF previousBack = dc->SetBkColor(RGB(255, 255, 255));
    COLORREF previousInk = dc->SetTextColor(RGB(0, 0, 0));
    if (scale == 1) {
        int sx = kPitch * icon + kInset;
        dc->BitBlt(x, y, kIcon, kIcon, &glyph, sx, kInset, SRCPAINT);
        dc->BitBlt(x, y, kIcon, kIcon, &mask, sx, kInset, SRCAND);
    } else if (dc->GetDeviceCaps(RASTERCAPS) & RC_STRETCHBLT) {
        int size = kIcon * scale;
        dc->StretchBlt(x, y, size, size, &glyph, kIcon * icon, 0, kIcon, kIcon, SRCPAINT);
        dc->StretchBlt(x, y, size, size, &mask, kIcon * icon, 0, kIcon, kIcon, SRCAND);
    }
    dc->SetBkColor(previousBack);
    dc->SetTextColor(previousInk);
}

// Exported for the host's sake; draws nothing.
void KivDraw::DrawWekImage(CDC*, int, int, int) {}

}  // namespace kiv_skin
