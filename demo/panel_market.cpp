#include "demo/panel_market.h"
#include "demo/logical_units.h"
#include "demo/panel_cells.h"
#include "demo/scheme_text.h"
#include <cmath>
#include <iterator>
#include <string>

using kiv_skin::KivDraw;

namespace {

const int kRow = 20;

// A mover of the list: code and name, and its prices as the markup colours them.
struct Mover {
    const char* code;
    const char* name;  // UTF-8
    const char* last;
    const char* change;
    const char* percent;
    Trend trend;
};

const Mover kMovers[kMoverRows] = {
    {"688981", "\xE4\xB8\xAD\xE8\x8A\xAF\xE5\x9B\xBD\xE9\x99\x85", "47.83", "+1.02", "+2.18%", Trend::Up},  // 中芯国际
    {"300750", "\xE5\xAE\x81\xE5\xBE\xB7\xE6\x97\xB6\xE4\xBB\xA3", "218.45", "+5.67", "+2.66%", Trend::Up},  // 宁德时代
    {"601318", "\xE4\xB8\xAD\xE5\x9B\xBD\xE5\xB9\xB3\xE5\xAE\x89", "45.60", "0.00", "0.00%", Trend::Flat},  // 中国平安
    {"000858", "\xE4\xBA\x94\xE7\xB2\xAE\xE6\xB6\xB2", "142.36", "-1.84", "-1.28%", Trend::Down},  // 五粮液
    {"600036", "\xE6\x8B\x9B\xE5\x95\x86\xE9\x93\xB6\xE8\xA1\x8C", "33.05", "-0.21", "-0.63%", Trend::Down},  // 招商银行
};

const char* TrendKey(Trend trend)
{
    return trend == Trend::Up ? "UPTEXT" : trend == Trend::Down ? "DOWNTEXT" : "EQUTEXT";
}

const char* TrendImage(Trend trend)
{
    return trend == Trend::Up ? "IMG_RISE" : trend == Trend::Down ? "IMG_FALL" : "IMG_FLAT";
}

// Rich text in a cell, aligned exactly left or right.
void MarkupCell(CDC* dc, const std::string& markup, CRect cell, UINT align)
{
    cell.DeflateRect(DpX(kCellInset), 0);
    UINT previous = dc->SetTextAlign(align);
    WriteRichText(dc, markup.c_str(), cell, kRowFont, SchemeColor("EQUTEXT"));
    dc->SetTextAlign(previous);
}

// Columns under the quote table's: code and name, last, change, change %, and the trend's image
// where the table has its volume.
const Column kMoverColumns[] = {{148, DT_LEFT}, {72, DT_RIGHT}, {64, DT_RIGHT}, {70, DT_RIGHT}, {0, DT_RIGHT}};

void DrawMover(CDC* dc, KivDraw& kit, const Mover& mover, const CRect& row)
{
    std::vector<CRect> cells = Cells(row, kMoverColumns, static_cast<int>(std::size(kMoverColumns)));
    std::string trend = std::string("<*sc=") + TrendKey(mover.trend) + "*>";
    // The blank after the name keeps its last character whole: without it the scheme font under
    // Wine cuts the right edge off the run's last Chinese character.
    MarkupCell(dc, std::string("<*sc=PLUG_TIME_COLOR1*>") + mover.code + "<*sc*>  " + mover.name + " ", cells[0], TA_LEFT);
    MarkupCell(dc, trend + mover.last, cells[1], TA_RIGHT);
    {
        SchemeTextStyle style(dc, kRowFont, SchemeColor(TrendKey(mover.trend)));
        UINT previous = dc->SetTextAlign(TA_RIGHT | TA_TOP);
        int top = cells[2].top + (cells[2].Height() - LineHeight(dc, kRowFont)) / 2;
        kit.DrawUL(dc, cells[2].right - DpX(kCellInset), top, mover.change, 1);
        dc->SetTextAlign(previous);
    }
    MarkupCell(dc, trend + mover.percent, cells[3], TA_RIGHT);
    MarkupCell(dc, std::string("<*si=") + TrendImage(mover.trend) + "*>", cells[4], TA_RIGHT);
}

// The price at minute m of a made-up trading day: a drift up with two swings on it.
float PriceAt(int minute)
{
    return 1674.0f + minute * 0.055f + 5.0f * std::sin(minute / 23.0f) + 2.5f * std::sin(minute / 7.0f);
}

}  // namespace

