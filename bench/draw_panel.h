// The benchmark's quote panel (frame, title bar, rows of a markup caption and a price with its
// sign mark, an axis), drawn into a memory context and copied out once: by the kit as a plug-in
// writes it, and with the fewest raw GDI calls for the same pixels. Each side is a sequence of
// pieces, so that the profile times the very calls the panel makes, piece by piece.
#pragma once
#include <afxwin.h>
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"

namespace panel {

const int kWidth = 360, kRows = 20, kRowHeight = 20, kTop = 24;
extern const char kCaption[];
extern const char* const kPrices[2];

kiv_skin::KivStyleMgr* Scheme();
HFONT SchemeFontHandle(const char* key);
// A panel of rows rows: title, rows, and room for the axis below them (480 high at 20 rows).
int Height(int rows);

// --- By the kit ---
// Without prices, only for the profile: what the prices cost within a whole panel.
void PanelByKit(CDC* target, int rows = kRows, bool prices = true);
void KitCaption(CDC* dc, int top);  // a rich-text caption in the row at top
void KitFrame(CDC* dc, int height);
void KitTitle(CDC* dc);
void KitCaptionRow(CDC* dc, int row);
void KitPriceRow(kiv_skin::KivDraw& kit, CDC* dc, int row);
void KitAxis(CDC* dc, int height);

// --- By hand ---
// What the raw panel makes once per panel: the marks' context, the underline and axis pens and
// the frame's brush, the underline pen selected into hdc.
struct RawTools {
    HDC marks;
    HGDIOBJ previousMarks, previousPen;
    HPEN ink, axis;
    HBRUSH frame;
};
RawTools MakeRawTools(HDC hdc);
void FreeRawTools(HDC hdc, const RawTools& tools);

// The prices with the fewest calls (one marks context and one underline pen for all), or as the
// kit's steps draw them (RawPriceRowBySteps), or none.
enum RawPrices { kPricesByFewestCalls, kPricesBySteps, kNoPrices };
void PanelByHand(CDC* target, int rows = kRows, RawPrices prices = kPricesByFewestCalls);
void CaptionByHand(HDC hdc);  // the caption at (4, 2) of the viewport
void MarkByHand(HDC hdc, HDC marks, int x, int y, int mark, COLORREF ink);
void RawFrame(HDC hdc, const RawTools& tools, int height);
HGDIOBJ RawTitle(HDC hdc);  // answers the font it replaced
void RawRowFont(HDC hdc);
void RawCaptionRow(HDC hdc, int row);
void RawPriceRow(HDC hdc, const RawTools& tools, int row);
// The price as the kit's steps draw it: its alignment kept and put back, the mark with a memory
// context of its own, the underline with a pen of its own, the position put back.
void RawPriceRowBySteps(HDC hdc, int row);
void RawAxis(HDC hdc, const RawTools& tools, int height);

}  // namespace panel
