// Rows of the quote panel cut into columns, and the texts written into their cells.
#pragma once
#include "demo/panel_data.h"
#include <afxwin.h>
#include <vector>

const int kCellInset = 3;  // logical units, as column widths are
const char kRowFont[] = "PLUG_STDFONT";
const UINT kCellLine = DT_SINGLELINE | DT_VCENTER;

// A column's width (0: the rest of the row) and how its texts align.
struct Column {
    int width;
    UINT align;
};

std::vector<CRect> Cells(const CRect& row, const Column* columns, int count);

// The scheme's colour of a price's trend: rising, falling or unchanged.
COLORREF TrendColor(Trend trend);
// Column headings: the plain text colour faded into the background.
COLORREF HeadingColor(CDC* dc);

// Text (UTF-8) in the row font, inset from the cell's sides, vertically centred.
void WriteCell(CDC* dc, const char* text, CRect cell, UINT align, COLORREF color);
// The same, left-aligned and cut to the cell's width by the kit.
void WriteCutCell(CDC* dc, const char* text, const CRect& cell, COLORREF color);
// The selected row: a band of the selection colour faded into the background, framed in it.
void MarkSelectedRow(CDC* dc, const CRect& row);
