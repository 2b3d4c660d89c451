#include "figure_text.h"
#include <cmath>
#include <cstdio>

namespace kivlint {

std::string Cut(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    char text[48];
    std::snprintf(text, sizeof text, "%.*f", decimals, std::floor(value * scale + 1e-9) / scale);
    return text;
}

std::string Plain(double value)
{
    char text[48];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

}  // namespace kivlint
