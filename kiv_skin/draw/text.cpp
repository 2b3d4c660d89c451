// Text cut to a width.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/text_walk.h"
#include <algorithm>
#include <wctype.h>

namespace kiv_skin {
namespace {

// "中" in GB2312: the width of any character outside ASCII is taken to be that of this one.
const char kWideSample[] = "\xD6\xD0";

// Draws length characters clipped to area, from its right edge when the context aligns text
// exactly right, else from its left edge.
void DrawClipped(CDC* dc, const CRect& area, const wchar_t* text, int length)
{
    int x = dc->GetTextAlign() == TA_RIGHT ? area.right : area.left;
    ::ExtTextOutW(dc->m_hDC, x, area.top, ETO_CLIPPED, &area, text, length, nullptr);
}

int WideWidth(CDC* dc, const wchar_t* text, int length)
{
    SIZE size = {0, 0};
    ::GetTextExtentPoint32W(dc->m_hAttribDC, text, length, &size);
    return size.cx;
}

// How many characters fit in available, measured as the walk below does: each ASCII character
// by the font's width of the code before it (so "B" counts the width of "A"), every other one by
// the width of a double-byte character. A line feed ends the walk; the last character counted
// may run past available, as the test is made before adding its width.
int CountFitting(WalkWidths& widths, const wchar_t* text, int length, int available)
{
    widths.Need(text, length);
    int count = 0, width = 0;
    for (; count < length; ++count) {
        if (width >= available || text[count] == L'\n') break;
        width += widths.Step(text[count]);
    }
    return count;
}

}  // namespace

void WalkWidths::Expect(const wchar_t* text, int length)
{
    for (int i = 0; i < length; ++i)
        if (text[i] > 0 && iswascii(text[i])) {
            m_wantFirst = std::min<UINT>(m_wantFirst, text[i] - 1);
            m_wantLast = std::max<UINT>(m_wantLast, text[i] - 1);
        }
}

void WalkWidths::Need(const wchar_t* text, int length)
{
    Expect(text, length);
    if (m_wantFirst > m_wantLast) return;
    if (m_readFirst > m_readLast) {
        m_dc->GetCharWidth(m_wantFirst, m_wantLast, m_ascii + m_wantFirst);
    } else {
        if (m_wantFirst < m_readFirst) m_dc->GetCharWidth(m_wantFirst, m_readFirst - 1, m_ascii + m_wantFirst);
        if (m_wantLast > m_readLast) m_dc->GetCharWidth(m_readLast + 1, m_wantLast, m_ascii + m_readLast + 1);
    }
    m_readFirst = m_wantFirst;
    m_readLast = m_wantLast;
}

int WalkWidths::Step(wchar_t c)
{
    if (iswascii(c)) return c > 0 ? m_ascii[c - 1] : 0;
    if (m_wide < 0) m_wide = m_dc->GetTextExtent(kWideSample, 2).cx;
    return m_wide;
}

void WalkWidths::Forget()
{
    m_readFirst = 127;
    m_readLast = 0;
    m_wide = -1;
}

int CutText(CDC* dc, const CRect& area, const wchar_t* text, int length, int whole, int& count,
            WalkWidths& widths, int measureOnly)
{
    if (whole < area.Width()) {
        if (!measureOnly) DrawClipped(dc, area, text, length);
        return whole;
    }
    count = CountFitting(widths, text, length, area.Width());
    if (count == 0) return 0;
    if (!measureOnly) DrawClipped(dc, area, text, count);
    return count == length ? whole : WideWidth(dc, text, count);
}

int KivDraw::TextOutLimitWidth(CDC* dc, const RECT* rect, const std::wstring& text, int& count,
                               CRect margins, int measureOnly)
{
    int length = static_cast<int>(text.size());
    CRect area(rect->left + margins.left, rect->top + margins.top, rect->right - margins.right,
               rect->bottom - margins.bottom);
    WalkWidths widths(dc);
    return CutText(dc, area, text.c_str(), length, WideWidth(dc, text.c_str(), length), count, widths,
                   measureOnly);
}

}  // namespace kiv_skin
