// The 16 colours of an image list created without a colour depth, and the colour at which the
// library cuts a strip into cells (pure red, taken for transparency). Colours are 0xRRGGBB.
#pragma once
#include <cstdint>

namespace kivlint {

const uint32_t kStripMaskRgb = 0xFF0000;

bool IsOneOfSixteen(uint32_t rgb);
// The closest of the 16 colours by squared distance of the channels.
uint32_t NearestOfSixteen(uint32_t rgb);

}  // namespace kivlint
