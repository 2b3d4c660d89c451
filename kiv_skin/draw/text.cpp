// Text cut to a width.
#include "kiv_skin/draw/kiv_draw.h"
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

// How many characters fit in available, measured as the walk below does: each ASCII character
// by the font's width of the code before it (so "B" counts the width of "A"), every other one by
// the width of a double-byte character. A line feed ends the walk; the last character counted
// may run past available, as the test is made before adding its width.
int CountFitting(CDC* dc, const std::wstring& text, int available)
{
    int ascii[128] = {};
    dc->GetCharWidth(0, 127, ascii);
    int wide = dc->GetTextExtent(kWideSample, 2).cx;
    int count = 0, width = 0;
    for (wchar_t c : text) {
        if (width >= available || c == L'\n') break;
        if (iswascii(c))
            width += c > 0 ? ascii[c - 1] : 0;  // the code before 0 has no width
        else
            width += wide;
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
    return WideExtent(dc, text.c_str(), count).cx;
}

}  // namespace kiv_skin
