// What the style dialog paints: the colour being edited, a sample of the font being edited, and
// a mock-up of a plug-in panel (title bar with a clock, three list rows) in the working scheme.
#include "kiv_skin/styledlg/style_dlg.h"
#include <algorithm>
#include <ctime>

namespace kiv_skin {
namespace {

const char kFontSample[] = "Velmor";
const char kPreviewTitle[] = "Velmor\xB2\xE5\xBC\xFE\xB1\xEA\xCC\xE2";  // Velmor插件标题
const char kLabelColumn[] = "\xC1\xD0\xB1\xED\xCF\xEE ";                 // "列表项 "
const int kTitleHeight = 20;
const int kFrameWidth = 3;

struct PreviewRow {
    const char* label;     // 上涨字, 平盘字, 下跌字
    const char* colorKey;
};
const PreviewRow kRows[CStyleDlg::kRowCount] = {
    {"\xC9\xCF\xD5\xC7\xD7\xD6", "UPTEXT"},
    {"\xC6\xBD\xC5\xCC\xD7\xD6", "EQUTEXT"},
    {"\xCF\xC2\xB5\xF8\xD7\xD6", "DOWNTEXT"},
};

// The size of "A", the unit by which texts are placed.
CSize LetterA(CDC* pDC) { return pDC->GetTextExtent("A", 1); }

CString ClockText()
{
    std::time_t now = std::time(nullptr);
    char text[16] = "";
    std::strftime(text, sizeof(text), "%H:%M:%S", std::localtime(&now));
    CString clock(text);
    clock.Trim();
    return clock;
}

}  // namespace

COLORREF CStyleDlg::WorkColor(const char* key) const { return LookupColor(m_styleWork.colors, key); }

void CStyleDlg::OnPaint()
{
    CPaintDC dc(this);
    DrawColor(&dc);
    DrawFont(&dc);
    DrawPreview(&dc);
}

void CStyleDlg::RepaintColorAndPreview()
{
    CClientDC dc(this);
    DrawColor(&dc);
    DrawPreview(&dc);
}

void CStyleDlg::RepaintFontAndPreview()
{
    CClientDC dc(this);
    DrawFont(&dc);
    DrawPreview(&dc);
}

void CStyleDlg::RepaintPreview()
{
    CClientDC dc(this);
    DrawPreview(&dc);
}

void CStyleDlg::DrawColor(CDC* pDC)
{
    CBrush brush(m_clrCurrent);
    CRect swatch(m_rcColor);
    swatch.DeflateRect(4, 4);
    CBrush* oldBrush = pDC->SelectObject(&brush);
    pDC->RoundRect(swatch, CPoint(4, 4));
    pDC->SelectObject(oldBrush);
}

// The sample has no colour of its own: it takes the context's text colour.
void CStyleDlg::DrawFont(CDC* pDC)
{
    CRect area(m_rcFont);
    CFont* oldFont = pDC->SelectObject(const_cast<CFont*>(LookupFont(m_styleWork.fonts, m_strFontKey)));
    int oldMode = pDC->SetBkMode(TRANSPARENT);
    CSize a = LetterA(pDC);
    int x = area.left + (area.Width() - static_cast<int>(sizeof(kFontSample) - 1) * a.cx) / 2;
    int y = area.top + (area.Height() - a.cy) / 2;
    pDC->TextOut(x, y, kFontSample);
    pDC->SetBkMode(oldMode);
    pDC->SelectObject(oldFont);
}

void CStyleDlg::DrawPreview(CDC* pDC)
{
    CRect outer(m_rcPreview);
    CPen framePen(PS_SOLID, kFrameWidth, WorkColor("PLUG_FRAME"));
    CPen gridPen(PS_SOLID, 1, WorkColor("PLUG_FRAME"));
    int saved = pDC->SaveDC();
    pDC->SelectObject(&framePen);
    pDC->SelectStockObject(NULL_BRUSH);
    pDC->Rectangle(outer);
    CRect inner(outer);
    inner.DeflateRect(kFrameWidth, kFrameWidth);
    pDC->FillSolidRect(inner, WorkColor("PLUG_BGCOLOR"));
    DrawTitle(pDC, inner);
    if (LookupFont(m_styleWork.fonts, m_strFontKey) != nullptr) DrawRows(pDC, inner, &gridPen);
    pDC->RestoreDC(saved);
}

// The title bar with its centred title and, right-aligned, the clock in the edited font.
void CStyleDlg::DrawTitle(CDC* pDC, const CRect& inner)
{
    CRect title(inner.left, inner.top, inner.right, m_rcPreview.top + kTitleHeight);
    m_rcTitle = title;
    pDC->FillSolidRect(title, WorkColor("PLUG_TITLE_BGCOLOR"));
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(WorkColor("PLUG_TITLE_TEXT"));
    pDC->SelectObject(const_cast<CFont*>(LookupFont(m_styleWork.fonts, "PLUG_TITLE")));
    CSize a = LetterA(pDC);
    int titleBytes = static_cast<int>(sizeof(kPreviewTitle) - 1);
    pDC->TextOut(title.left + (title.Width() - titleBytes * a.cx) / 2, title.top + (title.Height() - a.cy) / 2,
                 kPreviewTitle);
    CString clock = ClockText();
    pDC->SetTextColor(WorkColor("PLUG_TIME_COLOR1"));
    pDC->SelectObject(const_cast<CFont*>(LookupFont(m_styleWork.fonts, m_strFontKey)));
    a = LetterA(pDC);
    pDC->TextOut(title.right - clock.GetLength() * a.cx, title.bottom - a.cy, clock);
    pDC->SelectStockObject(WHITE_PEN);
    pDC->MoveTo(title.left, title.bottom);
    pDC->LineTo(title.right, title.bottom);
}

// Three rows in the rise, unchanged and fall colours at the bottom of the panel, the clicked
// one highlighted, with a grid around them. The edited font is still selected.
void CStyleDlg::DrawRows(CDC* pDC, const CRect& inner, CPen* gridPen)
{
    int h = LetterA(pDC).cy + 4;
    int listTop = std::max<int>(inner.bottom - kRowCount * h, m_rcTitle.bottom);
    int labelWidth = pDC->GetTextExtent(kLabelColumn, static_cast<int>(sizeof(kLabelColumn) - 1)).cx;
    for (int k = 0; k < kRowCount; ++k)
        m_rcRows[k] = CRect(inner.left, inner.bottom - (kRowCount - k) * h, inner.right,
                            inner.bottom - (kRowCount - 1 - k) * h);
    if (m_nHotRow >= 0 && m_bPreviewDrawn == 1) {
        CRect hot(m_rcRows[m_nHotRow]);
        hot.DeflateRect(4, 1);
        pDC->FillSolidRect(hot, WorkColor("PLUG_SELCOLOR"));
    }
    pDC->SelectObject(const_cast<CFont*>(LookupFont(m_styleWork.fonts, "PLUG_STDFONT")));
    for (int k = 0; k < kRowCount; ++k) {
        int top = m_rcRows[k].top;
        CString value, change;
        value.Format("%.2f", static_cast<double>((kRowCount - k) * 33.33f));
        change.Format("%+.2f%%", (1 - k) * 10.0);
        pDC->SetTextColor(WorkColor(kRows[k].colorKey));
        pDC->TextOut(inner.left, top - 1, kRows[k].label);
        pDC->TextOut(inner.left + inner.Width() / 3, top, value);
        pDC->TextOut(inner.left + inner.Width() * 2 / 3, top, change);
    }
    m_bPreviewDrawn = 1;
    pDC->SelectObject(gridPen);
    pDC->MoveTo(inner.left, listTop);
    pDC->LineTo(inner.right, listTop);
    pDC->MoveTo(inner.left + labelWidth, listTop);
    pDC->LineTo(inner.left + labelWidth, inner.bottom);
    for (int j = 0; j < kRowCount; ++j) {
        pDC->MoveTo(inner.left, inner.bottom - 2 - j * h);
        pDC->LineTo(inner.right, inner.bottom - 2 - j * h);
    }
}

}  // namespace kiv_skin
