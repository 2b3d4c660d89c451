#include "demo/piece_sheet.h"
#include "demo/pieces.h"
#include "demo/scheme_text.h"

using kiv_skin::KivDraw;

namespace {

const int kColumns = 4;
const int kMargin = 12;
const int kCellWidth = 172;
const int kPieceHeight = 52;
const int kLabelHeight = 20;
const int kCellGap = 8;
const int kHeading = 30;
const UINT kLine = DT_SINGLELINE | DT_VCENTER;

int RowCount() { return (kPieceCount + kColumns - 1) / kColumns; }

// One cell: the piece on the panel's background, its name centred below.
void DrawCell(CDC* dc, KivDraw& kit, const Piece& piece, int left, int top)
{
    CRect area(left, top, left + kCellWidth, top + kPieceHeight);
    KivDraw::FillRect(dc, &area, SchemeColor("PLUG_BGCOLOR"));
    piece.draw(dc, kit, area);
    CRect label(left, area.bottom, area.right, area.bottom + kLabelHeight);
    WriteText(dc, piece.name, label, "PLUG_STDFONT", SchemeColor("PLUG_TITLE_TEXT"), DT_CENTER | kLine);
}

}  // namespace

CSize PieceSheetSize()
{
    int width = 2 * kMargin + kColumns * kCellWidth + (kColumns - 1) * kCellGap;
    int height = kHeading + RowCount() * (kPieceHeight + kLabelHeight + kCellGap) + kMargin - kCellGap;
    return CSize(width, height);
}

void DrawPieceSheet(CDC* dc, const char* title)
{
    CSize size = PieceSheetSize();
    KivDraw::FillRect(dc, 0, 0, size.cx, size.cy, SchemeColor("BACKGROUND"));
    CRect heading(kMargin, 0, size.cx - kMargin, kHeading);
    WriteText(dc, title, heading, "PLUG_TITLE", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kLine);
    KivDraw kit;
    for (int i = 0; i < kPieceCount; ++i) {
        int left = kMargin + (i % kColumns) * (kCellWidth + kCellGap);
        int top = kHeading + (i / kColumns) * (kPieceHeight + kLabelHeight + kCellGap);
        DrawCell(dc, kit, kPieces[i], left, top);
    }
}
