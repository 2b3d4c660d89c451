// The one-line title bar at the top of a plug-in panel: a band as high as the scheme's title
// font plus two units, in the title background colour, with the title centred in the title text
// colour. The host keeps one per panel and draws it at every repaint.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <string>

namespace kiv_skin {

class KIV_SKIN_API PluginTitle {
public:
    // title is UTF-8 and may be null.
    explicit PluginTitle(const char* title = nullptr);

    // title is UTF-8 and must not be null; an empty one empties the text.
    void SetTitle(const char* title) { m_strTitle = title; }
    std::string GetText() const { return m_strTitle; }
    // The band's height: the title font's cell height plus 2; 0 for a null context or a scheme
    // without a "PLUG_TITLE" font.
    int GetAreaHeight(CDC* dc);
    // Fills the band from area's top (area's bottom is not used) and centres the title in it;
    // draws nothing when the scheme has no title font. Leaves the background colour set to the
    // band's colour, as filling a solid rectangle does.
    void Draw(CDC* dc, const CRect& area);

private:
    std::string m_strTitle;
};

}  // namespace kiv_skin
