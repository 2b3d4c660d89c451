#include "demo/contrast_figures.h"
#include "demo/report_style.h"
#include "demo/scheme_text.h"
#include "tools/kivlint/colour_metrics.h"
#include <iterator>

using namespace kivlint;

const Vision kVisions[4] = {
    {"normal vision", "for reference", false, Deficiency::Protanopia},
    {NameOf(Deficiency::Protanopia), "no red cones", true, Deficiency::Protanopia},
    {NameOf(Deficiency::Deuteranopia), "no green cones", true, Deficiency::Deuteranopia},
    {NameOf(Deficiency::Tritanopia), "no blue cones", true, Deficiency::Tritanopia},
};

COLORREF SeenAs(COLORREF colour, const Vision& vision)
{
    return vision.simulated ? Simulate(colour, vision.deficiency) : colour;
}

std::vector<PairFigure> PairFigures()
{
    std::vector<PairFigure> figures;
    for (const DrawnPair& pair : DrawnPairs()) {
        COLORREF ink = SchemeColor(pair.ink), ground = SchemeColor(pair.ground);
        double ratio = ContrastRatio(ink, ground), needed = RequiredRatio(pair.kind);
        bool judged = ink != kNoSchemeColour && ground != kNoSchemeColour;
        figures.push_back({&pair, ink, ground, ratio, needed, judged, !judged || ratio >= needed,
                           NearestPassing(ink, ground, needed)});
    }
    return figures;
}

std::vector<DirectionFigure> DirectionFigures()
{
    std::vector<DirectionFigure> figures;
    for (const Vision& vision : kVisions) {
        DirectionFigure figure = {&vision, nullptr, 0, true};
        for (const DirectionPair& pair : DirectionPairs()) {
            if (SchemeColor(pair.first) == kNoSchemeColour || SchemeColor(pair.second) == kNoSchemeColour) continue;
            Lab first = ToLab(SeenAs(SchemeColor(pair.first), vision));
            Lab second = ToLab(SeenAs(SchemeColor(pair.second), vision));
            double distance = DeltaE2000(first, second);
            if (figure.closest == nullptr || distance < figure.distance) {
                figure.closest = &pair;
                figure.distance = distance;
            }
        }
        figure.passes = !vision.simulated || figure.closest == nullptr || figure.distance >= kDirectionDistance;
        figures.push_back(figure);
    }
    return figures;
}

SchemeFigures FiguresOf(const char* scheme)
{
    return {scheme, PairFigures(), DirectionFigures()};
}

namespace {

std::string PairCell(const PairFigure& figure)
{
    if (!figure.judged) return "no colour";
    return Cut(figure.ratio, 2) + (figure.passes ? " pass" : " **FAIL**");
}

std::string DirectionCell(const DirectionFigure& figure)
{
    if (figure.closest == nullptr) return "no colours";
    std::string cell = Cut(figure.distance, 1) + " (" + figure.closest->first + "/" + figure.closest->second + ")";
    if (!figure.vision->simulated) return cell;
    return cell + (figure.passes ? " pass" : " **FAIL**");
}

std::string PairTable(const std::vector<SchemeFigures>& schemes)
{
    std::string table = "| Ink | Ground | Kind | Needs |", rule = "|---|---|---|---:|";
    for (const SchemeFigures& scheme : schemes) table += " " + scheme.scheme + " |", rule += "---:|";
    table += "\n" + rule + "\n";
    for (size_t i = 0; i < DrawnPairs().size(); ++i) {
        const DrawnPair& pair = DrawnPairs()[i];
        table += std::string("| `") + pair.ink + "` | `" + pair.ground + "` | " + NameOf(pair.kind) + " | " +
                 Plain(RequiredRatio(pair.kind)) + ":1 |";
        for (const SchemeFigures& scheme : schemes)
            table += " " + PairCell(scheme.pairs[i]) + " |";
        table += "\n";
    }
    return table;
}

std::string DirectionTable(const std::vector<SchemeFigures>& schemes)
{
    std::string table = "| Vision |", rule = "|---|";
    for (const SchemeFigures& scheme : schemes) table += " " + scheme.scheme + " |", rule += "---|";
    table += "\n" + rule + "\n";
    for (size_t i = 0; i < std::size(kVisions); ++i) {
        table += std::string("| ") + kVisions[i].name + " |";
        for (const SchemeFigures& scheme : schemes) table += " " + DirectionCell(scheme.directions[i]) + " |";
        table += "\n";
    }
    return table;
}

}  // namespace

std::string ContrastTablesMarkdown(const std::vector<SchemeFigures>& schemes)
{
    return "Contrast ratio of each drawn pair (WCAG 2.x):\n\n" + PairTable(schemes) +
           "\nSmallest CIEDE2000 distance between rise, flat and fall, and the two colours it is between (needs " +
           Plain(kDirectionDistance) + " under each deficiency; normal vision for reference):\n\n" +
           DirectionTable(schemes);
}
