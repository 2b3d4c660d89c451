#include "colour_metrics.h"
#include <cmath>

namespace kivlint {
namespace {

const double kPi = 3.14159265358979323846;
// The D65 white of sRGB in XYZ, Y = 1.
const double kWhiteX = 0.95047, kWhiteZ = 1.08883;

double Decode(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

int Encode(double linear)
{
    const double c = linear <= 0 ? 0 : linear >= 1 ? 1 : linear;
    const double encoded = c <= 0.0031308 ? 12.92 * c : 1.055 * std::pow(c, 1 / 2.4) - 0.055;
    return static_cast<int>(std::lround(encoded * 255));
}

double LabCurve(double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; }
double LabCurveInverse(double f) { return f * f * f > 216.0 / 24389 ? f * f * f : (116 * f - 16) * 27 / 24389; }

double Degrees(double radians) { return radians * 180 / kPi; }
double Radians(double degrees) { return degrees * kPi / 180; }

// The hue angle in degrees, 0 to 360.
double Hue(double a, double b)
{
    if (a == 0 && b == 0) return 0;
    const double h = Degrees(std::atan2(b, a));
    return h < 0 ? h + 360 : h;
}

double Pow7Ratio(double c) { return std::sqrt(std::pow(c, 7) / (std::pow(c, 7) + std::pow(25.0, 7))); }

}  // namespace

SchemeColour ColourOf(int red, int green, int blue)
{
    return SchemeColour(red) | SchemeColour(green) << 8 | SchemeColour(blue) << 16;
}
int RedOf(SchemeColour colour) { return colour & 0xFF; }
int GreenOf(SchemeColour colour) { return colour >> 8 & 0xFF; }
int BlueOf(SchemeColour colour) { return colour >> 16 & 0xFF; }

LinearRgb ToLinear(SchemeColour colour) { return {Decode(RedOf(colour)), Decode(GreenOf(colour)), Decode(BlueOf(colour))}; }
SchemeColour FromLinear(const LinearRgb& linear) { return ColourOf(Encode(linear.r), Encode(linear.g), Encode(linear.b)); }

double RelativeLuminance(SchemeColour colour)
{
    const LinearRgb c = ToLinear(colour);
    return 0.2126 * c.r + 0.7152 * c.g + 0.0722 * c.b;
}

double ContrastRatio(SchemeColour ink, SchemeColour ground)
{
    const double first = RelativeLuminance(ink), second = RelativeLuminance(ground);
    return first > second ? (first + 0.05) / (second + 0.05) : (second + 0.05) / (first + 0.05);
}

Lab ToLab(SchemeColour colour)
{
    const LinearRgb c = ToLinear(colour);
    const double x = 0.4124564 * c.r + 0.3575761 * c.g + 0.1804375 * c.b;
    const double y = 0.2126729 * c.r + 0.7151522 * c.g + 0.0721750 * c.b;
    const double z = 0.0193339 * c.r + 0.1191920 * c.g + 0.9503041 * c.b;
    const double fx = LabCurve(x / kWhiteX), fy = LabCurve(y), fz = LabCurve(z / kWhiteZ);
    return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

SchemeColour FromLab(const Lab& lab)
{
    const double fy = (lab.l + 16) / 116, fx = fy + lab.a / 500, fz = fy - lab.b / 200;
    const double x = kWhiteX * LabCurveInverse(fx), y = LabCurveInverse(fy), z = kWhiteZ * LabCurveInverse(fz);
    return FromLinear({3.2404542 * x - 1.5371385 * y - 0.4985314 * z, -0.9692660 * x + 1.8760108 * y + 0.0415560 * z,
                       0.0556434 * x - 0.2040259 * y + 1.0572252 * z});
}

// Sharma, Wu and Dalal's statement of the formula (2005), with kL = kC = kH = 1.
double DeltaE2000(const Lab& first, const Lab& second)
{
    const double g = 0.5 * (1 - Pow7Ratio((std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2));
    const double a1 = (1 + g) * first.a, a2 = (1 + g) * second.a;
    const double c1 = std::hypot(a1, first.b), c2 = std::hypot(a2, second.b);
    const double h1 = Hue(a1, first.b), h2 = Hue(a2, second.b);
    const bool grey = c1 * c2 == 0;
    double dh = grey ? 0 : h2 - h1;
    if (dh > 180) dh -= 360;
    if (dh < -180) dh += 360;
    const double dL = second.l - first.l, dC = c2 - c1;
    const double dH = 2 * std::sqrt(c1 * c2) * std::sin(Radians(dh / 2));

    const double meanL = (first.l + second.l) / 2, meanC = (c1 + c2) / 2;
    double meanH = h1 + h2;
    if (!grey) meanH = std::fabs(h1 - h2) <= 180 ? meanH / 2 : meanH < 360 ? (meanH + 360) / 2 : (meanH - 360) / 2;
    const double t = 1 - 0.17 * std::cos(Radians(meanH - 30)) + 0.24 * std::cos(Radians(2 * meanH)) +
                     0.32 * std::cos(Radians(3 * meanH + 6)) - 0.20 * std::cos(Radians(4 * meanH - 63));
    const double sL = 1 + 0.015 * (meanL - 50) * (meanL - 50) / std::sqrt(20 + (meanL - 50) * (meanL - 50));
    const double sC = 1 + 0.045 * meanC, sH = 1 + 0.015 * meanC * t;
    const double rotation = 30 * std::exp(-std::pow((meanH - 275) / 25, 2));
    const double rT = -2 * Pow7Ratio(meanC) * std::sin(Radians(2 * rotation));
    const double l = dL / sL, c = dC / sC, h = dH / sH;
    return std::sqrt(l * l + c * c + h * h + rT * c * h);
}

SchemeColour NearestPassing(SchemeColour ink, SchemeColour ground, double ratio)
{
    if (ContrastRatio(ink, ground) >= ratio) return ink;
    const Lab lab = ToLab(ink);
    // Lightness in steps of 0.1 away from the ink's, lighter then darker at each distance: the
    // first that passes.
    for (int step = 1; step <= 1000; ++step)
        for (int sign = 1; sign >= -1; sign -= 2) {
            const double l = lab.l + sign * step * 0.1;
            if (l < 0 || l > 100) continue;
            const SchemeColour candidate = FromLab({l, lab.a, lab.b});
            if (ContrastRatio(candidate, ground) >= ratio) return candidate;
        }
    return RelativeLuminance(ground) > 0.18 ? ColourOf(0, 0, 0) : ColourOf(255, 255, 255);
}

}  // namespace kivlint
