#include "sixteen_colours.h"

namespace kivlint {
namespace {

const uint32_t kSixteen[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                               0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

int Distance(uint32_t a, uint32_t b)
{
    int sum = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int d = int(a >> shift & 0xFF) - int(b >> shift & 0xFF);
        sum += d * d;
    }
    return sum;
}

}  // namespace

bool IsOneOfSixteen(uint32_t rgb)
{
    for (uint32_t colour : kSixteen)
        if (colour == rgb) return true;
    return false;
}

uint32_t NearestOfSixteen(uint32_t rgb)
{
    uint32_t nearest = kSixteen[0];
    for (uint32_t colour : kSixteen)
        if (Distance(colour, rgb) < Distance(nearest, rgb)) nearest = colour;
    return nearest;
}

}  // namespace kivlint
