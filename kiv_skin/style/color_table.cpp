#include "kiv_skin/style/color_table.h"
#include "kiv_skin/style/color_text.h"
#include "kiv_skin/style/scheme_file.h"
#include "kiv_base/file_helpers.h"
#include <cstdio>
#include <cstring>

namespace kiv_skin {
namespace {

const char kDefaultColorName[] = "DEFCOLOR";

// Reads one "color" element; false when it has no name.
bool ReadColorElement(const TiXmlElement* element, ColorEntry& entry)
{
    entry = ColorEntry();
    for (const TiXmlAttribute* a = element->FirstAttribute(); a; a = a->Next()) {
        if (std::strcmp(a->Name(), "name") == 0) {
            entry.name = a->Value();
        } else if (std::strcmp(a->Name(), "value") == 0) {
            COLORREF value = ParseColorValue(a->Value());
            if (value != kNoColor) entry.color = value;
        } else if (std::strcmp(a->Name(), "des") == 0) {
            entry.des = a->Value();
        }
    }
    if (entry.name.IsEmpty()) return false;
    entry.name.Trim();
    return true;
}

TiXmlElement* NewColorElement(const ColorTable& table, const ColorEntry& entry)
{
    TiXmlElement* element = new TiXmlElement("color");
    element->SetAttribute("name", entry.name);
    element->SetAttribute("value", FormatColor(entry.color));
    element->SetAttribute("des", GetColorDes(table, entry.name));
    return element;
}

void AppendColorElements(const ColorTable& table, TiXmlElement* colors)
{
    for (const ColorEntry& entry : table.entries) colors->LinkEndChild(NewColorElement(table, entry));
}

// Rewrites each element's value and description from the table, leaving texts that differ only
// in letter case (lower-case hexadecimal digits) as they are; adds and removes nothing.
void UpdateColorElements(const ColorTable& table, TiXmlElement* colors)
{
    for (TiXmlElement* e = colors->FirstChildElement(); e; e = e->NextSiblingElement()) {
        CString name = AttributeText(e, "name");
        CString value = FormatColor(LookupColor(table, name));
        CString des = GetColorDes(table, name);
        if (AttributeText(e, "value").CompareNoCase(value) != 0) e->SetAttribute("value", value);
        if (AttributeText(e, "des").CompareNoCase(des) != 0) e->SetAttribute("des", des);
    }
}

bool UpdateExistingFile(const ColorTable& table, const CString& path)
{
    TiXmlDocument doc;
    if (!doc.LoadFile(path)) return false;
    TiXmlElement* root = doc.FirstChildElement();
    if (!root) return false;
    TiXmlElement* colors = root->FirstChildElement("colors");
    if (colors) {
        UpdateColorElements(table, colors);
    } else {
        colors = new TiXmlElement("colors");
        AppendColorElements(table, colors);
        root->LinkEndChild(colors);
    }
    return doc.SaveFile(path);
}

bool CreateNewFile(const ColorTable& table, const CString& path)
{
    if (table.entries.empty()) return false;
    TiXmlDocument doc;
    doc.LinkEndChild(new TiXmlDeclaration("1.0", "GB2312", ""));
    TiXmlElement* globals = new TiXmlElement("globals");
    TiXmlElement* colors = new TiXmlElement("colors");
    AppendColorElements(table, colors);
    globals->LinkEndChild(colors);
    doc.LinkEndChild(globals);
    return doc.SaveFile(path);
}

}  // namespace

COLORREF ParseColorValue(const char* text) { return ColorFromValueText(text); }

CString FormatColor(COLORREF color)
{
    CString text;
    text.Format("0x00%02X%02X%02X", GetBValue(color), GetGValue(color), GetRValue(color));
    return text;
}

int LoadColors(ColorTable& table, const CString& path)
{
    TiXmlDocument doc;
    return ReadColors(table, doc.LoadFile(path) ? &doc : nullptr);
}

int ReadColors(ColorTable& table, TiXmlDocument* doc)
{
    table.entries.clear();
    if (!doc) return 0;
    TiXmlElement* colors = FindSection(*doc, "colors");
    TiXmlElement* first = colors ? colors->FirstChildElement() : nullptr;
    if (!first || std::strcmp(first->Value(), "color") != 0) return 1;
    for (TiXmlElement* e = first; e; e = e->NextSiblingElement("color")) {
        ColorEntry entry;
        if (!ReadColorElement(e, entry)) continue;
        table.entries.push_back(entry);
        if (entry.name == kDefaultColorName) table.defaultColor = entry.color;
    }
    return 1;
}

// Keys match byte for byte, so equal bytes are all a look-up compares (drawing code looks up
// colours at every paint).
COLORREF LookupColor(const ColorTable& table, const CString& name)
{
    for (const ColorEntry& entry : table.entries) {
        if (entry.name.GetLength() == name.GetLength() && std::strcmp(entry.name, name) == 0) return entry.color;
    }
    return table.defaultColor;
}

CString GetColorDes(const ColorTable& table, const CString& name)
{
    for (const ColorEntry& entry : table.entries) {
        if (entry.name == name) return entry.des;
    }
    return CString();
}

int AssignColors(const ColorList& from, ColorTable& table)
{
    table.entries = from;
    return from.empty() ? 0 : 1;
}

bool SaveColors(const ColorTable& table, const CString& path)
{
    return kiv_base::FileHelper::IsFileExist(path.GetString()) ? UpdateExistingFile(table, path) : CreateNewFile(table, path);
}

}  // namespace kiv_skin
