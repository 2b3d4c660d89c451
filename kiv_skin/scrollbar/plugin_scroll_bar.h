// A scroll bar that a plug-in panel draws into its own client area. The panel owns one as a
// plain member, gives it the rectangle of its list area, the height of a line and the number of
// lines, forwards its mouse events, paints it, and reads the first visible line. Positions are
// in lines. Changes made by the repeat timers are reported to the owning host object
// ("OnCommand_ScrollBarChanged", sent) and to its parent ("OnCommand_PluginRedraw", posted).
#pragma once
#include "kiv_base/kiv_timer.h"
#include "kiv_core/kiv_object.h"
#include "kiv_core/mouse_event.h"
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>

namespace kiv_skin {

class KIV_SKIN_API PluginScrollBar {
public:
    // Parts of the bar, as the hit test answers.
    enum TRACKTYPE {
        TRACK_NONE = 0,      // outside the bar
        TRACK_LINEDOWN = 1,  // the second arrow: bottom or right
        TRACK_LINEUP = 2,    // the first arrow: top or left
        TRACK_PAGEDOWN = 3,  // the track after the thumb
        TRACK_PAGEUP = 4,    // the track before the thumb
        TRACK_THUMB = 5,
    };
    // What OnMouseEvent answers.
    enum MOUSEEVENT {
        MOUSE_IGNORED = -1,  // not for the scroll bar
        MOUSE_NOCHANGE = 0,  // handled, nothing to repaint
        MOUSE_HANDLED = 1,   // handled; the owner should repaint
    };
    // The pieces DrawWekToolButton paints: faces (1, 0, -1, -2), gradient columns (100-132,
    // and 200-300 with the button strip), framed plain pieces (4: the background; 2, 5, -3) and
    // plain fills (any other value).
    enum BUTTON_TYPE {
        BUTTON_FACE_HOVER = 1,
        BUTTON_FACE = 0,  // arrows and thumb
        BUTTON_FACE_PRESSED = -1,
        BUTTON_FACE_DISABLED = -2,
        BUTTON_FRAMED = 2,  // also 5 and -3
        BUTTON_BACKGROUND = 4,
        BUTTON_GRADIENT_FIRST = 100,
        BUTTON_GRADIENT_LAST = 132,
        BUTTON_STRIP_COLUMN_FIRST = 200,
        BUTTON_STRIP_COLUMN_LAST = 300,
    };
    // The owning panel's border; stored for the owner, not used by the bar's drawing.
    enum BORDERSTYLE { BORDER_NONE = 0, BORDER_SINGLE = 1, BORDER_SUNKEN = 2 };

    // bImmediate: every drag step applies at once (true) or is throttled (false).
    PluginScrollBar();
    explicit PluginScrollBar(bool bImmediate);
    // Detaches the button strip (the style data keeps it); the timers stop with their objects.
    ~PluginScrollBar();

    // Stores the owner object, the border style, the orientation (1 vertical at the right edge,
    // 0 horizontal at the bottom) and the thread's main window, which carries the timers.
    void Create(IKivObject* pOwner, BORDERSTYLE style, int bVertical);
    // rc: the owner's whole list area. nTotal below 1 resets to no content (position 0, page 1,
    // total 1) and keeps the bar where it was. bKeepAtEnd 1 keeps the last line in view when
    // the view was showing the end. nLineHeight must be at least 1 (0 counts as 1 pixel).
    void SetScrollInfo(const CRect& rc, int nLineHeight, int nTotal, int bKeepAtEnd);
    // Moves the bar to the strip of a new area; the model stays.
    void SetScrollRect(const CRect& rc);
    CRect GetScrollRect();
    int GetLineHeight();
    int GetFullHeight();
    int GetScrollPos();
    // Adds nDelta to the position, within 0 and total - page.
    void SetScrollPos(int nDelta);
    // 1 when pos + page > total (strictly: a view showing exactly the last page answers 0).
    int IsMaxPostion();
    // The bar's thickness (16), for the owner's layout.
    int GetScrollBarHeight();

    // Paints the bar at its rectangle through one off-screen copy; nothing when total < 2.
    void Draw(CDC* pDC);
    // pEvent holds the panel's client coordinates.
    MOUSEEVENT OnMouseEvent(const _DMouseEvent* pEvent);
    // The drag timer's expiry: applies and reports the deferred drag step.
    void OnKivTimer(UINT nTimerId);

private:
    friend struct PluginScrollBarInternals;  // the tests' way to the private operations

    int HasScrollBar();
    int GetNumScrollBar();
    int CalcScrollInfo(int nTotal, int nPos);
    int CalcScrollPos(const RECT* prc, int* pOut, int nPos, int nPage, int nTotal, int bVertical);
    int ScrollTo(int nPos, int nBar);
    TRACKTYPE ScrollBarHitTest(const RECT* prc, POINT pt, int nBar);

    void DrawScrollBar(CDC* pDC, const RECT* prc, int nPos, int nPage, int nTotal, int bVertical);
    void DrawWekToolButton(CDC* pDC, const RECT* prc, BUTTON_TYPE type, int nShape);
    void DrawArrowButton(CDC* pDC, const RECT* prc, DWORD clrArrow, DWORD clrBack, int nDirection, int nKeepShape);
    int IsDarkBackground(CDC* pDC);
    void RectangleLine(CDC* pDC, const RECT* prc);

    void OnMouseLButtonDown(CPoint pt);
    void OnMouseLButtonUp(CPoint pt);
    int OnMouseMove(CPoint pt);
    void OnMouseWheel(short nDelta, CPoint pt);
    void StartTimer(UINT nElapse);
    static void SetMyWork(void* pRecord);
    void DoWork();
    void NotifyParentChanged();

    int m_nPos;
    int m_nPage;
    int m_nTotal;
    int m_nActiveBar;
    int m_nDragOffset;
    int m_nRepeatCount;
    int m_nLineHeight;
    DWORD m_nFlags;  // 0x40: a bar is needed; 0x80: the position was set by scrolling
    int m_bVertical;
    int m_bDragging;
    CBitmap m_bmpButton;  // the style data's "KIV_BTN", attached, never deleted here
    POINT m_ptLast;
    TRACKTYPE m_nTrackType;
    RECT m_rcScroll;
    COLORREF m_clrBack;
    COLORREF m_clrAxis;
    COLORREF m_clrText;
    COLORREF m_clrLine;
    COLORREF m_clrBar;
    BORDERSTYLE m_nBorderStyle;
    IKivObject* m_pOwner;
    CWnd* m_pMainWnd;
    kiv_base::KivTimer m_timerRepeat;
    kiv_base::KivTimer m_timerDrag;
    DWORD m_dwLastDragTick;
    bool m_bImmediate;
};

}  // namespace kiv_skin
