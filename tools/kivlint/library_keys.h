// The keys the library reads from a scheme, with what it draws with each, and the geometry it
// expects of each image: the drawing kit, the scroll bar and the style dialog.
#pragma once
#include <vector>

namespace kivlint {

struct KeyUse {
    const char* key;
    const char* use;
};

struct ImageRule {
    const char* key;
    int bits;                       // bits per pixel the drawing code's blits rely on
    bool (*fits)(int width, int height);
    const char* geometry;           // the expected geometry, said for a designer
    bool imageList;                 // cut into an image list of 16 colours
};

const std::vector<KeyUse>& ColourKeys();
const std::vector<KeyUse>& FontKeys();
const std::vector<ImageRule>& ImageRules();

}  // namespace kivlint
