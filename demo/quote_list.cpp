#include "demo/logical_units.h"
#include "demo/quote_list.h"
#include "demo/panel_cells.h"
#include "demo/scheme_text.h"
#include <cstdio>
#include <iterator>

using kiv_skin::KivDraw;

namespace {

// 贵州茅台 五粮液 中国平安 宁德时代 平安银行 中芯国际 招商银行 比亚迪 隆基绿能 东方财富 海天味业 美的集团
// 格力电器 万科A 伊利股份 恒瑞医药 紫金矿业 长江电力 中信证券 工商银行 药明康德 立讯精密 海康威视 迈瑞医疗
const char* const kNames[] = {
    "\xE8\xB4\xB5\xE5\xB7\x9E\xE8\x8C\x85\xE5\x8F\xB0", "\xE4\xBA\x94\xE7\xB2\xAE\xE6\xB6\xB2",
    "\xE4\xB8\xAD\xE5\x9B\xBD\xE5\xB9\xB3\xE5\xAE\x89", "\xE5\xAE\x81\xE5\xBE\xB7\xE6\x97\xB6\xE4\xBB\xA3",
    "\xE5\xB9\xB3\xE5\xAE\x89\xE9\x93\xB6\xE8\xA1\x8C", "\xE4\xB8\xAD\xE8\x8A\xAF\xE5\x9B\xBD\xE9\x99\x85",
    "\xE6\x8B\x9B\xE5\x95\x86\xE9\x93\xB6\xE8\xA1\x8C", "\xE6\xAF\x94\xE4\xBA\x9A\xE8\xBF\xAA",
    "\xE9\x9A\x86\xE5\x9F\xBA\xE7\xBB\xBF\xE8\x83\xBD", "\xE4\xB8\x9C\xE6\x96\xB9\xE8\xB4\xA2\xE5\xAF\x8C",
    "\xE6\xB5\xB7\xE5\xA4\xA9\xE5\x91\xB3\xE4\xB8\x9A", "\xE7\xBE\x8E\xE7\x9A\x84\xE9\x9B\x86\xE5\x9B\xA2",
    "\xE6\xA0\xBC\xE5\x8A\x9B\xE7\x94\xB5\xE5\x99\xA8", "\xE4\xB8\x87\xE7\xA7\x91" "A",
    "\xE4\xBC\x8A\xE5\x88\xA9\xE8\x82\xA1\xE4\xBB\xBD", "\xE6\x81\x92\xE7\x91\x9E\xE5\x8C\xBB\xE8\x8D\xAF",
    "\xE7\xB4\xAB\xE9\x87\x91\xE7\x9F\xBF\xE4\xB8\x9A", "\xE9\x95\xBF\xE6\xB1\x9F\xE7\x94\xB5\xE5\x8A\x9B",
    "\xE4\xB8\xAD\xE4\xBF\xA1\xE8\xAF\x81\xE5\x88\xB8", "\xE5\xB7\xA5\xE5\x95\x86\xE9\x93\xB6\xE8\xA1\x8C",
    "\xE8\x8D\xAF\xE6\x98\x8E\xE5\xBA\xB7\xE5\xBE\xB7", "\xE7\xAB\x8B\xE8\xAE\xAF\xE7\xB2\xBE\xE5\xAF\x86",
    "\xE6\xB5\xB7\xE5\xBA\xB7\xE5\xA8\x81\xE8\xA7\x86", "\xE8\xBF\x88\xE7\x91\x9E\xE5\x8C\xBB\xE7\x96\x97"};
const int kNameCount = static_cast<int>(std::size(kNames));

// 代码 名称 | 最新 涨跌 涨幅 总手 换手 最高 最低
const char* const kHeadings[] = {"\xE4\xBB\xA3\xE7\xA0\x81", "\xE5\x90\x8D\xE7\xA7\xB0"};
const char* const kPriceHeadings[kPriceColumnCount] = {
    "\xE6\x9C\x80\xE6\x96\xB0", "\xE6\xB6\xA8\xE8\xB7\x8C", "\xE6\xB6\xA8\xE5\xB9\x85", "\xE6\x80\xBB\xE6\x89\x8B",
    "\xE6\x8D\xA2\xE6\x89\x8B", "\xE6\x9C\x80\xE9\xAB\x98", "\xE6\x9C\x80\xE4\xBD\x8E"};

// A small deterministic generator: the same list at every run.
unsigned Mix(unsigned x)
{
    x ^= x >> 16;
    x *= 0x7FEB352Du;
    x ^= x >> 15;
    x *= 0x846CA68Bu;
    return x ^ (x >> 16);
}

std::string Format(const char* format, double value)
{
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

const char* const kBoards[] = {"600", "601", "000", "002", "300", "688"};

}  // namespace

ListQuote ListRow(int index)
{
    unsigned h = Mix(static_cast<unsigned>(index) + 1u);
    ListQuote q;
    char code[8];
    std::snprintf(code, sizeof code, "%s%03u", kBoards[h % 6], (h >> 3) % 1000);
    q.code = code;
    q.name = kNames[index % kNameCount];
    double last = 3.0 + (h >> 8) % 20000 / 100.0;
    int basis = static_cast<int>((h >> 20) % 1001) - 500;  // change in hundredths of a percent
    double change = last * basis / 10000.0;
    q.trend = basis > 0 ? Trend::Up : basis < 0 ? Trend::Down : Trend::Flat;
    const char* sign = basis > 0 ? "%+.2f" : "%.2f";
    q.prices[0] = Format("%.2f", last);
    q.prices[1] = Format(sign, change);
    q.prices[2] = Format(basis > 0 ? "%+.2f%%" : "%.2f%%", basis / 100.0);
    q.prices[3] = Format("%.1f\xE4\xB8\x87", 0.5 + (h >> 4) % 900 / 10.0);  // 万
    q.prices[4] = Format("%.2f%%", (h >> 12) % 800 / 100.0);
    q.prices[5] = Format("%.2f", last + (h >> 6) % 300 / 100.0);
    q.prices[6] = Format("%.2f", last - (h >> 9) % 300 / 100.0 * (last > 4 ? 1 : 0));
    return q;
}

namespace {

// Code and name, then the price columns from firstColumn on, until the band's right edge.
std::vector<CRect> RowCells(const CRect& row, int firstColumn)
{
    Column columns[2 + kPriceColumnCount] = {{56, DT_LEFT}, {78, DT_LEFT}};
    int count = 2;
    for (int c = firstColumn; c < kPriceColumnCount; ++c) columns[count++] = {kPriceColumnWidth, DT_RIGHT};
    return Cells(row, columns, count);
}

COLORREF PriceColor(const ListQuote& q, int column)
{
    if (column == 3) return SchemeColor("PLUG_TIME_COLOR1");
    return column <= 2 ? TrendColor(q.trend) : SchemeColor("EQUTEXT");
}

void DrawRow(CDC* dc, const ListQuote& q, const CRect& row, int firstColumn)
{
    std::vector<CRect> cells = RowCells(row, firstColumn);
    WriteCell(dc, q.code.c_str(), cells[0], DT_LEFT, SchemeColor("EQUTEXT"));
    WriteCutCell(dc, q.name.c_str(), cells[1], SchemeColor("EQUTEXT"));
    for (size_t i = 2; i < cells.size(); ++i) {
        int column = firstColumn + static_cast<int>(i) - 2;
        WriteCell(dc, q.prices[column].c_str(), cells[i], DT_RIGHT, PriceColor(q, column));
    }
}

void DrawHeadings(CDC* dc, KivDraw& kit, const CRect& row, int firstColumn)
{
    std::vector<CRect> cells = RowCells(row, firstColumn);
    COLORREF color = HeadingColor(dc);
    WriteCell(dc, kHeadings[0], cells[0], DT_LEFT, color);
    WriteCell(dc, kHeadings[1], cells[1], DT_LEFT, color);
    for (size_t i = 2; i < cells.size(); ++i)
        WriteCell(dc, kPriceHeadings[firstColumn + i - 2], cells[i], DT_RIGHT, color);
    kit.HoriFrameLine(dc, row.left, row.right, row.bottom - 1);
}

}  // namespace

void DrawQuoteList(CDC* dc, KivDraw& kit, const CRect& band, int firstRow, int firstColumn, int selectedRow)
{
    int saved = dc->SaveDC();
    dc->IntersectClipRect(band);
    CRect row(band.left, band.top, band.right, band.top + DpY(kListRowHeight));
    DrawHeadings(dc, kit, row, firstColumn);
    for (int i = firstRow; i < kListRowCount && row.bottom < band.bottom; ++i) {
        row.OffsetRect(0, DpY(kListRowHeight));
        if (i == selectedRow) MarkSelectedRow(dc, row);
        else if (i + 1 != selectedRow) kit.HoriDotLine(dc, row.left, row.right, row.bottom - 1);
        DrawRow(dc, ListRow(i), row, firstColumn);
    }
    dc->RestoreDC(saved);
}
