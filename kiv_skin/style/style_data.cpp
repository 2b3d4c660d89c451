#include "kiv_skin/style/style_data.h"
#include "kiv_skin/style/scheme_file.h"

namespace kiv_skin {

// The colour/font file is parsed once for both its halves.
int LoadStyleData(StyleData& data, const StyleEntry& entry)
{
    TiXmlDocument colorFont;
    TiXmlDocument* parsed = colorFont.LoadFile(entry.colorfont) ? &colorFont : nullptr;
    if (!ReadColors(data.colors, parsed)) return 0;
    if (!ReadFonts(colorFont, data.fonts)) return 0;
    data.fonts.path = entry.colorfont;
    if (!data.images.loadImageConfig(entry.img)) return 0;
    data.name = entry.name;
    return 1;
}

// A style missing from the catalogue leaves the path empty, so writing then fails.
int SaveStyleData(StyleData& data, const int& saveColors, const int& saveFonts)
{
    StyleEntry entry;
    CString name = data.name;
    StyleCatalogue::Instance()->FindStyle(name, entry);
    if (saveColors && !SaveColors(data.colors, entry.colorfont)) return 0;
    if (saveFonts) return SaveFonts(data.fonts, entry.colorfont) ? 1 : 0;
    return 1;
}

}  // namespace kiv_skin
