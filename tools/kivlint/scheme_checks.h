// The checks of one scheme: its colour/font file and its image configuration, read as the
// library reads them, and the catalogue that names the schemes.
#pragma once
#include "findings.h"
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
void CheckFonts(const SchemeFiles& scheme, Findings& findings);
// Image files are relative to the host's folder (imageRoot), as the library resolves them.
void CheckImages(const SchemeFiles& scheme, const std::string& imageRoot, Findings& findings);

}  // namespace kivlint
