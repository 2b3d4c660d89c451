#include "demo/pieces.h"
#include "demo/piece_painters.h"
#include <iterator>

// In the order the sheet shows them, four to a row.
const Piece kPieces[] = {
    {"DrawPluginFrame", PluginFramePiece},
    {"PluginTitle", PluginTitlePiece},
    {"DrawPluginSelect", PluginSelectPiece},
    {"DrawPluginSelect (dotted)", DottedSelectPiece},
    {"DrawTitleLine", TitleLinePiece},
    {"HoriDotLine + VertDotLine", DotLinesPiece},
    {"HoriFrameLine + VertFrameLine", FrameLinesPiece},
    {"TextOutLimitWidth", LimitedTextPiece},
    {"DrawButton (normal)", NormalButtonsPiece},
    {"DrawButton (hover)", HoverButtonsPiece},
    {"DrawButton (pressed)", PressedButtonsPiece},
    {"DrawButton (transparent)", ToolIconsPiece},
    {"DrawButtonBackground", ButtonBackgroundPiece},
    {"GetButtonBackgroundColor", ButtonColorsPiece},
    {"MakeMixColor", MixColorPiece},
    {"Make3DColor", Lit3DColorPiece},
    {"FillRect", FillRectPiece},
    {"FillRoundRect", FillRoundRectPiece},
    {"RectangleLine", RectangleLinePiece},
    {"IsDarkBackground", DarkBackgroundPiece},
};
const int kPieceCount = static_cast<int>(std::size(kPieces));
