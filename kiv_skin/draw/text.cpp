// Text cut to a width.
#include "kiv_skin/draw/kiv_draw.h"
#include <algorithm>
#include <wctype.h>

namespace kiv_skin {
namespace {

// "中" in GB2312: the width of any character outside ASCII is taken to be that of this one.
const char kWideSample[] = "\xD6\xD0";

CSize WideExtent(CDC* dc, const wchar_t* text, int length)
{
    SIZE size = {0, 0};
    ::GetTextExtentPoint32W(dc->m_hAttribDC, text, length, &size);
    return CSize(size);
}

// Draws length characters clipped to area, from its right edge when the context aligns text
// exactly right, else from its left edge.
void DrawClipped(CDC* dc, const CRect& area, const wchar_t* text, int length)
{
    int x = dc->GetTextAlign() == TA_RIGHT ? area.right : area.left;
    ::ExtTextOutW(dc->m_hDC, x, area.top, ETO_CLIPPED, &area, text, length, nullptr);
}

// The font's ANSI widths of the codes just before the text's ASCII characters, and the width of
// a double-byte character, read once for a walk: only the codes the walk can use are asked for.
class WalkWidths {
public:
    WalkWidths(CDC* dc, const std::wstring& text) : m_dc(dc)
    {
        for (wchar_t c : text)
            if (c > 0 && iswascii(c)) {
                m_first = std::min<UINT>(m_first, c - 1);
                m_last = std::max<UINT>(m_last, c - 1);
            }
        if (m_first <= m_last) dc->GetCharWidth(m_first, m_last, m_ascii + m_first);
    }
    // The width the walk adds for c: ASCII by the code before it (the code before 0 has none),
    // anything else as wide as "中".
    int Step(wchar_t c)
    {
        if (iswascii(c)) return c > 0 ? m_ascii[c - 1] : 0;
        if (m_wide < 0) m_wide = m_dc->GetTextExtent(kWideSample, 2).cx;
        return m_wide;
    }

private:
    CDC* m_dc;
    int m_ascii[128] = {};
    UINT m_first = 127, m_last = 0;
    int m_wide = -1;
};

// How many characters fit in available, measured as the walk below does: each ASCII character
// by the font's width of the code before it (so "B" counts the width of "A"), every other one by
// the width of a double-byte character. A line feed ends the walk; the last character counted
// may run past available, as the test is made before adding its width.
int CountFitting(CDC* dc, const std::wstring& text, int available)
{
    WalkWidths widths(dc, text);
    int count = 0, width = 0;
    for (wchar_t c : text) {
        if (width >= available || c == L'\n') break;
        width += widths.Step(c);
        ++count;
    }
    return count;
}

}  // namespace

int KivDraw::TextOutLimitWidth(CDC* dc, const RECT* rect, const std::wstring& text, int& count,
                               CRect margins, int measureOnly)
{
    int length = static_cast<int>(text.size());
    int whole = WideExtent(dc, text.c_str(), length).cx;
    CRect area(rect->left + margins.left, rect->top + margins.top, rect->right - margins.right,
               rect->bottom - margins.bottom);
    if (whole < area.Width()) {
        if (!measureOnly) DrawClipped(dc, area, text.c_str(), length);
        return whole;
    }
    count = CountFitting(dc, text, area.Width());
    if (count == 0) return 0;
    if (!measureOnly) DrawClipped(dc, area, text.c_str(), count);
    return count == length ? whole : WideExtent(dc, text.c_str(), count).cx;
}

}  // namespace kiv_skin
