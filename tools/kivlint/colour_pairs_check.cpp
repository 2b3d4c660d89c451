// The colours of a scheme against one another: each ink the library draws on a fill against the
// contrast it needs, and the direction colours under each colour-vision deficiency.
#include "colour_vision.h"
#include "drawn_pairs.h"
#include "figure_text.h"
#include "scheme_checks.h"
#include <cstdio>
#include <initializer_list>

namespace kivlint {
namespace {

// "0x00BBGGRR (#RRGGBB)": the file's own form, then the one colour pickers show.
std::string Written(SchemeColour colour)
{
    char text[32];
    std::snprintf(text, sizeof text, "0x%08X (#%02X%02X%02X)", static_cast<unsigned>(colour), RedOf(colour),
                  GreenOf(colour), BlueOf(colour));
    return text;
}

std::string Named(const std::string& key, SchemeColour colour) { return "\"" + key + "\" " + Written(colour); }

// The line of the first key's definition, else the second's, else the fallback's.
int LineOf(const SchemeColourTable& colours, const std::string& first, const std::string& second)
{
    for (const std::string& key : {first, second}) {
        auto found = colours.keys.find(key);
        if (found != colours.keys.end()) return found->second.line;
    }
    return colours.fallback.line;
}

double Distance(SchemeColour first, SchemeColour second) { return DeltaE2000(ToLab(first), ToLab(second)); }

}  // namespace

ColourDefinition SchemeColourTable::Lookup(const std::string& key) const
{
    auto found = keys.find(key);
    return found == keys.end() ? fallback : found->second;
}

// A colour that is no colour has its error already, and a drawing of it says nothing.
void CheckContrast(const std::string& path, const SchemeColourTable& colours, Findings& findings)
{
    for (const DrawnPair& pair : DrawnPairs()) {
        const SchemeColour ink = colours.Lookup(pair.ink).colour, ground = colours.Lookup(pair.ground).colour;
        if (ink == kNoColour || ground == kNoColour) continue;
        const double ratio = ContrastRatio(ink, ground), needed = RequiredRatio(pair.kind);
        if (ratio >= needed) continue;
        findings.Warning(path, LineOf(colours, pair.ink, pair.ground),
                         Named(pair.ink, ink) + " on " + Named(pair.ground, ground) + ": contrast " + Cut(ratio, 2) + ":1, " +
                             NameOf(pair.kind) + " needs " + Plain(needed) + ":1 (" + pair.what +
                             "); nearest that passes: " + Written(NearestPassing(ink, ground, needed)));
    }
}

void CheckColourVision(const std::string& path, const SchemeColourTable& colours, Findings& findings)
{
    for (const DirectionPair& pair : DirectionPairs()) {
        const SchemeColour first = colours.Lookup(pair.first).colour, second = colours.Lookup(pair.second).colour;
        if (first == kNoColour || second == kNoColour) continue;
        for (Deficiency deficiency : kDeficiencies) {
            const double distance = Distance(Simulate(first, deficiency), Simulate(second, deficiency));
            if (distance >= kDirectionDistance) continue;
            findings.Warning(path, LineOf(colours, pair.first, pair.second),
                             std::string("under ") + NameOf(deficiency) + " " + Named(pair.first, first) + " and " +
                                 Named(pair.second, second) + " are " + Cut(distance, 1) +
                                 " apart in CIEDE2000 (" + Plain(kDirectionDistance) + " needed; " +
                                 Cut(Distance(first, second), 1) +
                                 " with normal vision); the rise and fall marks that DrawArrow and DrawUL draw "
                                 "before a price still tell the direction without colour");
        }
    }
}

}  // namespace kivlint
