// kivlint: checks colour schemes as the library reads them, for scheme designers and their CI.
//
//     kivlint [--root FOLDER] [SCHEME...]   check the schemes of FOLDER (default: the current
//                                           folder), laid out as a host installs them: the
//                                           catalogue cfg/kiv_skin/style.xml, the files it names,
//                                           image files relative to FOLDER. No SCHEME: all.
//     kivlint --keys                        list the keys the library reads and what it draws
//     kivlint --pairs                       list the colours it draws one on the other, with the
//                                           contrast each needs, and the direction colours
//
// Prints "file:line: error|warning: text" per finding. Exit status: 0 without errors (warnings
// allowed), 1 with errors, 2 for a usage error or a catalogue that cannot be read.
#include "colour_vision.h"
#include "drawn_pairs.h"
#include "library_keys.h"
#include "scheme_checks.h"
#include "scheme_files.h"
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

int Usage()
{
    std::fprintf(stderr, "usage: kivlint [--root FOLDER] [SCHEME...]\n       kivlint --keys\n       kivlint --pairs\n");
    return 2;
}

int ListKeys()
{
    for (const kivlint::KeyUse& key : kivlint::ColourKeys()) std::printf("colour %s: %s\n", key.key, key.use);
    for (const kivlint::KeyUse& key : kivlint::FontKeys()) std::printf("font %s: %s\n", key.key, key.use);
    for (const kivlint::ImageRule& rule : kivlint::ImageRules()) std::printf("image %s: %s\n", rule.key, rule.geometry);
    return 0;
}

int ListPairs()
{
    for (const kivlint::DrawnPair& pair : kivlint::DrawnPairs())
        std::printf("pair %s on %s: %s %g:1: %s (%s, %s)\n", pair.ink, pair.ground, kivlint::NameOf(pair.kind),
                    kivlint::RequiredRatio(pair.kind), pair.what, pair.inkSource, pair.groundSource);
    for (const kivlint::DirectionPair& pair : kivlint::DirectionPairs()) {
        std::printf("direction %s against %s: at least %g apart in CIEDE2000 under", pair.first, pair.second,
                    kivlint::kDirectionDistance);
        const char* separator = " ";
        for (kivlint::Deficiency deficiency : kivlint::kDeficiencies)
            std::printf("%s%s", separator, kivlint::NameOf(deficiency)), separator = ", ";
        std::printf("\n");
    }
    return 0;
}

int Lint(const std::string& root, const std::vector<std::string>& names)
{
    kivlint::Findings findings;
    std::vector<kivlint::SchemeFiles> schemes;
    if (!kivlint::ReadCatalogue(kivlint::JoinPath(root, "cfg\\kiv_skin\\style.xml"), schemes, findings)) return 2;
    for (const std::string& name : names) {
        auto named = [&name](const kivlint::SchemeFiles& s) { return s.name == name; };
        if (std::none_of(schemes.begin(), schemes.end(), named)) findings.Error(name, 0, "no such scheme in the catalogue");
    }
    for (const kivlint::SchemeFiles& scheme : schemes) {
        if (!names.empty() && std::find(names.begin(), names.end(), scheme.name) == names.end()) continue;
        kivlint::CheckColours(scheme, findings);
        kivlint::CheckFonts(scheme, findings);
        kivlint::CheckImages(scheme, root, findings);
    }
    std::printf("kivlint: %d errors, %d warnings\n", findings.Errors(), findings.Warnings());
    return findings.Errors() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv)
{
    std::string root = ".";
    std::vector<std::string> names;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--keys" && argc == 2) return ListKeys();
        if (arg == "--pairs" && argc == 2) return ListPairs();
        if (arg == "--root" && i + 1 < argc) root = argv[++i];
        else if (!arg.empty() && arg[0] == '-') return Usage();
        else names.push_back(arg);
    }
    return Lint(root, names);
}
