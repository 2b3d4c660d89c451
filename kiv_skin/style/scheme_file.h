// Helpers shared by the colour and font tables for the scheme's colour/font XML file.
#pragma once
#include <afxwin.h>
#include <tinyxml.h>

namespace kiv_skin {

struct ColorTable;
struct FontTable;

// The colour and font halves of loading a colour/font file, from a document already parsed, so
// that loading a style parses its file once. A null document is a file that could not be
// parsed: the colours are emptied and 0 answered.
int ReadColors(ColorTable& table, TiXmlDocument* doc);
bool ReadFonts(TiXmlDocument& doc, FontTable& table);

// The first child element named name of the document's root element; null if either is missing.
inline TiXmlElement* FindSection(TiXmlDocument& doc, const char* name)
{
    TiXmlElement* root = doc.FirstChildElement();
    return root ? root->FirstChildElement(name) : nullptr;
}

// The attribute's text, empty when absent.
inline CString AttributeText(const TiXmlElement* element, const char* name)
{
    const char* value = element->Attribute(name);
    return CString(value);
}

}  // namespace kiv_skin
