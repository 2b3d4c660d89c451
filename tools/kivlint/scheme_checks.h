// The checks of one scheme: its colour/font file and its image configuration, read as the
// library reads them, and the catalogue that names the schemes.
#pragma once
#include "colour_metrics.h"
#include "findings.h"
#include <map>
#include <string>
#include <vector>

namespace kivlint {

struct SchemeFiles {
    std::string name;
    std::string colorfont;  // full paths, as the catalogue composes them
    std::string images;
    int line = 0;           // of the scheme in the catalogue
};

// The schemes of a catalogue file, with findings about the catalogue itself; false when it
// cannot be read at all.
bool ReadCatalogue(const std::string& path, std::vector<SchemeFiles>& schemes, Findings& findings);
void CheckColours(const SchemeFiles& scheme, Findings& findings);

const SchemeColour kNoColour = 0xFFFFFFFF;  // a value the library reads as no colour

struct ColourDefinition {
    SchemeColour colour = kNoColour;
    int line = 0;
};

// A scheme's colours as the library looks them up: the first definition of a key, and for a key
// the file lacks the fallback, which the last "DEFCOLOR" sets.
struct SchemeColourTable {
    std::map<std::string, ColourDefinition> keys;
    ColourDefinition fallback;
    ColourDefinition Lookup(const std::string& key) const;
};

// The pairs the library draws one on the other, against the contrast each needs, and the
// direction colours against one another under each colour-vision deficiency (warnings).
void CheckContrast(const std::string& path, const SchemeColourTable& colours, Findings& findings);
void CheckColourVision(const std::string& path, const SchemeColourTable& colours, Findings& findings);
void CheckFonts(const SchemeFiles& scheme, Findings& findings);
// Image files are relative to the host's folder (imageRoot), as the library resolves them.
void CheckImages(const SchemeFiles& scheme, const std::string& imageRoot, Findings& findings);

}  // namespace kivlint
