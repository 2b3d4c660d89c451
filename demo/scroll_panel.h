// A plug-in panel with a long quote list and two scroll bars, as a plug-in would build it: the
// frame, a title bar, the list, a vertical bar for the rows and a horizontal bar for the price
// columns. The gallery paints it in given states; the live window forwards real input to it.
#pragma once
#include <afxwin.h>
#include "kiv_core/kiv_object.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/scrollbar/plugin_scroll_bar.h"
#include <memory>
#include <string>

class ScrollPanel {
public:
    // owner: the host object that hears of the bars' changes; may be null.
    explicit ScrollPanel(IKivObject* owner = nullptr);

    // The panel fills rect (its frame on rect's edges).
    void Place(const CRect& rect);
    void Paint(CDC* dc);
    // A mouse event in the panel's coordinates; true when the panel should be repainted.
    bool OnMouse(const _DMouseEvent& event);

    void SetTitle(const std::string& utf8) { m_title.SetTitle(utf8.c_str()); }
    void Select(int row) { m_selected = row; }
    // New bars, which take the active scheme's button strip, at the same positions: the bars
    // hold the strip of the scheme active when they were made.
    void RenewBars();

    kiv_skin::PluginScrollBar& Rows() { return *m_rows; }
    kiv_skin::PluginScrollBar& Columns() { return *m_columns; }
    // The list's rows, under the title bar and left of the vertical bar.
    CRect ListArea() const { return m_list; }

private:
    void Configure();

    IKivObject* m_owner;
    kiv_skin::PluginTitle m_title;
    CRect m_rect, m_list;
    std::unique_ptr<kiv_skin::PluginScrollBar> m_rows, m_columns;
    int m_selected = -1;
};
