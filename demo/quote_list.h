// A long watch list for the scrolled panels: a few hundred generated quotes, the same at every
// run, and the painter of the rows and columns a panel shows of it.
#pragma once
#include "demo/panel_data.h"
#include "kiv_skin/draw/kiv_draw.h"
#include <afxwin.h>
#include <string>

const int kListRowCount = 360;
// Logical units, as the panels' layouts are (demo/logical_units.h).
const int kListRowHeight = 20;
// Code and name stay put; the price columns after them scroll sideways.
const int kFixedColumnsWidth = 56 + 78;
const int kPriceColumnWidth = 70;
const int kPriceColumnCount = 7;

struct ListQuote {
    std::string code, name;
    std::string prices[kPriceColumnCount];  // last, change, change %, volume, turnover, high, low
    Trend trend;
};

ListQuote ListRow(int index);

// The heading row, then rows from firstRow on, with the price columns from firstColumn on, into
// band; the selected row is marked. Nothing is drawn beyond the band.
void DrawQuoteList(CDC* dc, kiv_skin::KivDraw& kit, const CRect& band, int firstRow, int firstColumn, int selectedRow);
