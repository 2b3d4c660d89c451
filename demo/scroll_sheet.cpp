#include "demo/scroll_sheet.h"
#include "demo/logical_units.h"
#include "demo/scheme_text.h"
#include "demo/scroll_panel.h"
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include <iterator>

using kiv_skin::KivDraw;

namespace {

// Logical units (demo/logical_units.h), but for the faces of the button strip: the bitmap twice
// its own size.
const int kMargin = 12;
const int kHeading = 30;
const int kCaption = 22;
const int kPanelWidth = 372;
const int kPanelHeight = 330;
const int kGap = 12;
const int kFaceScale = 2;
const UINT kLine = DT_SINGLELINE | DT_VCENTER;

void Press(ScrollPanel& panel, uint16_t message, const CPoint& pt)
{
    _DMouseEvent event = {pt.x, pt.y, message, 0};
    panel.OnMouse(event);
}

// Each panel: a caption and what is done to it before it is painted. Presses are left held:
// without a message loop the repeat timers never tick, so each picture is the state at the press.
struct Scene {
    const char* caption;
    void (*prepare)(ScrollPanel& panel);
};

void AtTop(ScrollPanel& panel) { panel.Select(2); }

// The thumb grabbed and dragged halfway down; two clicks on the right arrow of the columns.
void Dragging(ScrollPanel& panel)
{
    CRect rows = panel.Rows().GetScrollRect();
    CPoint thumb(rows.CenterPoint().x, rows.top + 20);
    Press(panel, DMOUSE_LBUTTONDOWN, thumb);
    Press(panel, DMOUSE_MOVE, CPoint(thumb.x, rows.CenterPoint().y));
    CRect columns = panel.Columns().GetScrollRect();
    CPoint right(columns.right - 8, columns.CenterPoint().y);
    for (int i = 0; i < 2; ++i) {
        Press(panel, DMOUSE_LBUTTONDOWN, right);
        Press(panel, DMOUSE_LBUTTONUP, right);
    }
    panel.Select(panel.Rows().GetScrollPos() + 4);
}

// At the last page, the up arrow held: the list has moved one row back from the end.
void UpArrowHeld(ScrollPanel& panel)
{
    panel.Rows().SetScrollPos(kPanelHeight * 100);
    panel.Columns().SetScrollPos(100);
    CRect rows = panel.Rows().GetScrollRect();
    Press(panel, DMOUSE_LBUTTONDOWN, CPoint(rows.CenterPoint().x, rows.top + 8));
}

// 列表顶部 · 拖动滑块 · 末页，按住上箭头
const Scene kScenes[] = {
    {"\xE5\x88\x97\xE8\xA1\xA8\xE9\xA1\xB6\xE9\x83\xA8 (top of the list)", AtTop},
    {"\xE6\x8B\x96\xE5\x8A\xA8\xE6\xBB\x91\xE5\x9D\x97 (dragging the thumb)", Dragging},
    {"\xE6\x8C\x89\xE4\xBD\x8F\xE4\xB8\x8A\xE7\xAE\xAD\xE5\xA4\xB4 (end, up arrow held)", UpArrowHeld},
};
const int kSceneCount = static_cast<int>(std::size(kScenes));

void DrawScene(CDC* dc, const Scene& scene, int left, int top)
{
    CRect caption(left, top, left + DpX(kPanelWidth), top + DpY(kCaption));
    WriteText(dc, scene.caption, caption, "PLUG_STDFONT", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kLine);
    ScrollPanel panel;
    panel.Place(CRect(left, caption.bottom, caption.right, caption.bottom + DpY(kPanelHeight)));
    scene.prepare(panel);
    panel.Paint(dc);
}

// The four faces of the scheme's button strip for its background, twice their size: the bars
// paint their arrows and thumb with the normal one.
const char* const kFaceNames[] = {"hover", "normal", "pressed", "disabled"};

void DrawFaces(CDC* dc, int left, int top)
{
    CRect caption(left, top, left + 4 * DpX(kPanelWidth), top + DpY(kCaption));
    WriteText(dc, "KIV_BTN", caption, "PLUG_STDFONT", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kLine);
    const CBitmap* strip = kiv_skin::KivStyleMgr::GetInstance()->GetBitmap("KIV_BTN");
    if (strip == nullptr || strip->m_hObject == nullptr) return;
    kiv_skin::CMemoDC cells(dc, const_cast<CBitmap*>(strip));
    COLORREF back = dc->GetNearestColor(SchemeColor("PLUG_BGCOLOR"));
    int firstCell = (GetRValue(back) + GetGValue(back) + GetBValue(back)) / 3 < 65 ? 0 : 4;
    int size = 21 * kFaceScale;
    for (int i = 0; i < 4; ++i) {
        int x = left + i * (size + DpX(70));
        dc->StretchBlt(x, caption.bottom, size, size, &cells, 21 * (firstCell + i), 0, 21, 21, SRCCOPY);
        CRect name(x - DpX(20), caption.bottom + size, x + size + DpX(20), caption.bottom + size + DpY(kCaption));
        WriteText(dc, kFaceNames[i], name, "SMALL", SchemeColor("EQUTEXT"), DT_CENTER | kLine);
    }
}

int FacesTop() { return DpY(kHeading) + DpY(kCaption) + DpY(kPanelHeight) + DpY(kGap); }

}  // namespace

CSize ScrollSheetSize()
{
    int facesHeight = 2 * DpY(kCaption) + 21 * kFaceScale;
    return CSize(2 * DpX(kMargin) + kSceneCount * DpX(kPanelWidth) + (kSceneCount - 1) * DpX(kGap),
                 FacesTop() + facesHeight + DpY(kMargin));
}

void DrawScrollSheet(CDC* dc, const char* title)
{
    CSize size = ScrollSheetSize();
    KivDraw::FillRect(dc, 0, 0, size.cx, size.cy, SchemeColor("BACKGROUND"));
    CRect heading(DpX(kMargin), 0, size.cx - DpX(kMargin), DpY(kHeading));
    WriteText(dc, title, heading, "PLUG_TITLE", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kLine);
    for (int i = 0; i < kSceneCount; ++i)
        DrawScene(dc, kScenes[i], DpX(kMargin) + i * (DpX(kPanelWidth) + DpX(kGap)), DpY(kHeading));
    DrawFaces(dc, DpX(kMargin), FacesTop());
}
