// The scroll bar's mouse handling: presses on the arrows and the track with their repeat timer,
// the dragged thumb with its optional throttle, and the wheel.
#include "kiv_skin/scrollbar/plugin_scroll_bar.h"
#include "kiv_skin/scrollbar/scroll_model_access.h"

namespace kiv_skin {

using namespace scroll_arithmetic;

namespace {

const UINT kFirstRepeatDelay = 300;  // ms from the press to the first repeat
const UINT kRepeatInterval = 100;    // ms between repeats after that
const UINT kDragNotifyDelay = 100;   // ms a throttled drag step waits for its notification
const DWORD kDragThrottle = 80;      // ms within which drag steps are not applied at once

// The drag timer's callback: hands the expiry to the scroll bar that set the timer.
void OnDragTimer(void* pRecord)
{
    auto* record = static_cast<kiv_base::KivTimerRecord*>(pRecord);
    if (record == nullptr || record->pOwner == nullptr) return;
    static_cast<PluginScrollBar*>(record->pOwner)->OnKivTimer(static_cast<UINT>(record->nTimerId));
}

}  // namespace

PluginScrollBar::MOUSEEVENT PluginScrollBar::OnMouseEvent(const _DMouseEvent* pEvent)
{
    CPoint pt(pEvent->x, pEvent->y);
    if (pEvent->message == DMOUSE_WHEEL && m_bVertical == 1) {
        OnMouseWheel(pEvent->wheelDelta, pt);
        return MOUSE_HANDLED;
    }
    if (!Contains(AsBox(m_rcScroll), pt.x, pt.y) && m_bDragging == 0) {
        m_ptLast = pt;
        m_nRepeatCount = 0;
        m_timerRepeat.KillTimer();
        return MOUSE_IGNORED;
    }
    MOUSEEVENT result = MOUSE_IGNORED;
    switch (pEvent->message) {
    case DMOUSE_LBUTTONDOWN:
        OnMouseLButtonDown(pt);
        result = MOUSE_HANDLED;
        break;
    case DMOUSE_LBUTTONUP:
        OnMouseLButtonUp(pt);
        result = pt == CPoint(m_ptLast) ? MOUSE_NOCHANGE : MOUSE_HANDLED;
        break;
    case DMOUSE_MOVE:
        if (m_bDragging != 0 && OnMouseMove(pt) != 0) result = MOUSE_HANDLED;
        break;
    default:
        break;
    }
    m_ptLast = pt;
    return result;
}

void PluginScrollBar::OnMouseLButtonDown(CPoint pt)
{
    if (!Contains(AsBox(m_rcScroll), pt.x, pt.y)) return;
    m_nTrackType = ScrollBarHitTest(&m_rcScroll, pt, m_nActiveBar);
    StartTimer(kFirstRepeatDelay);
    if (m_nTrackType == TRACK_NONE) return;
    m_nActiveBar = 0;
    if (m_nTrackType == TRACK_THUMB) {
        int out[4];
        CalcScrollPos(&m_rcScroll, out, m_nPos, m_nPage, m_nTotal, m_bVertical);
        m_nDragOffset = Subtract(m_bVertical ? pt.y : pt.x, out[1]);
        m_bDragging = 1;
        return;
    }
    m_nRepeatCount = 0;
    int target = StepTarget(static_cast<Part>(m_nTrackType), {m_nPos, m_nPage, m_nTotal, m_nFlags});
    if (target == m_nPos || target < 0 || target >= m_nTotal) return;
    m_nPos = ClampPos(target, m_nPage, m_nTotal);
    m_nFlags |= kFlagScrolled;
}

void PluginScrollBar::OnMouseLButtonUp(CPoint)
{
    m_nRepeatCount = 0;
    m_bDragging = 0;
    m_timerRepeat.KillTimer();
}

int PluginScrollBar::OnMouseMove(CPoint pt)
{
    if (m_nTotal <= 1 || m_nTrackType != TRACK_THUMB || m_nTotal <= m_nPage) return 0;
    Geometry g = Layout(AsBox(m_rcScroll), m_nPos, m_nPage, m_nTotal, m_bVertical);
    int target = DragTarget(g, m_bVertical ? pt.y : pt.x, m_nDragOffset, {m_nPos, m_nPage, m_nTotal, m_nFlags});
    if (target == m_nPos) return 0;
    m_nPos = target;
    if (!m_bImmediate) {
        if (::GetTickCount() - m_dwLastDragTick <= kDragThrottle) {
            if (m_timerDrag.GetTimerId() == 0) m_timerDrag.SetTimer(AfxGetMainWnd(), this, OnDragTimer, kDragNotifyDelay);
            return 0;
        }
        m_dwLastDragTick = ::GetTickCount();
    }
    ScrollTo(target, m_nActiveBar);
    return 1;
}

void PluginScrollBar::OnMouseWheel(short nDelta, CPoint)
{
    m_nPos = WheelTarget({m_nPos, m_nPage, m_nTotal, m_nFlags}, nDelta);
}

void PluginScrollBar::StartTimer(UINT nElapse) { m_timerRepeat.SetTimer(m_pMainWnd, this, SetMyWork, nElapse); }

void PluginScrollBar::SetMyWork(void* pRecord)
{
    auto* record = static_cast<kiv_base::KivTimerRecord*>(pRecord);
    static_cast<PluginScrollBar*>(record->pOwner)->DoWork();
}

void PluginScrollBar::DoWork()
{
    if (m_nRepeatCount++ == 0) {
        m_timerRepeat.KillTimer();
        StartTimer(kRepeatInterval);
    }
    if (ScrollBarHitTest(&m_rcScroll, m_ptLast, m_nActiveBar) != m_nTrackType) return;
    int target = StepTarget(static_cast<Part>(m_nTrackType), {m_nPos, m_nPage, m_nTotal, m_nFlags});
    if (target == m_nPos) return;
    if (m_nActiveBar == 0 && target >= 0 && target < m_nTotal) {
        m_nPos = ClampPos(target, m_nPage, m_nTotal);
        m_nFlags |= kFlagScrolled;
    }
    m_nPos = target;  // the step's own value stands, whether or not it was clamped above
    m_nRepeatCount = 0;
    NotifyParentChanged();
}

void PluginScrollBar::OnKivTimer(UINT nTimerId)
{
    if (nTimerId != m_timerDrag.GetTimerId()) return;
    m_timerDrag.KillTimer();
    m_dwLastDragTick = ::GetTickCount();
    if (m_nActiveBar == 0 && m_nPos >= 0 && m_nPos < m_nTotal) {
        m_nPos = ClampPos(m_nPos, m_nPage, m_nTotal);
        m_nFlags |= kFlagScrolled;
    }
    NotifyParentChanged();
}

}  // namespace kiv_skin
