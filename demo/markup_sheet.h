// A sheet of the rich-text markup: one line per tag name, the markup as written beside what the
// kit's rich text draws of it.
#pragma once
#include <afxwin.h>

CSize MarkupSheetSize();
// Paints the sheet at (0, 0) in a MarkupSheetSize area, headed by title (UTF-8).
void DrawMarkupSheet(CDC* dc, const char* title);
// Where line number line (0-25) draws its markup, to find its pixels.
CRect MarkupDrawnCell(int line);
// The lines of the sheet: how many, the tag each shows, and each one's whole band.
int MarkupLineCount();
const char* MarkupLineTag(int line);
CRect MarkupLineBand(int line);
