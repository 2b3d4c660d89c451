// The image configuration: "image" elements naming bitmap files, and "imagelist" strips cut into
// cells of a 16-colour image list.
#include "bmp_file.h"
#include "library_keys.h"
#include "scheme_checks.h"
#include "scheme_files.h"
#include "sixteen_colours.h"
#include <cstdio>
#include <map>

namespace kivlint {
namespace {

struct Context {
    const std::string& path;  // of the image configuration
    const std::string& imageRoot;
    Findings& findings;
};

const ImageRule* RuleFor(const std::string& key)
{
    for (const ImageRule& rule : ImageRules())
        if (key == rule.key) return &rule;
    return nullptr;
}

std::string Hex(uint32_t rgb)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%06X", unsigned(rgb & 0xFFFFFF));
    return text;
}

// The element's bitmap, with an error when it is missing or unreadable.
bool LoadBitmap(const Context& c, const TiXmlElement* element, BmpFile& bmp)
{
    const std::string file = AttributeOf(element, "file");
    std::string bytes, why;
    if (!ReadWholeFile(JoinPath(c.imageRoot, file), bytes))
        return c.findings.Error(c.path, element->Row(), "image file \"" + file + "\" is missing"), false;
    if (!ReadBmp(bytes, bmp, why)) return c.findings.Error(c.path, element->Row(), "\"" + file + "\": " + why), false;
    return true;
}

void CheckGeometry(const Context& c, const TiXmlElement* element, const ImageRule& rule, const BmpFile& bmp)
{
    if (rule.fits(bmp.width, bmp.height) && (rule.bits == 0 || rule.bits == bmp.bits)) return;
    c.findings.Error(c.path, element->Row(), std::string(rule.key) + " is " + std::to_string(bmp.width) + " x " +
                                                 std::to_string(bmp.height) + " at " + std::to_string(bmp.bits) +
                                                 " bits; the library expects " + rule.geometry +
                                                 (rule.bits ? " at " + std::to_string(rule.bits) + " bits" : ""));
}

// Colours of the art that the 16-colour list changes, and pure red, which cutting the strip
// takes for transparency.
void CheckListColours(const Context& c, const TiXmlElement* element, const BmpFile& bmp)
{
    std::map<uint32_t, size_t> lost;
    size_t red = 0;
    for (uint32_t pixel : bmp.pixels) {
        if (pixel == kStripMaskRgb) ++red;
        else if (!IsOneOfSixteen(pixel)) ++lost[pixel];
    }
    const std::string key = AttributeOf(element, "name");
    if (red) c.findings.Warning(c.path, element->Row(), key + ": " + std::to_string(red) + " pixels of pure red " +
                                                        Hex(kStripMaskRgb) + " are cut out as transparent");
    for (const auto& colour : lost)
        c.findings.Warning(c.path, element->Row(), key + ": " + std::to_string(colour.second) + " pixels of " +
                                                   Hex(colour.first) + " are not among the list's 16 colours; nearest " +
                                                   Hex(NearestOfSixteen(colour.first)));
}

void CheckImageList(const Context& c, const TiXmlElement* list, const BmpFile& bmp)
{
    int width = 0, height = 0, cells = 0;
    list->QueryIntAttribute("width", &width);
    list->QueryIntAttribute("height", &height);
    if (width < 1 || height < 1)
        return c.findings.Error(c.path, list->Row(), "width and height of a strip must be 1 or more: the strip is left out");
    for (const TiXmlElement* child = list->FirstChildElement(); child; child = child->NextSiblingElement()) ++cells;
    if (bmp.height < height || cells > bmp.width / width)
        c.findings.Error(c.path, list->Row(), "the strip holds " + std::to_string(bmp.width / width) + " cells of " +
                                                  std::to_string(width) + " x " + std::to_string(height) + " but names " +
                                                  std::to_string(cells));
    CheckListColours(c, list, bmp);
}

void CheckElement(const Context& c, const TiXmlElement* element, std::map<std::string, int>& seen)
{
    const std::string key = AttributeOf(element, "name");
    auto first = seen.emplace(key, element->Row());
    if (!first.second)
        c.findings.Warning(c.path, element->Row(), "\"" + key + "\" is defined again: the first definition (line " +
                                                       std::to_string(first.first->second) + ") is the one used");
    BmpFile bmp;
    if (!LoadBitmap(c, element, bmp)) return;
    if (const ImageRule* rule = RuleFor(key)) CheckGeometry(c, element, *rule, bmp);
    if (element->ValueStr() == "imagelist") CheckImageList(c, element, bmp);
}

}  // namespace

void CheckImages(const SchemeFiles& scheme, const std::string& imageRoot, Findings& findings)
{
    TiXmlDocument document;
    std::string why;
    int line = 0;
    if (!LoadDocument(scheme.images, document, why, line)) return findings.Error(scheme.images, line, why);
    const Context c{scheme.images, imageRoot, findings};
    std::map<std::string, int> seen;
    const TiXmlElement* root = document.FirstChildElement();
    for (const TiXmlElement* e = root ? root->FirstChildElement() : nullptr; e; e = e->NextSiblingElement())
        if (e->ValueStr() == "image" || e->ValueStr() == "imagelist") CheckElement(c, e, seen);
    for (const ImageRule& rule : ImageRules())
        if (!seen.count(rule.key)) findings.Error(scheme.images, 0, std::string("image \"") + rule.key + "\" is missing; the library expects " + rule.geometry);
}

}  // namespace kivlint
