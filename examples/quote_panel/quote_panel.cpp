// A plug-in panel drawn with kiv_skin: the panel's frame, the title bar, a quote list whose
// rows are markup (names in the scheme's text colours), prices with underlined fractions, and a
// scroll bar over the rows.
#include "quote_panel.h"
#include <afxwin.h>
#include <kiv_skin/draw/kiv_draw.h>
#include <kiv_skin/draw/plugin_title.h>
#include <kiv_skin/scrollbar/plugin_scroll_bar.h>
#include <kiv_skin/style/kiv_style_mgr.h>

using kiv_skin::KivDraw;

namespace {

struct Quote {
    const char* name;   // markup, in the ANSI code page
    const char* price;
    int trend;          // 1 rise, 0 unchanged, -1 fall
};

const Quote kQuotes[] = {
    {"<*sc=UPTEXT*>600519 <*sc*>Moutai", "1688.50", 1},
    {"<*sc=EQUTEXT*>000001 <*sc*>Ping An Bank", "10.32", 0},
    {"<*sc=DOWNTEXT*>300750 <*sc*>CATL", "201.17", -1},
    {"<*sc=UPTEXT*>601318 <*sc*>Ping An", "48.06", 1},
    {"<*sc=DOWNTEXT*>600036 <*sc*>CM Bank", "35.20", -1},
    {"<*sc=UPTEXT*>000858 <*sc*>Wuliangye", "152.88", 1},
    {"<*sc=EQUTEXT*>601988 <*sc*>Bank of China", "4.05", 0},
    {"<*sc=UPTEXT*>002594 <*sc*>BYD", "263.40", 1},
};
const int kQuoteCount = int(sizeof kQuotes / sizeof kQuotes[0]);
const int kRowHeight = 20;

const char* TrendColourKey(int trend) { return trend > 0 ? "UPTEXT" : trend < 0 ? "DOWNTEXT" : "EQUTEXT"; }

void PaintRow(CDC* dc, KivDraw& draw, const CRect& row, const Quote& quote)
{
    KivDraw::DrawRichText(dc, &row, quote.name, CRect(4, 0, 0, 0), DT_LEFT | DT_VCENTER | DT_SINGLELINE, 100);
    const COLORREF oldColour = dc->SetTextColor(kiv_skin::KivStyleMgr::GetInstance()->GetColor(TrendColourKey(quote.trend)));
    const UINT oldAlign = dc->SetTextAlign(TA_RIGHT | TA_TOP);
    draw.DrawUL(dc, row.right - 4, row.top + 2, quote.price, quote.trend > 0 ? 1 : 0);
    dc->SetTextAlign(oldAlign);
    dc->SetTextColor(oldColour);
}

}  // namespace

void PaintQuotePanel(HDC hdc, const RECT* area, int firstRow)
{
    CDC* dc = CDC::FromHandle(hdc);
    KivDraw::DrawPluginFrame(dc, area);
    kiv_skin::PluginTitle title("Quotes");
    CRect band(area->left + 1, area->top + 1, area->right - 1, area->bottom - 1);
    title.Draw(dc, band);
    const CRect list(band.left, band.top + title.GetAreaHeight(dc), band.right, band.bottom);
    // The bar takes the list's right edge; its position is the first row shown.
    kiv_skin::PluginScrollBar bar;
    bar.SetScrollInfo(list, kRowHeight, kQuoteCount, 0);
    bar.SetScrollPos(firstRow);
    // Rows on the panel's own background; untagged text in the unchanged-price colour.
    const int oldMode = dc->SetBkMode(TRANSPARENT);
    const COLORREF oldColour = dc->SetTextColor(kiv_skin::KivStyleMgr::GetInstance()->GetColor("EQUTEXT"));
    KivDraw draw;
    CRect row(list.left, list.top, bar.GetScrollRect().left, 0);
    for (int i = bar.GetScrollPos(); i < kQuoteCount && row.top + kRowHeight <= list.bottom; ++i) {
        row.bottom = row.top + kRowHeight;
        PaintRow(dc, draw, row, kQuotes[i]);
        row.top = row.bottom;
    }
    dc->SetTextColor(oldColour);
    dc->SetBkMode(oldMode);
    bar.Draw(dc);
}
