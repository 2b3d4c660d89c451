#include "demo/piece_sheet.h"
#include "demo/pieces.h"
#include "demo/scheme_text.h"
#include <vector>

using kiv_skin::KivDraw;

namespace {

const int kColumns = 4;
const int kMargin = 12;
const int kCellWidth = 172;
const int kPieceHeight = 60;
const int kLabelHeight = 20;
const int kCellGap = 8;
const int kHeading = 30;
const int kRowPitch = kPieceHeight + kLabelHeight + kCellGap;
const UINT kLine = DT_SINGLELINE | DT_VCENTER;

// Where each piece goes, in columns and rows: left to right, a piece too wide for what is left
// of its row starting the next one.
std::vector<CPoint> Places()
{
    std::vector<CPoint> places;
    int column = 0, row = 0;
    for (int i = 0; i < kPieceCount; ++i) {
        if (column + kPieces[i].columns > kColumns) {
            column = 0;
            ++row;
        }
        places.emplace_back(column, row);
        column += kPieces[i].columns;
    }
    return places;
}

int RowCount() { return kPieceCount ? Places().back().y + 1 : 0; }

// One cell: the piece on the panel's background, its name centred below.
void DrawCell(CDC* dc, KivDraw& kit, const Piece& piece, int left, int top)
{
    int width = piece.columns * kCellWidth + (piece.columns - 1) * kCellGap;
    CRect area(left, top, left + width, top + kPieceHeight);
    KivDraw::FillRect(dc, &area, SchemeColor("PLUG_BGCOLOR"));
    piece.draw(dc, kit, area);
    CRect label(left, area.bottom, area.right, area.bottom + kLabelHeight);
    WriteText(dc, piece.name, label, "PLUG_STDFONT", SchemeColor("PLUG_TITLE_TEXT"), DT_CENTER | kLine);
}

}  // namespace

CSize PieceSheetSize()
{
    int width = 2 * kMargin + kColumns * kCellWidth + (kColumns - 1) * kCellGap;
    int height = kHeading + RowCount() * kRowPitch + kMargin - kCellGap;
    return CSize(width, height);
}

void DrawPieceSheet(CDC* dc, const char* title)
{
    CSize size = PieceSheetSize();
    KivDraw::FillRect(dc, 0, 0, size.cx, size.cy, SchemeColor("BACKGROUND"));
    CRect heading(kMargin, 0, size.cx - kMargin, kHeading);
    WriteText(dc, title, heading, "PLUG_TITLE", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kLine);
    KivDraw kit;
    std::vector<CPoint> places = Places();
    for (int i = 0; i < kPieceCount; ++i) {
        int left = kMargin + places[i].x * (kCellWidth + kCellGap);
        DrawCell(dc, kit, kPieces[i], left, kHeading + places[i].y * kRowPitch);
    }
}
