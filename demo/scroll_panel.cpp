#include "demo/scroll_panel.h"
#include "demo/logical_units.h"
#include "demo/panel_data.h"
#include "demo/quote_list.h"
#include "demo/scheme_text.h"
#include <algorithm>

using kiv_skin::KivDraw;
using kiv_skin::PluginScrollBar;

namespace {

// A bar's thickness and its overlap, in the screen's pixels: the bars draw the scheme's button
// strip at its own size, whatever the DPI.
const int kBarRoom = 17;

std::unique_ptr<PluginScrollBar> NewBar(IKivObject* owner, int vertical)
{
    auto bar = std::make_unique<PluginScrollBar>(false);
    bar->Create(owner, PluginScrollBar::BORDER_SINGLE, vertical);
    return bar;
}

int TitleHeight(kiv_skin::PluginTitle& title)
{
    CClientDC screen(nullptr);
    return title.GetAreaHeight(&screen);
}

}  // namespace

ScrollPanel::ScrollPanel(IKivObject* owner)
    : m_owner(owner), m_title(kPanelTitle), m_rows(NewBar(owner, 1)), m_columns(NewBar(owner, 0))
{
}

void ScrollPanel::Place(const CRect& rect)
{
    m_rect = rect;
    Configure();
}

// The vertical bar takes the list's right edge beside the rows, the horizontal one its bottom
// edge under the price columns; each is given an area that keeps it off the frame and the other
// bar (a bar reaches a pixel beyond its area on three sides).
void ScrollPanel::Configure()
{
    CRect inside(m_rect);
    inside.DeflateRect(1, 1);
    inside.top += TitleHeight(m_title);
    m_list = CRect(inside.left, inside.top, inside.right - kBarRoom, inside.bottom - kBarRoom);
    int rowHeight = DpY(kListRowHeight), fixedWidth = DpX(kFixedColumnsWidth);
    CRect rowsArea(inside.left, inside.top + rowHeight + 1, inside.right - 1, inside.bottom - kBarRoom - 1);
    m_rows->SetScrollInfo(rowsArea, rowHeight, kListRowCount, 0);
    int visibleColumns = (std::max)((m_list.Width() - fixedWidth) / DpX(kPriceColumnWidth), 1);
    CRect columnsArea(inside.left + fixedWidth + 1, inside.top, inside.right - kBarRoom - 1, inside.bottom - 1);
    // The bar counts its page in its area's height, whatever its orientation.
    m_columns->SetScrollInfo(columnsArea, (std::max)(columnsArea.Height() / visibleColumns, 1), kPriceColumnCount, 0);
}

void ScrollPanel::Paint(CDC* dc)
{
    KivDraw::DrawPluginFrame(dc, &m_rect);
    m_title.Draw(dc, CRect(m_rect.left + 1, m_rect.top + 1, m_rect.right - 1, m_rect.bottom - 1));
    KivDraw kit;
    DrawQuoteList(dc, kit, m_list, m_rows->GetScrollPos(), m_columns->GetScrollPos(), m_selected);
    CRect corner(m_list.right, m_list.bottom, m_rect.right - 1, m_rect.bottom - 1);
    KivDraw::FillRect(dc, &corner, SchemeColor("PLUG_BGCOLOR"));
    m_rows->Draw(dc);
    m_columns->Draw(dc);
}

bool ScrollPanel::OnMouse(const _DMouseEvent& event)
{
    PluginScrollBar::MOUSEEVENT answer = m_rows->OnMouseEvent(&event);
    if (answer == PluginScrollBar::MOUSE_IGNORED) answer = m_columns->OnMouseEvent(&event);
    return answer == PluginScrollBar::MOUSE_HANDLED;
}

void ScrollPanel::RenewBars()
{
    int row = m_rows->GetScrollPos(), column = m_columns->GetScrollPos();
    m_rows = NewBar(m_owner, 1);
    m_columns = NewBar(m_owner, 0);
    Configure();
    m_rows->SetScrollPos(row);
    m_columns->SetScrollPos(column);
}
