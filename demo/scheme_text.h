// The active scheme's colours and fonts as the demo's pictures use them, and writing the demo's
// UTF-8 texts in them.
#pragma once
#include <afxwin.h>
#include <string>

COLORREF SchemeColor(const char* key);
// The scheme's font of that key, or null.
CFont* SchemeFont(const char* key);

// Selects the scheme's font of a key (when the scheme has it) and a text colour, on a
// transparent background, and puts back what it replaced when it goes out of scope.
class SchemeTextStyle {
public:
    SchemeTextStyle(CDC* dc, const char* fontKey, COLORREF color);
    ~SchemeTextStyle();
    SchemeTextStyle(const SchemeTextStyle&) = delete;
    SchemeTextStyle& operator=(const SchemeTextStyle&) = delete;

private:
    CDC* m_dc;
    CFont* m_font;
    CFont* m_previousFont = nullptr;
    COLORREF m_previousColor;
    int m_previousMode;
};

// Writes text (UTF-8) into box with DrawText's format flags, in the scheme's font of fontKey.
void WriteText(CDC* dc, const char* text, CRect box, const char* fontKey, COLORREF color, UINT format);
// Width of text (UTF-8) in the scheme's font.
int TextWidth(CDC* dc, const char* text, const char* fontKey);
// Height of a line of the scheme's font.
int LineHeight(CDC* dc, const char* fontKey);
// The ANSI code page's form of a UTF-8 text, as rich text and the kit's narrow calls take it.
std::string Utf8ToAnsi(const char* utf8);
// Markup (UTF-8) drawn by the kit's rich text on one line of box, vertically centred, starting
// from the scheme's font of fontKey and color.
void WriteRichText(CDC* dc, const char* markup, const CRect& box, const char* fontKey, COLORREF color);
