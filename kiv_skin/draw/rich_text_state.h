// The drawing state of one pass over rich-text runs, and the runs as the passes see them.
#pragma once
#include <afxwin.h>
#include "kiv_skin/draw/text_walk.h"
#include <string>
#include <string_view>

namespace kiv_skin {

// One run of the markup with what the passes find out about it.
struct DrawFormatText {
    std::string name;   // the tag's name, or "text" for plain text between tags
    std::string value;  // the tag's argument, or the text itself
    int width = 0;      // units the run takes on the line; set by its handler
    RECT rect = {0, 0, 0, 0};  // where the drawing pass puts it
    int draw = 0;       // 0 while measuring, 1 while drawing; handlers that draw clear it
    std::wstring_view wide;  // a text run's value in wide characters, converted once per call
};

// What a context holds when a pass begins: the defaults that empty tags return to.
struct ContextDefaults {
    COLORREF textColor;
    COLORREF bkColor;
    int bkMode;
    LOGFONTA logFont;
};

// What the tags change in the caller's context, with what it held when the pass began, all put
// back when the state is destroyed.
struct sDCStats {
    explicit sDCStats(CDC* pDC);
    // A state on a context known to hold these defaults (the previous pass put them back).
    sDCStats(CDC* pDC, const ContextDefaults& defaults);
    virtual ~sDCStats();
    sDCStats(const sDCStats&) = delete;
    sDCStats& operator=(const sDCStats&) = delete;

    CDC* dc;
    int mixPercent = 100;  // weight of a tag's colour against bkColor; 100 uses it as it is
    COLORREF textColor;
    COLORREF bkColor;
    int bkMode;
    LOGFONTA logFont;
    CFont* font = nullptr;      // the last font a font tag made; owned, made with the first
    CFont* oldFont = nullptr;   // what was selected before the state first selected a font
    int rowHeight = -1;
    WalkWidths walk;            // the cut-text widths of the font now selected
    bool inkSet = false, backSet = false;  // whether a tag set the text or background colours

    ContextDefaults Defaults() const { return {textColor, bkColor, bkMode, logFont}; }
    // Whether output and attributes go to one context: then a colour set while measuring and
    // put back at the end changes nothing and need not be made.
    bool OneContext() const { return dc->m_hDC == dc->m_hAttribDC; }
    // A tag's colour, mixed with the initial background colour unless mixPercent is 100.
    COLORREF Mixed(COLORREF color) const;
    // Selects font, remembering the context's font the first time.
    void Select(CFont* selected);
};

}  // namespace kiv_skin
