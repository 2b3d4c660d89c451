// The colour/font file: the "colors" and "fonts" sections of its root element.
#include "kiv_skin/style/color_text.h"
#include "library_keys.h"
#include "scheme_checks.h"
#include "scheme_files.h"
#include <map>

namespace kivlint {
namespace {

const size_t kFaceNameLimit = 31;  // bytes a LOGFONT's face name holds before its zero

// The root's first child element named name, with an error when the document or it is missing.
const TiXmlElement* Section(const std::string& path, TiXmlDocument& document, const char* name, Findings& findings)
{
    std::string why;
    int line = 0;
    if (!LoadDocument(path, document, why, line)) return findings.Error(path, line, why), nullptr;
    const TiXmlElement* root = document.FirstChildElement();
    const TiXmlElement* section = root ? root->FirstChildElement(name) : nullptr;
    if (!section) findings.Error(path, root ? root->Row() : 0, std::string("no <") + name + "> section under the root element");
    return section;
}

// The library trims colour names at both ends.
std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(" \t\r\n");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// Records the first line of each key; warns of every later definition, which look-ups never see.
void NoteKey(const std::string& path, const std::string& key, int line, std::map<std::string, int>& seen, Findings& findings)
{
    auto first = seen.emplace(key, line);
    if (!first.second && key != "DEFCOLOR")
        findings.Warning(path, line, "\"" + key + "\" is defined again: the first definition (line " +
                                         std::to_string(first.first->second) + ") is the one used");
}

void CheckMissing(const std::string& path, const std::vector<KeyUse>& keys, const std::map<std::string, int>& seen,
                  const char* kind, Findings& findings)
{
    for (const KeyUse& key : keys)
        if (!seen.count(key.key))
            findings.Error(path, 0, std::string(kind) + " \"" + key.key + "\" is missing; the library uses it for " + key.use);
}

}  // namespace

void CheckColours(const SchemeFiles& scheme, Findings& findings)
{
    const std::string& path = scheme.colorfont;
    TiXmlDocument document;
    const TiXmlElement* colors = Section(path, document, "colors", findings);
    if (!colors) return;
    const TiXmlElement* first = colors->FirstChildElement();
    if (first && first->ValueStr() != "color") {
        findings.Error(path, first->Row(), "the first element of <colors> is <" + first->ValueStr() + ">, so no colour is read");
        return;
    }
    std::map<std::string, int> seen;
    SchemeColourTable table;
    int defaults = 0;
    for (const TiXmlElement* color = colors->FirstChildElement("color"); color; color = color->NextSiblingElement("color")) {
        const std::string name = Trimmed(AttributeOf(color, "name")), value = AttributeOf(color, "value");
        if (name.empty()) continue;
        NoteKey(path, name, color->Row(), seen, findings);
        const ColourDefinition definition = {kiv_skin::ColorFromValueText(value.c_str()), color->Row()};
        table.keys.emplace(name, definition);
        if (name == "DEFCOLOR") table.fallback = definition, ++defaults;
        if (definition.colour == kNoColour)
            findings.Error(path, color->Row(), "\"" + name + "\" has the value \"" + value + "\", which is no colour (write 0x00BBGGRR)");
    }
    if (defaults > 1) findings.Warning(path, 0, "\"DEFCOLOR\" is defined " + std::to_string(defaults) + " times: the last one is the fallback");
    CheckMissing(path, ColourKeys(), seen, "colour", findings);
    CheckContrast(path, table, findings);
    CheckColourVision(path, table, findings);
}

void CheckFonts(const SchemeFiles& scheme, Findings& findings)
{
    const std::string& path = scheme.colorfont;
    TiXmlDocument document;
    const TiXmlElement* fonts = Section(path, document, "fonts", findings);
    if (!fonts) return;
    std::map<std::string, int> seen;
    for (const TiXmlElement* font = fonts->FirstChildElement(); font; font = font->NextSiblingElement()) {
        const std::string name = AttributeOf(font, "kivfontname"), face = AttributeOf(font, "facename");
        if (name.empty()) continue;
        NoteKey(path, name, font->Row(), seen, findings);
        if (face.size() > kFaceNameLimit)
            findings.Error(path, font->Row(), "the face name of \"" + name + "\" has " + std::to_string(face.size()) +
                                                  " bytes; a font face name holds at most 31");
    }
    CheckMissing(path, FontKeys(), seen, "font", findings);
}

}  // namespace kivlint
