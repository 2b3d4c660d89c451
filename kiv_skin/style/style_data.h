// The resources of one loaded style, and the operations that load them from a catalogue entry
// and write them back to the style's colour/font file.
#pragma once
#include "kiv_skin/display/image_manager.h"
#include "kiv_skin/style/color_table.h"
#include "kiv_skin/style/font_table.h"
#include "kiv_skin/style/style_catalogue.h"

namespace kiv_skin {

// Members are destroyed in reverse order: images, fonts, colours, then the name.
struct StyleData {
    CString name;
    ColorTable colors;
    FontTable fonts;
    ImageManager images;
};

// Loads colours, fonts and images of entry into data; 1 on success, 0 on the first failure.
// Not transactional: what loaded before the failure stays, beside the older rest.
KIV_SKIN_API int LoadStyleData(StyleData& data, const StyleEntry& entry);
// Writes the colours and/or the fonts of data to the colour/font file of the catalogue entry
// named data.name; 1 on success.
KIV_SKIN_API int SaveStyleData(StyleData& data, const int& saveColors, const int& saveFonts);

}  // namespace kiv_skin
