// The drawing kit: the recurring pieces of a plug-in panel, painted in the active scheme's
// colours, fonts and bitmaps, which every operation looks up at the moment it draws. Every
// operation leaves the caller's device context as it found it, except where a comment says
// otherwise.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <string>

namespace kiv_skin {

class KIV_SKIN_API KivDraw {
public:
    // Any other value is accepted and means no colour.
    enum BUTTON_STATE { BUTTON_NORMAL = 0, BUTTON_HOVER = 1, BUTTON_PRESSED = 2 };

    // --- Colours ---------------------------------------------------------------------------
    // Weighted mix of the two colours (as the context can show them); percent is the weight of
    // first, not clamped: each channel outside 0-255 keeps its low 8 bits.
    static COLORREF MakeMixColor(CDC* dc, COLORREF first, COLORREF second, int percent);
    // Paints, for each of count colours, a strip of length pixels that brightens from the colour
    // toward 224 per channel at 3/8 of its length and falls back, along row 0 (vertical 0) or
    // column 0, strips end to end. A length below 3 paints nothing.
    static void Make3DColor(CDC* dc, int length, COLORREF* colors, int count, int vertical);
    // Whether the scheme's "BACKGROUND" averages 64 or less over its channels.
    static bool IsDarkBackground(CDC* dc);
    // The scheme's button background of a state; 0 for an unknown state.
    static COLORREF GetButtonBackgroundColor(BUTTON_STATE state);

    // --- Shapes ----------------------------------------------------------------------------
    // Fills with colour by a solid brush; 0xFFFFFFFF means the scheme's "BACKGROUND".
    // Right and bottom edges are exclusive.
    static void FillRect(CDC* dc, int x, int y, int width, int height, COLORREF color);
    static void FillRect(CDC* dc, const RECT* rect, COLORREF color);
    // Outlines rect with the selected pen, right and bottom coordinates included.
    static void RectangleLine(CDC* dc, const RECT* rect);
    // A grooved strip: from top + 1, every third row light and the row below it in colour.
    static void DrawTitleLine(CDC* dc, const RECT* rect, COLORREF color);
    static void FillRoundRect(CDC* dc, const RECT* rect, POINT corner, COLORREF color);
    // The selection frame just inside rect; colour 0 means the scheme's "PLUG_SELCOLOR".
    // Answers the pen width used, or -1 for a null context.
    static int DrawPluginSelect(CDC* dc, const RECT* rect, int width, int penStyle, COLORREF color);
    // The panel's background and frame just inside rect; 1, or -1 for a null context. Leaves
    // the background colour set to the panel's, as filling a solid rectangle does.
    static int DrawPluginFrame(CDC* dc, const RECT* rect);

    // --- Text ------------------------------------------------------------------------------
    // One line of markup (ANSI code page) in rect less margins: "<*name=value*>" tags switch
    // colours ("c", "sc", "bk", "sysbk"), fonts ("sf", "f", "s", "b", "u", "it") or insert a
    // scheme image ("si") from their place to the end; there are no closing tags. The context's
    // colours, mode and font are the defaults tags return to, and are put back. rows divides
    // rect for text runs holding line feeds; percent (0-100) mixes tag colours into the initial
    // background. Exactly right or centre alignment places the whole line. Always 0.
    static DWORD DrawRichText(CDC* dc, const RECT* rect, int rows, const char* text, CRect margins, UINT flags,
                              int percent);
    static DWORD DrawRichText(CDC* dc, const RECT* rect, const char* text, CRect margins, UINT flags, int percent);
    // Draws as much of text as fits in rect less margins (unless measureOnly) and answers the
    // width drawn; count receives the characters drawn when the text does not fit whole.
    static int TextOutLimitWidth(CDC* dc, const RECT* rect, const std::wstring& text, int& count,
                                 CRect margins, int measureOnly);

