// The list of colour schemes (styles) the host offers, read from its configuration tree
// "kiv_skin\style", and which of them is the default.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <vector>

namespace kiv_skin {

struct StyleEntry {
    CString name;       // the style's key
    CString des;        // what the style dialog lists
    CString colorfont;  // full path of the colour/font file
    CString img;        // full path of the image configuration
};

class KIV_SKIN_API StyleCatalogue {
public:
    // The process-wide catalogue, created empty on the first call.
    static StyleCatalogue* Instance();

    // Re-reads the styles; 1 on success, 0 when the configuration or its root cannot be opened.
    // The default name is kept when no style is flagged as default.
    int LoadCatalogue();
    // Copies the first entry whose name equals name into out; 1 if found. Trims name and the
    // stored names in place on the way.
    int FindStyle(CString& name, StyleEntry& out);

    CString m_strDefaultName;
    std::vector<StyleEntry> m_entries;

private:
    StyleCatalogue() = default;
};

}  // namespace kiv_skin
