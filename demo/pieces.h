// The pieces of the drawing kit as the piece sheet shows them: each a name and a function that
// paints the piece, alone, in an area of the sheet. Adding a piece is one line of the table.
#pragma once
#include <afxwin.h>
#include "kiv_skin/draw/kiv_draw.h"

struct Piece {
    const char* name;
    void (*draw)(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
    int columns = 1;  // how many of the sheet's columns the piece spans
};

extern const Piece kPieces[];
extern const int kPieceCount;
