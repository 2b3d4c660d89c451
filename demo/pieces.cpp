#include "demo/pieces.h"
#include "demo/piece_painters.h"
#include <iterator>

// In the order the sheet shows them, four columns to a row; a piece that does not fit in what is
// left of a row starts the next one.
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
    {"DrawRichText", RichTextPiece},
    {"DrawUL (signArrow 0 and 1)", PricesPiece},
    {"Draw3DPercentBar (flat)", FlatBarsPiece},
    {"Draw3DPercentBar (shaded)", ShadedBarsPiece},
    {"DrawAxis (horizontal)", HorizontalAxisPiece, 2},
    {"DrawAxis (vertical)", VerticalAxisPiece},
    {"DrawArrowButton (0 1 2 3)", ArrowButtonsPiece},
    {"DrawArrow (scale 1)", MarksPiece},
    {"DrawArrow (framed)", FramedMarksPiece},
    {"DrawArrow (marks 0-9, scale 2)", ScaledMarksPiece, 2},
    {"DrawWekIcons (icons 0-27, autoDark 0)", LightIconsPiece, 4},
    {"DrawWekIcons (icons 0-27, autoDark 1)", AutoDarkIconsPiece, 4},
};
const int kPieceCount = static_cast<int>(std::size(kPieces));
