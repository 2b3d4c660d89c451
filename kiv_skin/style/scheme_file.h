// Helpers shared by the colour and font tables for the scheme's colour/font XML file.
#pragma once
#include <afxwin.h>
#include <tinyxml.h>

namespace kiv_skin {

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
