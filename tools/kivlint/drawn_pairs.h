// The colours the library draws on one another, as pairs of scheme keys: an ink (text, a line, a
// mark or a glyph) and the fill it is drawn on, with the contrast each needs and the source files
// that draw each (kivlint's tests check that each file names its key). The direction colours
// are also compared with one another under the colour-vision deficiencies.
#pragma once
#include <vector>

namespace kivlint {

enum class InkKind { Text, Graphic };

struct DrawnPair {
    const char* ink;
    const char* ground;
    InkKind kind;
    const char* what;          // what a reader sees, said for a designer
    const char* inkSource;     // the files that draw the ink and the ground, from the source root
    const char* groundSource;
};

// The contrast ratio of WCAG 2.x each kind needs: 4.5:1 for text of normal size, 3:1 for lines,
// marks and icons.
double RequiredRatio(InkKind kind);
const char* NameOf(InkKind kind);  // "text", "graphic"

const std::vector<DrawnPair>& DrawnPairs();

// Rise, unchanged and fall: the colours that tell a price's direction.
struct DirectionPair {
    const char* first;
    const char* second;
};
const std::vector<DirectionPair>& DirectionPairs();

// Rise, fall and unchanged are told apart at a glance in 12-pixel text, so they must stay at least
// this CIEDE2000 distance apart for every reader: far above the just-noticeable difference of
// about 2.3, which holds for large patches side by side, because small text read at a glance
// needs much more.
const double kDirectionDistance = 10;

}  // namespace kivlint
