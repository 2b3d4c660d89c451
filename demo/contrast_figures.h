// The figures of the active scheme's colours that the contrast sheet, the panels seen with
// colour-vision deficiencies and the Markdown tables show: kivlint's colour model applied to
// kivlint's table of drawn pairs, so that the pictures and kivlint never disagree.
#pragma once
#include <afxwin.h>
#include "tools/kivlint/colour_vision.h"
#include "tools/kivlint/drawn_pairs.h"
#include <string>
#include <vector>

// A value the library reads as no colour: kivlint leaves a pair holding it unjudged.
const COLORREF kNoSchemeColour = 0xFFFFFFFF;

// One way of seeing: normal vision, or one of the deficiencies the model simulates.
struct Vision {
    const char* name;   // "normal vision", "protanopia", ...
    const char* gloss;  // what the reader lacks
    bool simulated;
    kivlint::Deficiency deficiency;  // when simulated
};
extern const Vision kVisions[4];  // normal vision first, then the three deficiencies

// A colour as a reader with that vision sees it.
COLORREF SeenAs(COLORREF colour, const Vision& vision);

struct PairFigure {
    const kivlint::DrawnPair* pair;
    COLORREF ink, ground;
    double ratio, needed;
    bool judged;  // false when either colour is no colour
    bool passes;
    COLORREF nearest;  // the nearest ink that passes on the ground; the ink itself when it passes
};

struct DirectionFigure {
    const Vision* vision;
    const kivlint::DirectionPair* closest;  // the direction colours that come closest; null when
                                            // no two of them are colours
    double distance;                        // their CIEDE2000 distance as seen
    bool passes;  // judged under the deficiencies only: normal vision is shown for reference
};

// Every drawn pair in the active scheme, in the table's order.
std::vector<PairFigure> PairFigures();
// The closest direction colours under each vision, in kVisions' order.
std::vector<DirectionFigure> DirectionFigures();

struct SchemeFigures {
    std::string scheme;
    std::vector<PairFigure> pairs;
    std::vector<DirectionFigure> directions;
};
// The figures of the active scheme under its name.
SchemeFigures FiguresOf(const char* scheme);
// Both tables, every scheme a column, as Markdown (UTF-8).
std::string ContrastTablesMarkdown(const std::vector<SchemeFigures>& schemes);
