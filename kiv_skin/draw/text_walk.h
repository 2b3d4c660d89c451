// The cut-text walk of TextOutLimitWidth, shared with rich text: a table of the font's widths
// that one call can keep while the selected font stays the same, and the cut itself.
#pragma once
#include <afxwin.h>

namespace kiv_skin {

// The font's ANSI widths of the codes just before ASCII characters, and the width of a
// double-byte character, read from the context only when a walk needs them. Codes asked for in
// advance (Expect) are read with the first need, in one call. Valid for as long as the context
// keeps its font and mapping: a caller that changes its font calls Forget.
class WalkWidths {
public:
    explicit WalkWidths(CDC* dc) : m_dc(dc) {}
    void Expect(const wchar_t* text, int length);
    // Reads whatever the walk over text needs and has not been read yet.
    void Need(const wchar_t* text, int length);
    // The width the walk adds for c: ASCII by the code before it (the code before 0 has none),
    // anything else as wide as "中".
    int Step(wchar_t c);
    void Forget();

private:
    CDC* m_dc;
    int m_ascii[128] = {};
    UINT m_wantFirst = 127, m_wantLast = 0;  // codes expected or needed so far
    UINT m_readFirst = 127, m_readLast = 0;  // codes read from the font now selected
    int m_wide = -1;
};

// TextOutLimitWidth on length characters of text whose whole width is known: draws (unless
// measureOnly) as much as fits in area, sets count when the walk decides, returns the width drawn.
int CutText(CDC* dc, const CRect& area, const wchar_t* text, int length, int whole, int& count,
            WalkWidths& widths, int measureOnly);

}  // namespace kiv_skin