void DrawMoverList(CDC* dc, KivDraw& kit, const CRect& band)
{
    CRect row(band.left, band.top, band.right, band.top + DpY(kRow));
    for (int i = 0; i < kMoverRows; ++i) {
        DrawMover(dc, kit, kMovers[i], row);
        if (i + 1 < kMoverRows) kit.HoriDotLine(dc, row.left, row.right, row.bottom - 1);
        row.OffsetRect(0, DpY(kRow));
    }
}

// Price against minutes since the open, the previous close dotted across.
void DrawIntradayChart(CDC* dc, KivDraw& kit, const CRect& band)
{
    const float low = 1668, high = 1692, close = 1675.5f;
    const int minutes = 240;
    CPoint origin(band.left + DpX(52), band.bottom - DpY(18));
    CPoint top(origin.x, band.top + DpY(6)), right(band.right - DpX(6), origin.y);
    int plotWidth = right.x - DpX(12) - origin.x;
    auto y = [&](float price) { return origin.y - static_cast<int>((price - low) * (origin.y - top.y - DpY(8)) / (high - low)); };
    kit.HoriDotLine(dc, origin.x + 1, right.x - DpX(12), y(close));
    CPen pen(PS_SOLID, 1, SchemeColor("EQUTEXT"));
    CPen* previous = dc->SelectObject(&pen);
    CPoint position = dc->MoveTo(origin.x + 1, y(PriceAt(0)));
    for (int m = 1; m <= minutes; ++m) dc->LineTo(origin.x + 1 + m * plotWidth / minutes, y(PriceAt(m)));
    dc->MoveTo(position);
    dc->SelectObject(previous);
    std::string yuan = Utf8ToAnsi("\xE5\x85\x83"), minute = Utf8ToAnsi("\xE5\x88\x86\xE9\x92\x9F");  // 元, 分钟
    KivDraw::DrawAxis(dc, 0, origin, top, low, high, 4, yuan.c_str(), 0xFFFFFFFF, nullptr, 0, 8);
    KivDraw::DrawAxis(dc, 1, origin, right, 0, static_cast<float>(minutes), 8, minute.c_str(), 0xFFFFFFFF, nullptr, 1, 0);
}

CRect VolumeRatioBar(const CRect& band)
{
    int middle = band.top + band.Height() / 2;
    return CRect(band.left + DpX(96), middle - DpY(5), band.right - DpX(96), middle + DpY(5));
}

int VolumeRatioSplit(const CRect& bar) { return bar.left + bar.Width() * 58 / 100; }

// 外盘 (bought at the ask) against 内盘 (sold at the bid), as shares of the day's volume.
void DrawVolumeRatio(CDC* dc, KivDraw&, const CRect& band)
{
    CRect bar = VolumeRatioBar(band);
    KivDraw::Draw3DPercentBar(dc, &bar, VolumeRatioSplit(bar), SchemeColor("UPTEXT"), SchemeColor("DOWNTEXT"), 1);
    CRect left(band.left, band.top, bar.left - DpX(4), band.bottom), right(bar.right + DpX(4), band.top, band.right, band.bottom);
    MarkupCell(dc, "\xE5\xA4\x96\xE7\x9B\x98 <*sc=UPTEXT*>12.3\xE4\xB8\x87 58%", left, TA_LEFT);
    MarkupCell(dc, "<*sc=DOWNTEXT*>42% 8.9\xE4\xB8\x87<*sc*> \xE5\x86\x85\xE7\x9B\x98", right, TA_RIGHT);
}
