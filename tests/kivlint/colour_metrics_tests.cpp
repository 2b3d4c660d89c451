// kivlint's colour model against published reference values: the contrast ratios of WCAG 2.x,
// CIELAB of sRGB primaries, the CIEDE2000 test pairs of Sharma, Wu and Dalal (2005), and the
// deficiency matrices of Machado, Oliveira and Fernandes (2009). Built natively (tests/native).
#include "tools/kivlint/colour_metrics.h"
#include "tools/kivlint/colour_vision.h"
#include <gtest/gtest.h>
#include <cmath>

using namespace kivlint;

namespace {

const SchemeColour kBlack = ColourOf(0, 0, 0), kWhite = ColourOf(255, 255, 255), kRed = ColourOf(255, 0, 0);

TEST(ContrastRatio, BlackOnWhiteIsTwentyOneAndEqualColoursAreOne)
{
    EXPECT_NEAR(ContrastRatio(kBlack, kWhite), 21.0, 1e-9);
    EXPECT_NEAR(ContrastRatio(kWhite, kBlack), 21.0, 1e-9);
    EXPECT_NEAR(ContrastRatio(kRed, kRed), 1.0, 1e-12);
}

TEST(ContrastRatio, MatchesWcagFiguresOfKnownGreys)
{
    // #767676 is the lightest grey that passes 4.5:1 on white (4.54); #777777 just fails (4.48).
    EXPECT_NEAR(ContrastRatio(ColourOf(0x76, 0x76, 0x76), kWhite), 4.54, 0.005);
    EXPECT_NEAR(ContrastRatio(ColourOf(0x77, 0x77, 0x77), kWhite), 4.48, 0.005);
    EXPECT_NEAR(ContrastRatio(kRed, kWhite), 4.00, 0.005);
    EXPECT_NEAR(RelativeLuminance(kRed), 0.2126, 1e-9);
}

TEST(Lab, OfSrgbRedAndWhite)
{
    Lab red = ToLab(kRed), white = ToLab(kWhite);
    EXPECT_NEAR(red.l, 53.24, 0.02);
    EXPECT_NEAR(red.a, 80.09, 0.03);
    EXPECT_NEAR(red.b, 67.20, 0.03);
    EXPECT_NEAR(white.l, 100.0, 1e-5);
    EXPECT_NEAR(white.a, 0.0, 0.02);
    EXPECT_NEAR(white.b, 0.0, 0.02);
}

TEST(Lab, RoundTripsEverySrgbGreyAndPrimary)
{
    for (int v = 0; v < 256; v += 15) {
        const SchemeColour grey = ColourOf(v, v, v);
        EXPECT_EQ(FromLab(ToLab(grey)), grey) << v;
    }
    for (SchemeColour c : {kRed, ColourOf(0, 255, 0), ColourOf(0, 0, 255), ColourOf(0x12, 0x9A, 0xE3)})
        EXPECT_EQ(FromLab(ToLab(c)), c) << std::hex << c;
}

struct SharmaPair {
    Lab first, second;
    double expected;
};

// Pairs 1, 2, 3, 7, 17 to 20, 25, 26 and three of the hue-crossing pairs of the published table.
const SharmaPair kSharmaPairs[] = {
    {{50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425},
    {{50, 3.1571, -77.2803}, {50, 0, -82.7485}, 2.8615},
    {{50, 2.8361, -74.0200}, {50, 0, -82.7485}, 3.4412},
    {{50, 0, 0}, {50, -1, 2}, 2.3669},
    {{50, 2.5, 0}, {73, 25, -18}, 27.1492},
    {{50, 2.5, 0}, {61, -5, 29}, 22.8977},
    {{50, 2.5, 0}, {56, -27, -3}, 31.9030},
    {{50, 2.5, 0}, {58, 24, 15}, 19.4535},
    {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
    {{63.0109, -31.0961, -5.8663}, {62.8187, -29.7946, -4.0864}, 1.2630},
    {{50, 2.49, -0.001}, {50, -2.49, 0.0009}, 7.1792},
    {{50, 2.5, 0}, {50, 0, -2.5}, 4.3065},
    {{50, -0.001, 2.49}, {50, 0.0009, -2.49}, 4.8045},
};

TEST(DeltaE2000, MatchesThePublishedTestPairsBothWays)
{
    for (const SharmaPair& pair : kSharmaPairs) {
        EXPECT_NEAR(DeltaE2000(pair.first, pair.second), pair.expected, 5e-5) << pair.expected;
        EXPECT_NEAR(DeltaE2000(pair.second, pair.first), pair.expected, 5e-5) << pair.expected;
    }
    EXPECT_EQ(DeltaE2000(ToLab(kRed), ToLab(kRed)), 0.0);
}

TEST(ColourVision, PureRedBecomesTheFirstColumnOfEachMatrix)
{
    const LinearRgb red = {1, 0, 0};
    const LinearRgb protan = SimulateLinear(red, Deficiency::Protanopia);
    EXPECT_DOUBLE_EQ(protan.r, 0.152286);
    EXPECT_DOUBLE_EQ(protan.g, 0.114503);
    EXPECT_DOUBLE_EQ(protan.b, -0.003882);
    const LinearRgb deutan = SimulateLinear(red, Deficiency::Deuteranopia);
    EXPECT_DOUBLE_EQ(deutan.r, 0.367322);
    EXPECT_DOUBLE_EQ(deutan.g, 0.280085);
    EXPECT_DOUBLE_EQ(deutan.b, -0.011820);
    const LinearRgb tritan = SimulateLinear(red, Deficiency::Tritanopia);
    EXPECT_DOUBLE_EQ(tritan.r, 1.255528);
    EXPECT_DOUBLE_EQ(tritan.g, -0.078411);
    EXPECT_DOUBLE_EQ(tritan.b, 0.004733);
}

TEST(ColourVision, PureRedAsSeenInSrgb)
{
    // The columns above, clamped to the gamut and encoded: a dark olive for protanopia, a
    // brighter olive for deuteranopia, red with a trace of blue for tritanopia.
    EXPECT_EQ(Simulate(kRed, Deficiency::Protanopia), ColourOf(109, 95, 0));
    EXPECT_EQ(Simulate(kRed, Deficiency::Deuteranopia), ColourOf(163, 144, 0));
    EXPECT_EQ(Simulate(kRed, Deficiency::Tritanopia), ColourOf(255, 0, 15));
}

TEST(ColourVision, GreysAreSeenUnchanged)
{
    // Each row of each matrix sums to 1, so greys keep their colour.
    for (Deficiency d : kDeficiencies)
        for (int v : {0, 64, 128, 200, 255}) EXPECT_EQ(Simulate(ColourOf(v, v, v), d), ColourOf(v, v, v)) << NameOf(d);
}

TEST(ColourVision, RedAndGreenOfAQuoteListMergeForDeuteranopiaOnly)
{
    const SchemeColour rise = ColourOf(0xFF, 0x54, 0x54), fall = ColourOf(0x00, 0xD2, 0x00);
    const double normal = DeltaE2000(ToLab(rise), ToLab(fall));
    const double deutan = DeltaE2000(ToLab(Simulate(rise, Deficiency::Deuteranopia)),
                                     ToLab(Simulate(fall, Deficiency::Deuteranopia)));
    const double tritan = DeltaE2000(ToLab(Simulate(rise, Deficiency::Tritanopia)),
                                     ToLab(Simulate(fall, Deficiency::Tritanopia)));
    EXPECT_GT(normal, 70);
    EXPECT_LT(deutan, 10);
    EXPECT_GT(tritan, 70);
}

double SeenApart(SchemeColour first, SchemeColour second, Deficiency deficiency)
{
    return DeltaE2000(ToLab(Simulate(first, deficiency)), ToLab(Simulate(second, deficiency)));
}

struct MergedPair {
    SchemeColour first, second;
    Deficiency merging;
};

// Pairs of equal luminance (text that passes on white and on black alike), each brought within 8
// by one deficiency and kept over 14 apart by the other two: kivlint's tests use them for rise,
// flat and fall.
const MergedPair kMergedPairs[] = {
    {ColourOf(0x00, 0x82, 0x87), ColourOf(0xAA, 0x5F, 0x6E), Deficiency::Protanopia},
    {ColourOf(0xE6, 0x0F, 0x46), ColourOf(0x00, 0x87, 0x37), Deficiency::Deuteranopia},
    {ColourOf(0x00, 0x7D, 0xAF), ColourOf(0x00, 0x87, 0x3C), Deficiency::Tritanopia},
};

TEST(ColourVision, EachDeficiencyAloneMergesItsPair)
{
    for (const MergedPair& pair : kMergedPairs) {
        EXPECT_GT(DeltaE2000(ToLab(pair.first), ToLab(pair.second)), 40) << NameOf(pair.merging);
        for (Deficiency d : kDeficiencies) {
            if (d == pair.merging) EXPECT_LT(SeenApart(pair.first, pair.second, d), 8) << NameOf(d);
            else EXPECT_GT(SeenApart(pair.first, pair.second, d), 14) << NameOf(pair.merging) << " " << NameOf(d);
        }
    }
}

TEST(NearestPassing, KeepsAPassingInkAndMovesAFailingOneJustFarEnough)
{
    const SchemeColour grey = ColourOf(0x90, 0x90, 0x90);
    EXPECT_EQ(NearestPassing(kBlack, kWhite, 4.5), kBlack);
    const SchemeColour darker = NearestPassing(grey, kWhite, 4.5);
    EXPECT_GE(ContrastRatio(darker, kWhite), 4.5);
    EXPECT_LT(ContrastRatio(darker, kWhite), 4.6);  // the nearest: not further than needed
    EXPECT_EQ(RedOf(darker), GreenOf(darker));      // still a grey
    EXPECT_EQ(GreenOf(darker), BlueOf(darker));
}

TEST(NearestPassing, KeepsTheHueAndGoesLighterOnADarkGround)
{
    const SchemeColour axis = ColourOf(0xA0, 0x20, 0x20), ground = kBlack;
    const SchemeColour lighter = NearestPassing(axis, ground, 4.5);
    EXPECT_GE(ContrastRatio(lighter, ground), 4.5);
    EXPECT_LT(ContrastRatio(lighter, ground), 4.7);
    const Lab before = ToLab(axis), after = ToLab(lighter);
    EXPECT_GT(after.l, before.l);
    const double hueBefore = std::atan2(before.b, before.a), hueAfter = std::atan2(after.b, after.a);
    EXPECT_NEAR(hueAfter, hueBefore, 0.05);
}

}  // namespace
