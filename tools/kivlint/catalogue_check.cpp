// The catalogue: one "style" element per scheme, naming its colour/font and image files relative
// to the catalogue's folder.
#include "scheme_checks.h"
#include "scheme_files.h"
#include <cstring>

namespace kivlint {
namespace {

// The "file" of the last child named tag, as the library keeps the last of several.
std::string ChildFile(const TiXmlElement* style, const char* tag)
{
    std::string file;
    for (const TiXmlElement* child = style->FirstChildElement(tag); child; child = child->NextSiblingElement(tag))
        file = AttributeOf(child, "file");
    return file;
}

// "default" copies whichever of "name" and "des" stood last before it.
void CheckDefaultOrder(const std::string& path, const TiXmlElement* style, Findings& findings)
{
    const char* last = nullptr;
    for (const TiXmlAttribute* a = style->FirstAttribute(); a; a = a->Next()) {
        if (std::strcmp(a->Name(), "name") == 0 || std::strcmp(a->Name(), "des") == 0) last = a->Name();
        if (std::strcmp(a->Name(), "default") == 0 && std::strcmp(a->Value(), "1") == 0 &&
            (!last || std::strcmp(last, "name") != 0))
            findings.Error(path, a->Row(), "default=\"1\" must follow \"name\" and precede \"des\": here the default "
                                           "scheme's name is taken from " + std::string(last ? "its description" : "nothing"));
    }
}

}  // namespace

bool ReadCatalogue(const std::string& path, std::vector<SchemeFiles>& schemes, Findings& findings)
{
    TiXmlDocument document;
    std::string why;
    int line = 0;
    if (!LoadDocument(path, document, why, line)) return findings.Error(path, line, why), false;
    const TiXmlElement* root = document.FirstChildElement();
    if (!root) return findings.Error(path, 0, "no root element"), false;
    const std::string folder = FolderOf(path);
    for (const TiXmlElement* style = root->FirstChildElement("style"); style; style = style->NextSiblingElement("style")) {
        SchemeFiles scheme{AttributeOf(style, "name"), "", "", style->Row()};
        if (scheme.name.empty()) {
            findings.Warning(path, style->Row(), "a style without a name is left out");
            continue;
        }
        CheckDefaultOrder(path, style, findings);
        scheme.colorfont = JoinPath(folder, ChildFile(style, "colorfont"));
        scheme.images = JoinPath(folder, ChildFile(style, "img"));
        if (ChildFile(style, "colorfont").empty()) findings.Error(path, style->Row(), "style \"" + scheme.name + "\" names no colorfont file");
        if (ChildFile(style, "img").empty()) findings.Error(path, style->Row(), "style \"" + scheme.name + "\" names no img file");
        schemes.push_back(scheme);
    }
    if (schemes.empty()) findings.Error(path, 0, "no style: the catalogue offers nothing to load");
    return true;
}

}  // namespace kivlint
