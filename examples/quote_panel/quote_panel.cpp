// A plug-in panel drawn with kiv_skin: the panel's frame, the title bar, a quote list whose
// rows are markup (names in the scheme's text colours) and prices with underlined fractions.
#include "quote_panel.h"
#include <afxwin.h>
#include <kiv_skin/draw/kiv_draw.h>
#include <kiv_skin/draw/plugin_title.h>
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
};

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

void PaintQuotePanel(HDC hdc, const RECT* area)
{
    CDC* dc = CDC::FromHandle(hdc);
    KivDraw::DrawPluginFrame(dc, area);
    kiv_skin::PluginTitle title("Quotes");
    CRect band(area->left + 1, area->top + 1, area->right - 1, area->bottom);
    title.Draw(dc, band);
    // Rows on the panel's own background; untagged text in the unchanged-price colour.
    const int oldMode = dc->SetBkMode(TRANSPARENT);
    const COLORREF oldColour = dc->SetTextColor(kiv_skin::KivStyleMgr::GetInstance()->GetColor("EQUTEXT"));
    KivDraw draw;
    const int rowHeight = 20;
    CRect row(band.left, band.top + title.GetAreaHeight(dc), band.right, 0);
    for (const Quote& quote : kQuotes) {
        row.bottom = row.top + rowHeight;
        PaintRow(dc, draw, row, quote);
        row.top = row.bottom;
    }
    dc->SetTextColor(oldColour);
    dc->SetBkMode(oldMode);
}
