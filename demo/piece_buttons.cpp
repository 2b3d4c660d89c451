#include "demo/piece_painters.h"
#include "demo/scheme_text.h"
#include "kiv_skin/display/memo_dc.h"

using kiv_skin::CMemoDC;
using kiv_skin::KivDraw;

namespace {

const int kButton = 24;
const int kToolIcons = 12;

// Equal swatches side by side across area, one per colour.
void Swatches(CDC* dc, const CRect& area, const COLORREF* colors, int count)
{
    const int gap = 4;
    int width = (area.Width() - gap * (count - 1)) / count;
    for (int i = 0; i < count; ++i) {
        int left = area.left + i * (width + gap);
        KivDraw::FillRect(dc, left, area.top, width, area.Height(), colors[i]);
    }
}

// Four icons of the tool strip as buttons in one state, framed unless normal.
void ButtonsInState(CDC* dc, KivDraw& kit, const CRect& area, KivDraw::BUTTON_STATE state)
{
    const int icons[] = {4, 5, 8, 0};  // settings, refresh, search, close
    CRect row = Centred(area, 4 * kButton + 3 * 6, kButton);
    for (int i = 0; i < 4; ++i) {
        CRect button(row.left + i * (kButton + 6), row.top, row.left + i * (kButton + 6) + kButton, row.bottom);
        kit.DrawButton(dc, &button, state, icons[i], 0, state != KivDraw::BUTTON_NORMAL);
    }
}

}  // namespace

// --- Buttons ---------------------------------------------------------------------------------

void NormalButtonsPiece(CDC* dc, KivDraw& kit, const CRect& area) { ButtonsInState(dc, kit, area, KivDraw::BUTTON_NORMAL); }
void HoverButtonsPiece(CDC* dc, KivDraw& kit, const CRect& area) { ButtonsInState(dc, kit, area, KivDraw::BUTTON_HOVER); }
void PressedButtonsPiece(CDC* dc, KivDraw& kit, const CRect& area) { ButtonsInState(dc, kit, area, KivDraw::BUTTON_PRESSED); }

// Every icon of the strip, drawn transparent on the panel's background, in two rows.
void ToolIconsPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    const int pitch = 20, perRow = kToolIcons / 2;
    CRect grid = Centred(area, perRow * pitch, 2 * pitch);
    for (int i = 0; i < kToolIcons; ++i) {
        int left = grid.left + (i % perRow) * pitch, top = grid.top + (i / perRow) * pitch;
        CRect cell(left, top, left + pitch - 2, top + pitch - 2);
        kit.DrawButton(dc, &cell, KivDraw::BUTTON_NORMAL, i, 1, 0);
    }
}

void ButtonBackgroundPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    const KivDraw::BUTTON_STATE states[] = {KivDraw::BUTTON_NORMAL, KivDraw::BUTTON_HOVER, KivDraw::BUTTON_PRESSED};
    CRect row = Centred(area, 3 * 30 + 2 * 6, 24);
    for (int i = 0; i < 3; ++i) {
        CRect face(row.left + i * 36, row.top, row.left + i * 36 + 30, row.bottom);
        kit.DrawButtonBackground(dc, &face, states[i]);
    }
}

// --- Colours ---------------------------------------------------------------------------------

void MixColorPiece(CDC* dc, KivDraw&, const CRect& area)
{
    COLORREF up = SchemeColor("UPTEXT"), down = SchemeColor("DOWNTEXT");
    COLORREF mixes[5];
    for (int i = 0; i < 5; ++i) mixes[i] = KivDraw::MakeMixColor(dc, up, down, 100 - 25 * i);
    Swatches(dc, Centred(area, 130, 24), mixes, 5);
}

// A two-colour bar, rising against falling, each part a lit strip stretched across its width.
void Lit3DColorPiece(CDC* dc, KivDraw&, const CRect& area)
{
    const int thickness = 16;
    COLORREF colors[] = {SchemeColor("UPTEXT"), SchemeColor("DOWNTEXT")};
    CMemoDC strips(dc, 1, 2 * thickness, 0);
    KivDraw::Make3DColor(&strips, thickness, colors, 2, 1);
    CRect bar = Centred(area, 130, thickness);
    int split = bar.left + bar.Width() * 62 / 100;
    dc->StretchBlt(bar.left, bar.top, split - bar.left, thickness, &strips, 0, 0, 1, thickness, SRCCOPY);
    dc->StretchBlt(split, bar.top, bar.right - split, thickness, &strips, 0, thickness, 1, thickness, SRCCOPY);
}

void ButtonColorsPiece(CDC* dc, KivDraw&, const CRect& area)
{
    COLORREF colors[] = {KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_NORMAL),
                         KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_HOVER),
                         KivDraw::GetButtonBackgroundColor(KivDraw::BUTTON_PRESSED)};
    Swatches(dc, Centred(area, 102, 24), colors, 3);
}

void DarkBackgroundPiece(CDC* dc, KivDraw&, const CRect& area)
{
    const char* answer = KivDraw::IsDarkBackground(dc) ? "true" : "false";
    WriteText(dc, answer, area, "PLUG_TITLE", SchemeColor("EQUTEXT"), DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
