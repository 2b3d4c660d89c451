#include "colour_vision.h"

namespace kivlint {
namespace {

// The matrices of severity 1.0 from the model's published table, rows giving r, g and b.
const double kProtanopia[3][3] = {
    {0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}};
const double kDeuteranopia[3][3] = {
    {0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}};
const double kTritanopia[3][3] = {
    {1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}};

const double (&MatrixOf(Deficiency deficiency))[3][3]
{
    switch (deficiency) {
    case Deficiency::Protanopia: return kProtanopia;
    case Deficiency::Deuteranopia: return kDeuteranopia;
    default: return kTritanopia;
    }
}

}  // namespace

const char* NameOf(Deficiency deficiency)
{
    switch (deficiency) {
    case Deficiency::Protanopia: return "protanopia";
    case Deficiency::Deuteranopia: return "deuteranopia";
    default: return "tritanopia";
    }
}

LinearRgb SimulateLinear(const LinearRgb& c, Deficiency deficiency)
{
    const double (&m)[3][3] = MatrixOf(deficiency);
    return {m[0][0] * c.r + m[0][1] * c.g + m[0][2] * c.b, m[1][0] * c.r + m[1][1] * c.g + m[1][2] * c.b,
            m[2][0] * c.r + m[2][1] * c.g + m[2][2] * c.b};
}

SchemeColour Simulate(SchemeColour colour, Deficiency deficiency)
{
    return FromLinear(SimulateLinear(ToLinear(colour), deficiency));
}

}  // namespace kivlint
