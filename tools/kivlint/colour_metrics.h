// How far apart two colours of a scheme are as a reader sees them: the contrast ratio of WCAG 2.x
// (relative luminance of sRGB), CIELAB (D65) and its colour difference CIEDE2000, and the colour
// nearest to an ink that reaches a contrast ratio on its ground. Colours are COLORREF values as
// the scheme files hold them, 0x00BBGGRR. No GDI: kivlint and the gallery share it.
#pragma once
#include <cstdint>

namespace kivlint {

typedef std::uint32_t SchemeColour;  // 0x00BBGGRR

struct LinearRgb {
    double r, g, b;  // linear light, 0 to 1
};

struct Lab {
    double l, a, b;
};

SchemeColour ColourOf(int red, int green, int blue);
int RedOf(SchemeColour colour);
int GreenOf(SchemeColour colour);
int BlueOf(SchemeColour colour);

LinearRgb ToLinear(SchemeColour colour);
// Back to 8-bit sRGB, each channel clamped to the gamut and rounded.
SchemeColour FromLinear(const LinearRgb& linear);

double RelativeLuminance(SchemeColour colour);
// (lighter + 0.05) / (darker + 0.05): 1 for equal luminance, 21 for black on white.
double ContrastRatio(SchemeColour ink, SchemeColour ground);

Lab ToLab(SchemeColour colour);
// The sRGB colour of a CIELAB value, clamped to the gamut.
SchemeColour FromLab(const Lab& lab);
double DeltaE2000(const Lab& first, const Lab& second);

// The colour of the ink's hue and chroma (its a* and b*) whose lightness L* is the nearest to the
// ink's that reaches the ratio on the ground; the ink itself when it already does.
SchemeColour NearestPassing(SchemeColour ink, SchemeColour ground, double ratio);

}  // namespace kivlint
