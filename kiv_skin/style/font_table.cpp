#include "kiv_skin/style/font_table.h"
#include "kiv_skin/display/dpi_scale.h"
#include "kiv_skin/style/scheme_file.h"
#include <cstdlib>
#include <cstring>

namespace kiv_skin {
namespace {

const char kDefaultFontName[] = "DEFAULT";
const char kDefaultFace[] = "\xCB\xCE\xCC\xE5";  // 宋体 in GB2312

// The numeric attributes in the order the writer emits them ("itatic" is the format's own
// spelling of the italic flag).
struct LongField { const char* attribute; LONG LOGFONTA::*field; };
struct ByteField { const char* attribute; BYTE LOGFONTA::*field; };

const LongField kLongFields[] = {
    {"height", &LOGFONTA::lfHeight}, {"width", &LOGFONTA::lfWidth}, {"weight", &LOGFONTA::lfWeight}};
const ByteField kByteFields[] = {
    {"itatic", &LOGFONTA::lfItalic},          {"underline", &LOGFONTA::lfUnderline},
    {"quality", &LOGFONTA::lfQuality},        {"charset", &LOGFONTA::lfCharSet},
    {"outprecision", &LOGFONTA::lfOutPrecision}, {"pitchandfamily", &LOGFONTA::lfPitchAndFamily}};

LOGFONTA DefaultDescription()
{
    LOGFONTA lf = {};
    lf.lfHeight = -16;
    lf.lfWeight = FW_NORMAL;
    std::strcpy(lf.lfFaceName, kDefaultFace);
    return lf;
}

// One font element as read; faceFits is false when the face name overflows the 32-byte field.
struct FontDefinition {
    LOGFONTA lf = DefaultDescription();
    CString name;
    CString des;
    bool faceFits = true;

    void Apply(const char* attribute, const char* value)
    {
        if (std::strcmp(attribute, "kivfontname") == 0) name = value;
        else if (std::strcmp(attribute, "des") == 0) des = value;
        else if (std::strcmp(attribute, "facename") == 0) SetFace(value);
        for (const LongField& f : kLongFields) {
            if (std::strcmp(attribute, f.attribute) == 0) lf.*f.field = std::atoi(value);
        }
        for (const ByteField& f : kByteFields) {
            if (std::strcmp(attribute, f.attribute) == 0) lf.*f.field = static_cast<BYTE>(std::atoi(value));
        }
    }
    void SetFace(const char* value)
    {
        faceFits = std::strlen(value) < LF_FACESIZE;
        if (faceFits) std::strcpy(lf.lfFaceName, value);
    }
};

// Sizes in the file are logical: height and width both follow the vertical DPI ratio.
void ScaleToScreen(LOGFONTA& lf)
{
    DPIScale* dpi = DPIScale::GetInstance();
    lf.lfHeight = dpi->YLP2DP(lf.lfHeight);
    lf.lfWidth = dpi->YLP2DP(lf.lfWidth);
}

CFont* NewFont(const LOGFONTA& lf)
{
    HFONT handle = ::CreateFontIndirectA(&lf);
    if (!handle) return nullptr;
    CFont* font = new CFont;
    font->Attach(handle);
    return font;
}

void DeleteFonts(FontTable& table)
{
    for (auto& item : table.fonts) delete item.second.font;
    table.fonts.clear();
}

// Adds the font of one element unless it is unusable or its key is already taken.
void ReadFontElement(const TiXmlElement* element, FontTable& table)
{
    if (!element->FirstAttribute()) return;
    FontDefinition def;
    for (const TiXmlAttribute* a = element->FirstAttribute(); a; a = a->Next()) def.Apply(a->Name(), a->Value());
    ScaleToScreen(def.lf);
    if (def.name.IsEmpty() || !def.faceFits) return;
    CFont* font = NewFont(def.lf);
    if (!font) return;
    if (!table.fonts.emplace(def.name, FontEntry{def.name, font, def.des}).second) delete font;
}

TiXmlElement* NewFontElement(const CString& name, const LOGFONTA& lf, const CString& des)
{
    TiXmlElement* element = new TiXmlElement("font");
    element->SetAttribute("kivfontname", name);
    element->SetAttribute("facename", lf.lfFaceName);
    for (const LongField& f : kLongFields) element->SetAttribute(f.attribute, static_cast<int>(lf.*f.field));
    for (const ByteField& f : kByteFields) element->SetAttribute(f.attribute, static_cast<int>(lf.*f.field));
    element->SetAttribute("des", des);
    return element;
}

}  // namespace

FontTable::~FontTable() { DeleteFonts(*this); }

bool LoadFonts(const CString& path, FontTable& table)
{
    TiXmlDocument doc;
    return doc.LoadFile(path) && ReadFonts(doc, table);
}

bool ReadFonts(TiXmlDocument& doc, FontTable& table)
{
    DeleteFonts(table);
    TiXmlElement* fonts = FindSection(doc, "fonts");
    if (!fonts) return false;
    for (TiXmlElement* e = fonts->FirstChildElement(); e; e = e->NextSiblingElement()) ReadFontElement(e, table);
    return true;
}

const CFont* LookupFont(const FontTable& table, const CString& name)
{
    auto found = table.fonts.find(name);
    if (found == table.fonts.end()) found = table.fonts.find(kDefaultFontName);
    return found == table.fonts.end() ? nullptr : found->second.font;
}

bool SetFont(FontTable& table, const CString& name, const CFont* source, CString des)
{
    CString oldDes;
    const CFont* removed = nullptr;
    auto found = table.fonts.find(name);
    if (found != table.fonts.end()) {
        oldDes = found->second.des;
        removed = found->second.font;
        delete found->second.font;
        table.fonts.erase(found);
    }
    // A source that was the replaced entry's own font is gone with it.
    LOGFONTA lf;
    if (!source || source == removed || source->GetObject(sizeof(lf), &lf) == 0) return false;
    CFont* font = NewFont(lf);
    if (!font) return false;
    return table.fonts.emplace(name, FontEntry{name, font, des.IsEmpty() ? oldDes : des}).second;
}

CString GetFontDes(const FontTable& table, const CString& name)
{
    auto found = table.fonts.find(name);
    return found == table.fonts.end() ? CString() : found->second.des;
}

bool ListFontNames(const FontTable& table, FontNameList& out)
{
    out.clear();
    for (const auto& item : table.fonts) out.push_back(item.first);
    return !out.empty();
}

bool SaveFonts(const FontTable& table, const CString& path)
{
    TiXmlDocument doc;
    if (!doc.LoadFile(path)) return false;
    TiXmlElement* fonts = FindSection(doc, "fonts");
    if (!fonts) return false;
    fonts->Clear();
    for (const auto& item : table.fonts) {
        LOGFONTA lf;
        if (item.second.font->GetObject(sizeof(lf), &lf) == 0) continue;
        fonts->LinkEndChild(NewFontElement(item.first, lf, item.second.des));
    }
    return doc.SaveFile(path);
}

}  // namespace kiv_skin
