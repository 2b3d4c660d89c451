#include "demo/panel.h"
#include "demo/logical_units.h"
#include "demo/panel_cells.h"
#include "demo/panel_data.h"
#include "demo/panel_market.h"
#include "demo/scheme_text.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/plugin_title.h"
#include <iterator>

using kiv_skin::KivDraw;
using kiv_skin::PluginTitle;

namespace {

const int kWidth = 440;
const int kRow = 20;
const int kToolbarHeight = 28;
const int kButton = 22;
const int kChartHeight = 132;

// What every section paints with: the context, and the kit's brushes of the active scheme.
struct Painter {
    CDC* dc;
    KivDraw kit;
};

// --- Toolbar ---------------------------------------------------------------------------------

// Icons of the scheme's tool strip, by their place in it.
enum Icon { kClose, kMinimise, kMaximise, kRestore, kSettings, kRefresh, kMenu, kPin, kSearch, kAdd, kHelp, kLock };

struct ToolButton {
    Icon icon;
    KivDraw::BUTTON_STATE state;
};

// The mouse rests on refresh; the pin is held down (the panel is pinned).
const ToolButton kTools[] = {{kSettings, KivDraw::BUTTON_NORMAL}, {kRefresh, KivDraw::BUTTON_HOVER},
                             {kMenu, KivDraw::BUTTON_NORMAL},     {kPin, KivDraw::BUTTON_PRESSED},
                             {kSearch, KivDraw::BUTTON_NORMAL},   {kAdd, KivDraw::BUTTON_NORMAL},
                             {kHelp, KivDraw::BUTTON_NORMAL},     {kLock, KivDraw::BUTTON_NORMAL}};
const ToolButton kWindowButtons[] = {{kMinimise, KivDraw::BUTTON_NORMAL}, {kMaximise, KivDraw::BUTTON_NORMAL},
                                     {kRestore, KivDraw::BUTTON_NORMAL},  {kClose, KivDraw::BUTTON_NORMAL}};

void DrawButtonRow(Painter& p, const ToolButton* buttons, int count, int left, int top)
{
    for (int i = 0; i < count; ++i) {
        int x = left + i * DpX(kButton + 1);
        CRect rect(x, top, x + DpX(kButton), top + DpY(kButton));
        bool framed = buttons[i].state != KivDraw::BUTTON_NORMAL;
        p.kit.DrawButton(p.dc, &rect, buttons[i].state, buttons[i].icon, 0, framed);
    }
}

void DrawToolbar(Painter& p, const CRect& band)
{
    CRect bar(band.left, band.top, band.right, band.bottom - DpY(3));
    KivDraw::FillRect(p.dc, &bar, SchemeColor("PLUG_BTN_BGCOLOR"));
    int top = bar.top + (bar.Height() - DpY(kButton)) / 2;
    DrawButtonRow(p, kTools, static_cast<int>(std::size(kTools)), bar.left + DpX(2), top);
    int windowCount = static_cast<int>(std::size(kWindowButtons));
    DrawButtonRow(p, kWindowButtons, windowCount, bar.right - DpX(2 + windowCount * (kButton + 1) - 1), top);
}

// --- Quote table -----------------------------------------------------------------------------

const Column kQuoteColumns[] = {{56, DT_LEFT}, {92, DT_LEFT}, {72, DT_RIGHT},
                                {64, DT_RIGHT}, {70, DT_RIGHT}, {0, DT_RIGHT}};
const int kQuoteColumnCount = static_cast<int>(std::size(kQuoteColumns));

void DrawQuoteRow(Painter& p, const Quote& quote, const CRect& row)
{
    std::vector<CRect> cells = Cells(row, kQuoteColumns, kQuoteColumnCount);
    COLORREF plain = SchemeColor("EQUTEXT");
    COLORREF trend = TrendColor(quote.trend);
    WriteCell(p.dc, quote.code, cells[0], DT_LEFT, plain);
    WriteCutCell(p.dc, quote.name, cells[1], plain);
    WriteCell(p.dc, quote.last, cells[2], DT_RIGHT, trend);
    WriteCell(p.dc, quote.change, cells[3], DT_RIGHT, trend);
    WriteCell(p.dc, quote.percent, cells[4], DT_RIGHT, trend);
    WriteCell(p.dc, quote.volume, cells[5], DT_RIGHT, SchemeColor("PLUG_TIME_COLOR1"));
}

void DrawQuoteTable(Painter& p, const CRect& band)
{
    CRect row(band.left, band.top, band.right, band.top + DpY(kRow));
    std::vector<CRect> cells = Cells(row, kQuoteColumns, kQuoteColumnCount);
    for (int i = 0; i < kQuoteColumnCount; ++i)
        WriteCell(p.dc, kQuoteHeadings[i], cells[i], kQuoteColumns[i].align, HeadingColor(p.dc));
    p.kit.HoriFrameLine(p.dc, row.left, row.right, row.bottom - 1);
    for (int i = 0; i < static_cast<int>(std::size(kQuotes)); ++i) {
        row.OffsetRect(0, DpY(kRow));
        // Dotted lines part the rows; the selection's frame stands in for its own and the one above.
        if (i == kSelectedQuote) MarkSelectedRow(p.dc, row);
        else if (i + 1 != kSelectedQuote) p.kit.HoriDotLine(p.dc, row.left, row.right, row.bottom - 1);
        DrawQuoteRow(p, kQuotes[i], row);
    }
}

// --- Section headings ----------------------------------------------------------------------

// A grooved heading over a section, in the title font.
void DrawHeading(Painter& p, const CRect& band, const char* title)
{
    CRect text(band.left + DpX(kCellInset), band.top, band.right, band.bottom);
    const char* font = "PLUG_TITLE";
    WriteText(p.dc, title, text, font, SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kCellLine);
    int middle = band.top + band.Height() / 2;
    CRect groove(text.left + TextWidth(p.dc, title, font) + DpX(8), middle - DpY(3), band.right - DpX(kCellInset),
                 middle + DpY(3));
    KivDraw::DrawTitleLine(p.dc, &groove, SchemeColor("PLUG_FRAME"));
}

void DrawSectorHeading(Painter& p, const CRect& band) { DrawHeading(p, band, kSectorHeading); }
void DrawMoverHeading(Painter& p, const CRect& band) { DrawHeading(p, band, kMoverHeading); }
void DrawChartHeading(Painter& p, const CRect& band) { DrawHeading(p, band, kChartHeading); }

// --- Sectors ---------------------------------------------------------------------------------

// Name, change, and the leading stock, set off from the change by a gap.
const Column kSectorColumns[] = {{80, DT_LEFT}, {66, DT_RIGHT}, {16, DT_LEFT}, {0, DT_LEFT}};
const int kSectorColumnCount = static_cast<int>(std::size(kSectorColumns));

void DrawSectorTable(Painter& p, const CRect& band)
{
    CRect row(band.left, band.top, band.right, band.top + DpY(kRow));
    for (const Sector& sector : kSectors) {
        std::vector<CRect> cells = Cells(row, kSectorColumns, kSectorColumnCount);
        WriteCell(p.dc, sector.name, cells[0], DT_LEFT, SchemeColor("EQUTEXT"));
        WriteCell(p.dc, sector.percent, cells[1], DT_RIGHT, TrendColor(sector.trend));
        WriteCell(p.dc, sector.leader, cells[3], DT_LEFT, SchemeColor("EQUTEXT"));
        if (row.bottom < band.bottom) p.kit.HoriDotLine(p.dc, row.left, row.right, row.bottom - 1);
        row.OffsetRect(0, DpY(kRow));
    }
}

// --- Status line -----------------------------------------------------------------------------

void DrawStatusLine(Painter& p, const CRect& band)
{
    p.kit.HoriFrameLine(p.dc, band.left, band.right, band.top);
    CRect clock(band.left, band.top + 1, band.left + DpX(64), band.bottom);
    WriteText(p.dc, kClock, clock, "SMALL", SchemeColor("PLUG_TIME_COLOR1"), DT_CENTER | kCellLine);
    p.kit.VertFrameLine(p.dc, clock.right, clock.top + DpY(3), clock.bottom - DpY(3));
    CRect news(clock.right + 1, clock.top, band.right, band.bottom);
    WriteCutCell(p.dc, kNews, news, SchemeColor("EQUTEXT"));
}

// --- Movers, chart and volume ratio ----------------------------------------------------------

void DrawMovers(Painter& p, const CRect& band) { DrawMoverList(p.dc, p.kit, band); }
void DrawChart(Painter& p, const CRect& band) { DrawIntradayChart(p.dc, p.kit, band); }
void DrawRatio(Painter& p, const CRect& band) { DrawVolumeRatio(p.dc, p.kit, band); }

// --- Layout ----------------------------------------------------------------------------------

// A band of the panel: its height in logical units and what paints it. The panel stacks them
// under its title.
struct Section {
    int height;
    void (*draw)(Painter&, const CRect& band);
};

const Section kSections[] = {
    {kToolbarHeight, DrawToolbar},
    {kRow * (1 + static_cast<int>(std::size(kQuotes))), DrawQuoteTable},
    {kRow + 2, DrawSectorHeading},
    {kRow * static_cast<int>(std::size(kSectors)), DrawSectorTable},
    {kRow + 2, DrawMoverHeading},
    {kRow * kMoverRows, DrawMovers},
    {kRow + 2, DrawChartHeading},
    {kChartHeight, DrawChart},
    {kRow + 4, DrawRatio},
    {kRow, DrawStatusLine},
};

int TitleHeight(CDC* dc)
{
    return PluginTitle(kPanelTitle).GetAreaHeight(dc);
}

}  // namespace

CSize QuotePanelSize(CDC* dc)
{
    int height = 1 + TitleHeight(dc) + 2 * DpY(kPanelPadding) + 1;
    for (const Section& section : kSections) height += DpY(section.height);
    return CSize(DpX(kWidth), height);
}

void DrawQuotePanel(CDC* dc)
{
    CSize size = QuotePanelSize(dc);
    CRect panel(0, 0, size.cx, size.cy);
    KivDraw::DrawPluginFrame(dc, &panel);
    PluginTitle(kPanelTitle).Draw(dc, CRect(1, 1, size.cx - 1, size.cy - 1));
    Painter painter{dc, {}};
    int padding = DpX(kPanelPadding);
    CRect band(1 + padding, 1 + TitleHeight(dc) + DpY(kPanelPadding), size.cx - 1 - padding, 0);
    for (const Section& section : kSections) {
        band.bottom = band.top + DpY(section.height);
        section.draw(painter, band);
        band.top = band.bottom;
    }
}
