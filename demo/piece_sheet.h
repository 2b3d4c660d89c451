// A sheet of every piece of the drawing kit on its own, each with its name written under it.
#pragma once
#include <afxwin.h>

CSize PieceSheetSize();
// Paints the sheet at (0, 0) in a PieceSheetSize area, headed by title (UTF-8).
void DrawPieceSheet(CDC* dc, const char* title);
