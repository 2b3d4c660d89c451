#include "library_keys.h"

namespace kivlint {

const std::vector<KeyUse>& ColourKeys()
{
    static const std::vector<KeyUse> keys = {
        {"DEFCOLOR", "the fallback of every colour the scheme lacks"},
        {"BACKGROUND", "the drawing kit's backgrounds and axis labels"},
        {"PLUG_BGCOLOR", "panel backgrounds, the scroll bar's ground and its light/dark test"},
        {"PLUG_FRAME", "panel frames and the style dialog's preview frame"},
        {"PLUG_SELCOLOR", "the selection mark and the preview's highlighted row"},
        {"PLUG_TITLE_BGCOLOR", "the plug-in title bar"},
        {"PLUG_TITLE_TEXT", "the title bar's text"},
        {"PLUG_TIME_COLOR1", "the clock in the style dialog's preview"},
        {"PLUG_BTN_BGCOLOR", "buttons at rest"},
        {"PLUG_BTN_BGCOLOR_HOVER", "buttons under the mouse"},
        {"PLUG_BTN_BGCOLOR_PRESSED", "pressed buttons"},
        {"PLUG_BTN_TEXTCOLOR", "button glyphs"},
        {"AXIS", "axes and the scroll bar's separator lines"},
        {"SCROLLBARTEXT", "scroll bar arrows that cannot scroll further"},
        {"SCROLLBARLINE", "the scroll bar's frame"},
        {"SCROLLBARBACK", "the scroll bar's plain pieces"},
        {"UPTEXT", "rising prices"},
        {"EQUTEXT", "unchanged prices"},
        {"DOWNTEXT", "falling prices"},
    };
    return keys;
}

const std::vector<KeyUse>& FontKeys()
{
    static const std::vector<KeyUse> keys = {
        {"DEFAULT", "the fallback of every font the scheme lacks"},
        {"PLUG_TITLE", "the plug-in title bar"},
        {"PLUG_STDFONT", "list rows in the style dialog's preview"},
        {"SMALL", "axis labels and small print"},
    };
    return keys;
}

const std::vector<ImageRule>& ImageRules()
{
    static const std::vector<ImageRule> rules = {
        {"KIV_BTN", 24, [](int w, int h) { return w >= 201 && h == 21; },
         "eight 21 x 21 faces and gradient columns up to x = 200 (at least 201 x 21)", false},
        {"KIV_TOOL", 1, [](int w, int h) { return w > 0 && w % 32 == 0 && h == 16; },
         "16-row icons of 32 columns each, a mask then a glyph", false},
        {"KIV_MARK", 1, [](int w, int h) { return w >= 240 && w % 24 == 0 && h == 12; },
         "at least ten 12-row marks of 24 columns each, a mask then a glyph", false},
        {"KIV_DOT", 24, [](int w, int h) { return w == 8 && h == 8; }, "an 8 x 8 brush", false},
        {"KIV_FRAME", 24, [](int w, int h) { return w == 8 && h == 8; }, "an 8 x 8 brush", false},
        {"IDB_ICONS", 24, [](int w, int h) { return w == 28 * 23 && h == 23; }, "28 icons at a pitch of 23 (644 x 23)", false},
        {"IDB_ICONREV", 24, [](int w, int h) { return w == 28 * 23 && h == 23; }, "28 icons at a pitch of 23 (644 x 23)", false},
        {"IDB_ICONREVBLACK", 24, [](int w, int h) { return w == 28 * 23 && h == 23; }, "28 icons at a pitch of 23 (644 x 23)", false},
        {"IDB_IMAGES", 0, [](int w, int h) { return w > 0 && w % 16 == 0 && h == 17; }, "16 x 17 cells", true},
    };
    return rules;
}

}  // namespace kivlint
