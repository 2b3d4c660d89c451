// The colours of one scheme: key names with their COLORREF values and descriptions, read from
// and written to the "colors" section of the scheme's colour/font file.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <vector>

namespace kiv_skin {

const COLORREF kNoColor = 0xFFFFFFFF;

struct ColorEntry {
    CString name;
    COLORREF color = kNoColor;
    CString des;
};

typedef std::vector<ColorEntry> ColorList;

struct ColorTable {
    ColorList entries;                 // in file order; duplicates are kept
    COLORREF defaultColor = kNoColor;  // answer for unknown names, from the entry "DEFCOLOR"
};

// Replaces the entries by the file's colours; 1 if the document loaded, 0 if not. The fallback
// colour is kept when the file has no "DEFCOLOR".
KIV_SKIN_API int LoadColors(ColorTable& table, const CString& path);
// The first entry named exactly name, else the fallback colour.
KIV_SKIN_API COLORREF LookupColor(const ColorTable& table, const CString& name);
KIV_SKIN_API CString GetColorDes(const ColorTable& table, const CString& name);
// Copies from into the table's entries; 1 if from was not empty.
KIV_SKIN_API int AssignColors(const ColorList& from, ColorTable& table);
// "0x00BBGGRR" with upper-case digits.
KIV_SKIN_API CString FormatColor(COLORREF color);
// Updates the file's "colors" section in place, or creates a new file; true on success.
KIV_SKIN_API bool SaveColors(const ColorTable& table, const CString& path);

// The colour of a "value" text: it counts only if it holds "0x" or "0X"; then the hexadecimal
// number at its start gives the low 24 bits. Otherwise kNoColor.
KIV_SKIN_API COLORREF ParseColorValue(const char* text);

}  // namespace kiv_skin
