#include "drawn_pairs.h"

namespace kivlint {

double RequiredRatio(InkKind kind) { return kind == InkKind::Text ? 4.5 : 3.0; }
const char* NameOf(InkKind kind) { return kind == InkKind::Text ? "text" : "graphic"; }

const std::vector<DrawnPair>& DrawnPairs()
{
    const char* preview = "kiv_skin/styledlg/style_dlg_preview.cpp";
    const char* scrollBar = "kiv_skin/scrollbar/scroll_drawing.cpp";
    const char* buttons = "kiv_skin/draw/buttons.cpp";
    const char* buttonFills = "kiv_skin/draw/colors.cpp";
    const char* title = "kiv_skin/draw/plugin_title.cpp";
    static const std::vector<DrawnPair> pairs = {
        {"UPTEXT", "PLUG_BGCOLOR", InkKind::Text, "rising prices on a panel", preview, preview},
        {"EQUTEXT", "PLUG_BGCOLOR", InkKind::Text, "unchanged prices on a panel", preview, preview},
        {"DOWNTEXT", "PLUG_BGCOLOR", InkKind::Text, "falling prices on a panel", preview, preview},
        {"UPTEXT", "PLUG_SELCOLOR", InkKind::Text, "a rising row the style editor's preview highlights", preview, preview},
        {"EQUTEXT", "PLUG_SELCOLOR", InkKind::Text, "an unchanged row the preview highlights", preview, preview},
        {"DOWNTEXT", "PLUG_SELCOLOR", InkKind::Text, "a falling row the preview highlights", preview, preview},
        {"PLUG_TITLE_TEXT", "PLUG_TITLE_BGCOLOR", InkKind::Text, "the title on the title bar", title, title},
        {"PLUG_TIME_COLOR1", "PLUG_TITLE_BGCOLOR", InkKind::Text, "the clock on the preview's title bar", preview, preview},
        {"AXIS", "BACKGROUND", InkKind::Text, "axis labels and titles, drawn in the axis colour on the kit's background",
         "kiv_skin/draw/axes.cpp", "kiv_skin/draw/shapes.cpp"},
        {"PLUG_BTN_TEXTCOLOR", "PLUG_BTN_BGCOLOR", InkKind::Graphic, "button glyphs at rest", buttons, buttonFills},
        {"PLUG_BTN_TEXTCOLOR", "PLUG_BTN_BGCOLOR_HOVER", InkKind::Graphic, "button glyphs under the mouse", buttons,
         buttonFills},
        {"PLUG_BTN_TEXTCOLOR", "PLUG_BTN_BGCOLOR_PRESSED", InkKind::Graphic, "glyphs of pressed buttons", buttons,
         buttonFills},
        {"PLUG_SELCOLOR", "PLUG_BGCOLOR", InkKind::Graphic, "the selection mark around a panel's selected item",
         "kiv_skin/draw/shapes.cpp", "kiv_skin/draw/shapes.cpp"},
        {"AXIS", "PLUG_BGCOLOR", InkKind::Graphic, "the scroll bar's separator lines on its track", scrollBar, scrollBar},
        {"SCROLLBARLINE", "PLUG_BGCOLOR", InkKind::Graphic, "the frame of the scroll bar's pieces on its track", scrollBar,
         scrollBar},
        {"SCROLLBARTEXT", "SCROLLBARBACK", InkKind::Graphic, "scroll bar arrows that cannot scroll further", scrollBar,
         scrollBar},
    };
    return pairs;
}

const std::vector<DirectionPair>& DirectionPairs()
{
    static const std::vector<DirectionPair> pairs = {
        {"UPTEXT", "DOWNTEXT"}, {"UPTEXT", "EQUTEXT"}, {"DOWNTEXT", "EQUTEXT"}};
    return pairs;
}

}  // namespace kivlint
