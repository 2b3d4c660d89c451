#include "demo/panel_cells.h"
#include "demo/logical_units.h"
#include "demo/scheme_text.h"
#include "kiv_base/text.h"
#include "kiv_skin/draw/kiv_draw.h"

using kiv_skin::KivDraw;

std::vector<CRect> Cells(const CRect& row, const Column* columns, int count)
{
    std::vector<CRect> cells;
    int x = row.left;
    for (int i = 0; i < count; ++i) {
        int right = columns[i].width ? x + DpX(columns[i].width) : row.right;
        cells.emplace_back(x, row.top, right, row.bottom);
        x = right;
    }
    return cells;
}

COLORREF TrendColor(Trend trend)
{
    switch (trend) {
    case Trend::Up: return SchemeColor("UPTEXT");
    case Trend::Down: return SchemeColor("DOWNTEXT");
    default: return SchemeColor("EQUTEXT");
    }
}

COLORREF HeadingColor(CDC* dc)
{
    return KivDraw::MakeMixColor(dc, SchemeColor("EQUTEXT"), SchemeColor("PLUG_BGCOLOR"), 60);
}

void WriteCell(CDC* dc, const char* text, CRect cell, UINT align, COLORREF color)
{
    cell.DeflateRect(DpX(kCellInset), 0);
    WriteText(dc, text, cell, kRowFont, color, align | kCellLine);
}

void WriteCutCell(CDC* dc, const char* text, const CRect& cell, COLORREF color)
{
    int top = (cell.Height() - LineHeight(dc, kRowFont)) / 2;
    SchemeTextStyle style(dc, kRowFont, color);
    int count = 0;
    KivDraw::TextOutLimitWidth(dc, &cell, kiv_base::text::Utf8toUtf16(text), count,
                               CRect(DpX(kCellInset), top, DpX(kCellInset), 0), 0);
}

void MarkSelectedRow(CDC* dc, const CRect& row)
{
    COLORREF selection = SchemeColor("PLUG_SELCOLOR");
    KivDraw::FillRect(dc, &row, KivDraw::MakeMixColor(dc, selection, SchemeColor("PLUG_BGCOLOR"), 45));
    KivDraw::DrawPluginSelect(dc, &row, 1, PS_SOLID, 0);
}
