// The fonts of one scheme: one GDI font per key, read from and written to the "fonts" section of
// the scheme's colour/font file, with sizes scaled to the screen's DPI when read.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <map>
#include <vector>

namespace kiv_skin {

struct FontEntry {
    CString name;
    CFont* font = nullptr;  // owned by the table
    CString des;
};

// Owns the font objects of its entries: not copyable, so that no font is deleted twice.
struct KIV_SKIN_API FontTable {
    CString path;                         // the colour/font file of the loaded style
    std::map<CString, FontEntry> fonts;   // one entry per key

    FontTable() = default;
    ~FontTable();
    FontTable(const FontTable&) = delete;
    FontTable& operator=(const FontTable&) = delete;
};

typedef std::vector<CString> FontNameList;

// Replaces the table's fonts by those of the file's "fonts" section. False (old fonts kept) when
// the file cannot be loaded; false (no fonts left) when it has no root or no "fonts". Elements
// without a key, or with a face name longer than 31 bytes, are left out.
KIV_SKIN_API bool LoadFonts(const CString& path, FontTable& table);
// The font of name, else that of "DEFAULT", else null.
KIV_SKIN_API const CFont* LookupFont(const FontTable& table, const CString& name);
// Replaces (or adds) name with a copy of source's description; an empty des keeps the old one.
KIV_SKIN_API bool SetFont(FontTable& table, const CString& name, const CFont* source, CString des);
KIV_SKIN_API CString GetFontDes(const FontTable& table, const CString& name);
// Every key in map order; false when there is none.
KIV_SKIN_API bool ListFontNames(const FontTable& table, FontNameList& out);
// Rewrites the "fonts" section of an existing file from the live fonts; never creates a file.
KIV_SKIN_API bool SaveFonts(const FontTable& table, const CString& path);

}  // namespace kiv_skin
