#include "bench/draw_panel.h"
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include <cstring>
#include <string>

using kiv_skin::CMemoDC;
using kiv_skin::KivDraw;

namespace panel {

const char kCaption[] = "<*sc=UPTEXT*>600519<*sc=EQUTEXT*> 1688.00<*c=FF*> +2.35%";
const char* const kPrices[2] = {"+12.50", "-3.21"};

namespace {

const char kTitle[] = "\xE8\x87\xAA\xE9\x80\x89\xE8\x82\xA1";  // 自选股 in UTF-8
const wchar_t kTitleWide[] = L"\x81EA\x9009\x80A1";

int RowTop(int row) { return kTop + 2 + row * kRowHeight; }

}  // namespace

kiv_skin::KivStyleMgr* Scheme() { return kiv_skin::KivStyleMgr::GetInstance(); }
HFONT SchemeFontHandle(const char* key) { return static_cast<HFONT>(Scheme()->GetFont(key)->m_hObject); }
int Height(int rows) { return kTop + 2 + rows * kRowHeight + 54; }

// --- By the kit ---------------------------------------------------------------------------------

void KitCaption(CDC* dc, int top)
{
    CRect rect(0, top, 240, top + kRowHeight);
    KivDraw::DrawRichText(dc, &rect, kCaption, CRect(4, 2, 0, 0), 0, 100);
}

void KitFrame(CDC* dc, int height)
{
    CRect all(0, 0, kWidth, height);
    KivDraw::DrawPluginFrame(dc, &all);
}

void KitTitle(CDC* dc) { kiv_skin::PluginTitle(kTitle).Draw(dc, CRect(1, 1, kWidth - 1, kTop)); }

void KitCaptionRow(CDC* dc, int row) { KitCaption(dc, RowTop(row)); }

// The kit object is made per repaint, as a plug-in that follows scheme switches makes it.
void KitPriceRow(KivDraw& kit, CDC* dc, int row) { kit.DrawUL(dc, 260, RowTop(row) + 2, kPrices[row % 2], 1); }

void KitAxis(CDC* dc, int height)
{
    KivDraw::DrawAxis(dc, 1, {10, height - 30}, {kWidth - 10, height - 30}, 0, 100, 5, "t", 0xFFFFFFFF, nullptr, 1, 12);
}

void PanelByKit(CDC* target, int rows, bool prices)
{
    const int height = Height(rows);
    CMemoDC memory(target, kWidth, height, 0);
    KitFrame(&memory, height);
    KitTitle(&memory);
    CFont* previous = memory.SelectObject(const_cast<CFont*>(Scheme()->GetFont("PLUG_STDFONT")));
    memory.SetBkMode(TRANSPARENT);
    KivDraw kit;
    for (int i = 0; i < rows; ++i) {
        KitCaptionRow(&memory, i);
        if (prices) KitPriceRow(kit, &memory, i);
    }
    KitAxis(&memory, height);
    memory.SelectObject(previous);
    target->BitBlt(0, 0, kWidth, height, &memory, 0, 0, SRCCOPY);
}

// --- By hand ------------------------------------------------------------------------------------

namespace {

void TextAt(HDC hdc, int x, int y, const char* text) { TextOutA(hdc, x, y, text, static_cast<int>(std::strlen(text))); }

void PriceByHand(HDC hdc, HDC marks, int x, int y, const char* price)
{
    const char* point = std::strchr(price, '.');
    std::string integral(price + 1, point), fraction(point + 1);
    SIZE whole, part;
    GetTextExtentPoint32A(hdc, integral.c_str(), static_cast<int>(integral.size()), &whole);
    GetTextExtentPoint32A(hdc, fraction.c_str(), static_cast<int>(fraction.size()), &part);
    TextAt(hdc, x + 11, y, integral.c_str());
    TextAt(hdc, x + 11 + whole.cx, y, fraction.c_str());
    MarkByHand(hdc, marks, x + 5, y + whole.cy - 8, price[0] == '+' ? 3 : 2, GetTextColor(hdc));
    MoveToEx(hdc, x + 11 + whole.cx, y + whole.cy - 1, nullptr);
    LineTo(hdc, x + 11 + whole.cx + part.cx, y + whole.cy - 1);
}

// A price in raw GDI as the kit's steps draw it: its alignment kept and put back, the mark with
// a memory context of its own, the underline with a pen of its own, the position put back.
void PriceBySteps(HDC hdc, int x, int y, const char* price)
{
    const char* point = std::strrchr(price, '.');
    const char* integral = price + 1;
    int wholeLength = static_cast<int>(point - integral), partLength = static_cast<int>(std::strlen(point + 1));
    SIZE whole, part;
    GetTextExtentPoint32A(hdc, integral, wholeLength, &whole);
    GetTextExtentPoint32A(hdc, point + 1, partLength, &part);
    UINT align = GetTextAlign(hdc);
    SetTextAlign(hdc, align & ~(TA_RIGHT | TA_CENTER));
    ExtTextOutA(hdc, x + 11, y, 0, nullptr, integral, wholeLength, nullptr);
    ExtTextOutA(hdc, x + 11 + whole.cx, y, 0, nullptr, point + 1, partLength, nullptr);
    HDC marks = CreateCompatibleDC(hdc);
    HGDIOBJ previousStrip = SelectObject(marks, Scheme()->GetBitmap("KIV_MARK")->m_hObject);
    MarkByHand(hdc, marks, x + 5, y + whole.cy - 8, price[0] == '+' ? 3 : 2, GetTextColor(hdc));
    SelectObject(marks, previousStrip);
    DeleteDC(marks);
    HPEN pen = CreatePen(PS_SOLID, 1, GetTextColor(hdc));
    HGDIOBJ previousPen = SelectObject(hdc, pen);
    POINT position;
    MoveToEx(hdc, x + 11 + whole.cx, y + whole.cy - 1, &position);
    LineTo(hdc, x + 11 + whole.cx + part.cx, y + whole.cy - 1);
    MoveToEx(hdc, position.x, position.y, nullptr);
    DeleteObject(SelectObject(hdc, previousPen));
    SetTextAlign(hdc, align);
}

}  // namespace

void CaptionByHand(HDC hdc)
{
    UINT align = SetTextAlign(hdc, TA_UPDATECP);
    POINT position;
    MoveToEx(hdc, 4, 2, &position);
    COLORREF ink = SetTextColor(hdc, Scheme()->GetColor("UPTEXT"));
    ExtTextOutW(hdc, 0, 0, 0, nullptr, L"600519", 6, nullptr);
    SetTextColor(hdc, Scheme()->GetColor("EQUTEXT"));
    ExtTextOutW(hdc, 0, 0, 0, nullptr, L" 1688.00", 8, nullptr);
    SetTextColor(hdc, RGB(255, 0, 0));
    ExtTextOutW(hdc, 0, 0, 0, nullptr, L" +2.35%", 7, nullptr);
    SetTextColor(hdc, ink);
    MoveToEx(hdc, position.x, position.y, nullptr);
    SetTextAlign(hdc, align);
}

// A mark of the scheme's strip at scale 1, as two copies through the strip's one-bit pixels.
void MarkByHand(HDC hdc, HDC marks, int x, int y, int mark, COLORREF ink)
{
    COLORREF text = SetTextColor(hdc, 0), back = SetBkColor(hdc, RGB(255, 255, 255));
    BitBlt(hdc, x - 5, y - 5, 12, 12, marks, 24 * mark, 0, SRCAND);
    SetBkColor(hdc, ink);
    BitBlt(hdc, x - 5, y - 5, 12, 12, marks, 24 * mark + 12, 0, SRCPAINT);
    SetBkColor(hdc, back);
    SetTextColor(hdc, text);
}

// Prices are drawn in the context's text colour, black, and underlined in it.
RawTools MakeRawTools(HDC hdc)
{
    RawTools tools;
    tools.marks = CreateCompatibleDC(hdc);
    tools.previousMarks = SelectObject(tools.marks, Scheme()->GetBitmap("KIV_MARK")->m_hObject);
    tools.ink = CreatePen(PS_SOLID, 1, RGB(0, 0, 0));
    tools.axis = CreatePen(PS_SOLID, 1, Scheme()->GetColor("AXIS"));
    tools.frame = CreateSolidBrush(Scheme()->GetColor("PLUG_FRAME"));
    tools.previousPen = SelectObject(hdc, tools.ink);
    return tools;
}

void FreeRawTools(HDC hdc, const RawTools& tools)
{
    SelectObject(hdc, tools.previousPen);
    SelectObject(tools.marks, tools.previousMarks);
    DeleteDC(tools.marks);
    DeleteObject(tools.ink);
    DeleteObject(tools.axis);
    DeleteObject(tools.frame);
}

void RawFrame(HDC hdc, const RawTools& tools, int height)
{
    RECT all = {0, 0, kWidth, height};
    SetBkColor(hdc, Scheme()->GetColor("PLUG_BGCOLOR"));
    ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    FrameRect(hdc, &all, tools.frame);
}

HGDIOBJ RawTitle(HDC hdc)
{
    HGDIOBJ previous = SelectObject(hdc, SchemeFontHandle("PLUG_TITLE"));
    TEXTMETRICA metrics;
    GetTextMetricsA(hdc, &metrics);
    RECT band = {1, 1, kWidth - 1, 1 + metrics.tmHeight + 2};
    SetBkColor(hdc, Scheme()->GetColor("PLUG_TITLE_BGCOLOR"));
    ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, &band, nullptr, 0, nullptr);
    SetTextColor(hdc, Scheme()->GetColor("PLUG_TITLE_TEXT"));
    DrawTextW(hdc, kTitleWide, -1, &band, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    return previous;
}

void RawRowFont(HDC hdc)
{
    SelectObject(hdc, SchemeFontHandle("PLUG_STDFONT"));
    SetBkMode(hdc, TRANSPARENT);
}

void RawCaptionRow(HDC hdc, int row)
{
    SetViewportOrgEx(hdc, 0, RowTop(row), nullptr);
    CaptionByHand(hdc);
    SetViewportOrgEx(hdc, 0, 0, nullptr);
}

void RawPriceRow(HDC hdc, const RawTools& tools, int row)
{
    SetTextColor(hdc, RGB(0, 0, 0));
    PriceByHand(hdc, tools.marks, 260, RowTop(row) + 2, kPrices[row % 2]);
}

void RawPriceRowBySteps(HDC hdc, int row)
{
    SetTextColor(hdc, RGB(0, 0, 0));
    PriceBySteps(hdc, 260, RowTop(row) + 2, kPrices[row % 2]);
}

void RawAxis(HDC hdc, const RawTools& tools, int height)
{
    int y = height - 30, left = 10, right = kWidth - 10;
    SelectObject(hdc, tools.axis);
    SelectObject(hdc, SchemeFontHandle("SMALL"));
    SetTextColor(hdc, Scheme()->GetColor("AXIS"));
    SIZE title;
    GetTextExtentPoint32A(hdc, "t", 1, &title);
    TextAt(hdc, right - title.cx, y + 3, "t");
    MoveToEx(hdc, left, y, nullptr);
    LineTo(hdc, right, y);
    LineTo(hdc, right - 4, y - 4);
    MoveToEx(hdc, right, y, nullptr);
    LineTo(hdc, right - 4, y + 4);
    SetTextAlign(hdc, TA_CENTER | TA_TOP);
    const char* labels[] = {"0", "20", "40", "60", "80"};
    for (int i = 0; i < 5; ++i) {
        int x = left + i * (right - left) / 5;
        MoveToEx(hdc, x, y, nullptr);
        LineTo(hdc, x, y + 3);
        TextAt(hdc, x, y + 3, labels[i]);
    }
    SetTextAlign(hdc, TA_LEFT | TA_TOP);
}

void PanelByHand(CDC* target, int rows, RawPrices prices)
{
    const int height = Height(rows);
    HDC hdc = CreateCompatibleDC(target->m_hDC);
    HBITMAP bitmap = CreateCompatibleBitmap(target->m_hDC, kWidth, height);
    HGDIOBJ previousBitmap = SelectObject(hdc, bitmap);
    RawTools tools = MakeRawTools(hdc);
    RawFrame(hdc, tools, height);
    HGDIOBJ previousFont = RawTitle(hdc);
    RawRowFont(hdc);
    for (int i = 0; i < rows; ++i) {
        RawCaptionRow(hdc, i);
        if (prices == kPricesByFewestCalls) RawPriceRow(hdc, tools, i);
        if (prices == kPricesBySteps) RawPriceRowBySteps(hdc, i);
    }
    RawAxis(hdc, tools, height);
    BitBlt(target->m_hDC, 0, 0, kWidth, height, hdc, 0, 0, SRCCOPY);
    SelectObject(hdc, previousFont);
    FreeRawTools(hdc, tools);
    SelectObject(hdc, previousBitmap);
    DeleteObject(bitmap);
    DeleteDC(hdc);
}

}  // namespace panel
