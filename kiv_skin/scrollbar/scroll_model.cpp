// The scroll bar's data, its model of position, page and total, and its geometry.
#include "kiv_skin/scrollbar/plugin_scroll_bar.h"
#include "kiv_skin/draw/scheme.h"
#include "kiv_skin/scrollbar/scroll_model_access.h"

namespace kiv_skin {

using namespace scroll_arithmetic;

PluginScrollBar::PluginScrollBar() : PluginScrollBar(true) {}

PluginScrollBar::PluginScrollBar(bool bImmediate)
    : m_nPos(0), m_nPage(1), m_nTotal(1), m_nActiveBar(0), m_nDragOffset(0), m_nRepeatCount(0),
      m_nLineHeight(0), m_nFlags(0), m_bVertical(1), m_bDragging(0), m_ptLast{0, 0}, m_nTrackType(TRACK_NONE),
      m_rcScroll{0, 0, 0, 0}, m_clrBack(0), m_clrAxis(0), m_clrText(0), m_clrLine(0), m_clrBar(0),
      m_nBorderStyle(BORDER_NONE), m_pOwner(nullptr), m_pMainWnd(nullptr), m_dwLastDragTick(0),
      m_bImmediate(bImmediate)
{
    if (CBitmap* strip = SchemeBitmap("KIV_BTN")) m_bmpButton.Attach(strip->m_hObject);
}

PluginScrollBar::~PluginScrollBar() { m_bmpButton.Detach(); }

void PluginScrollBar::Create(IKivObject* pOwner, BORDERSTYLE style, int bVertical)
{
    m_bVertical = bVertical;
    m_nBorderStyle = style;
    m_pMainWnd = AfxGetMainWnd();
    m_pOwner = pOwner;
}

void PluginScrollBar::SetScrollInfo(const CRect& rc, int nLineHeight, int nTotal, int bKeepAtEnd)
{
    if (nTotal < 1) {
        m_nPos = 0;
        m_nPage = 1;
        m_nTotal = 1;
        m_nLineHeight = 0;
        return;
    }
    ModelFields fields{m_nPos, m_nPage, m_nTotal, m_nFlags};
    Model model = fields.Get();
    SetScrollRect(rc);
    m_nLineHeight = nLineHeight;
    ApplyScrollInfo(model, Subtract(rc.bottom, rc.top), nLineHeight, nTotal, bKeepAtEnd);
    fields.Set(model);
}

void PluginScrollBar::SetScrollRect(const CRect& rc) { m_rcScroll = AsRect(PlaceBar(AsBox(rc), m_bVertical)); }

CRect PluginScrollBar::GetScrollRect() { return CRect(m_rcScroll); }
int PluginScrollBar::GetLineHeight() { return m_nLineHeight; }
int PluginScrollBar::GetFullHeight() { return m_nTotal; }
int PluginScrollBar::GetScrollPos() { return m_nPos; }

void PluginScrollBar::SetScrollPos(int nDelta) { m_nPos = ClampPos(Add(m_nPos, nDelta), m_nPage, m_nTotal); }

int PluginScrollBar::IsMaxPostion() { return Add(m_nPos, m_nPage) > m_nTotal ? 1 : 0; }

int PluginScrollBar::GetScrollBarHeight() { return kBarThickness; }

int PluginScrollBar::HasScrollBar() { return m_nTotal > 1 ? 1 : 0; }

int PluginScrollBar::GetNumScrollBar() { return 1; }

int PluginScrollBar::CalcScrollInfo(int nTotal, int nPos)
{
    ModelFields fields{m_nPos, m_nPage, m_nTotal, m_nFlags};
    Model model = fields.Get();
    Recompute(model, Subtract(m_rcScroll.bottom, m_rcScroll.top), m_nLineHeight, nTotal, nPos);
    fields.Set(model);
    return 0;
}

int PluginScrollBar::CalcScrollPos(const RECT* prc, int* pOut, int nPos, int nPage, int nTotal, int bVertical)
{
    Geometry g = Layout(AsBox(*prc), nPos, nPage, nTotal, bVertical);
    pOut[0] = g.trackStart;
    pOut[1] = g.thumbStart;
    pOut[2] = g.thumbEnd;
    pOut[3] = g.trackEnd;
    return 0;
}

int PluginScrollBar::ScrollTo(int nPos, int nBar)
{
    ModelFields fields{m_nPos, m_nPage, m_nTotal, m_nFlags};
    Model model = fields.Get();
    int moved = scroll_arithmetic::ScrollTo(model, nPos, nBar);
    fields.Set(model);
    return moved;
}

PluginScrollBar::TRACKTYPE PluginScrollBar::ScrollBarHitTest(const RECT* prc, POINT pt, int)
{
    return static_cast<TRACKTYPE>(HitTest(AsBox(*prc), pt.x, pt.y, {m_nPos, m_nPage, m_nTotal, m_nFlags}, m_bVertical));
}

}  // namespace kiv_skin
