// What a reader with a colour-vision deficiency sees of a scheme's colours: the model of Machado,
// Oliveira and Fernandes (2009) at full severity, applied to linear sRGB. Without GDI.
#pragma once
#include "colour_metrics.h"

namespace kivlint {

enum class Deficiency { Protanopia, Deuteranopia, Tritanopia };

const Deficiency kDeficiencies[] = {Deficiency::Protanopia, Deficiency::Deuteranopia, Deficiency::Tritanopia};

const char* NameOf(Deficiency deficiency);  // "protanopia", ...

// The linear colour the model gives, before it is clamped to the gamut.
LinearRgb SimulateLinear(const LinearRgb& colour, Deficiency deficiency);
// The sRGB colour seen, clamped to the gamut.
SchemeColour Simulate(SchemeColour colour, Deficiency deficiency);

}  // namespace kivlint