    // --- Axes, gauges, icons -------------------------------------------------------------
    // A value axis from "from" to "to" with an arrow head, the title ending at the tip, and up to
    // ticks labelled tick marks ("%.2f", or "%.0f" of whole values with integerLabels) that keep
    // three text heights apart and clear of the title; maxValue itself is not labelled.
    // 0xFFFFFFFF means the scheme's "AXIS" colour; a textHeight below 1 means the "SMALL" font's.
    static void DrawAxis(CDC* dc, int horizontal, POINT from, POINT to, float minValue, float maxValue,
                         int ticks, const char* title, COLORREF color, const RECT* clip, int integerLabels,
                         int textHeight);
    // A bar in first up to split (an x coordinate, or for a vertical bar a y coordinate from which
    // first fills down to the bottom) and second beyond it, lit when the bar is at least 4 across.
    static void Draw3DPercentBar(CDC* dc, const RECT* rect, int split, COLORREF first, COLORREF second,
                                 int horizontal);
    // Icon number icon (0-27) of the scheme's icon strips at (x, y), 19 units square times scale,
    // in the dark-background variant when autoDark is set and the scheme's background is dark.
    static void DrawWekIcons(CDC* dc, int icon, int x, int y, int scale, int autoDark);

    // --- Kept for the host: these draw nothing --------------------------------------------
    static void Draw3DProgress(CDC* dc, int, const RECT* rect, int, int);
    static void DrawDlgButton(CDC* dc, const RECT* rect, const char*, int);
    void DrawWekImage(CDC* dc, int, int, int);
    void DrawXorArrow(CDC* dc, int, int, int, int);

    // --- Lines and buttons, with brushes made from the scheme active at construction --------
    KivDraw();
    ~KivDraw();

    // One-unit dotted ("KIV_DOT") and textured ("KIV_FRAME") lines; nothing when the scheme
    // lacks the bitmap. Vertical lines run from y1 to y2 - 1, horizontal from x1 to x2 - 1.
    void VertDotLine(CDC* dc, int x, int y1, int y2);
    void HoriDotLine(CDC* dc, int x1, int x2, int y);
    void VertFrameLine(CDC* dc, int x, int y1, int y2);
    void HoriFrameLine(CDC* dc, int x1, int x2, int y);
    // Icon number image of the scheme's "KIV_TOOL" strip, centred in rect when it is larger
    // than 16, on the state's background (unless transparent), framed if asked.
    void DrawButton(CDC* dc, CRect* rect, BUTTON_STATE state, int image, int transparent, int framed);
    // Fills rect with the state's button background; leaves the background colour set to it.
    void DrawButtonBackground(CDC* dc, CRect* rect, BUTTON_STATE state);
    // A filled triangle pointing left (0), right (1), down (2), up (3) or to a corner (other) in
    // the middle third of rect (made square unless keepShape), on background unless that is
    // 0xFFFFFFFF.
    void DrawArrowButton(CDC* dc, const RECT* rect, COLORREF arrowColor, COLORREF background, int direction,
                         int keepShape);
    // Mark number mark of the scheme's "KIV_MARK" strip in color, its 12-unit cell (times scale)
    // placed 5 units (times scale) up and left of (x, y), framed with the frame pattern if asked.
    // Without the strip it draws nothing and leaves the text colour black.
    void DrawArrow(CDC* dc, int x, int y, int mark, COLORREF color, int framed, int scale, bool blackWhenPrinting);
    // A price with its fraction underlined in place of the decimal point, and with signArrow a
    // rise or fall mark in place of a leading sign. Aligned by the context's text alignment,
    // centre placing it as right does. Text without a "." is drawn as it is.
    void DrawUL(CDC* dc, int x, int y, UINT options, const RECT* clip, const char* text, int length, int* widths,
                int signArrow);
    void DrawUL(CDC* dc, int x, int y, const char* text, int signArrow);

private:
    void FramePatternLine(CDC* dc, CBrush& brush, int left, int top, int right, int bottom);

    CBrush m_dotBrush;
    CBrush m_frameBrush;
    CBrush m_plugFrameBrush;
};

}  // namespace kiv_skin
