#include "demo/style_report.h"
#include "demo/console.h"
#include "kiv_skin/display/dpi_scale.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_data.h"
#include <cstdio>

using namespace kiv_skin;

namespace {

const char* const kShownColors[] = {"BACKGROUND", "PLUG_TITLE_BGCOLOR", "UPTEXT", "DOWNTEXT", "AXIS"};
const char* const kShownFonts[] = {"DEFAULT", "PLUG_TITLE", "SMALL"};
const char* const kImageKeys[] = {"KIV_BTN", "KIV_TOOL", "KIV_MARK", "KIV_DOT", "KIV_FRAME",
                                  "IDB_ICONS", "IDB_ICONREV", "IDB_ICONREVBLACK", "IDB_IMAGES"};

void PrintFont(KivStyleMgr* mgr, const char* key)
{
    LOGFONTA lf = {};
    const CFont* font = mgr->GetFont(key);
    if (font) font->GetObject(sizeof(lf), &lf);
    std::printf("  font   %-20s %s, height %ld, weight %ld\n", key, Gb2312ToUtf8(lf.lfFaceName).c_str(),
                lf.lfHeight, lf.lfWeight);
}

// Image keys answer either a bitmap (a stand-alone image or a cell) or a strip's image list.
void PrintImage(KivStyleMgr* mgr, const char* key)
{
    BITMAP info = {};
    if (const CBitmap* bitmap = mgr->GetBitmap(key)) {
        bitmap->GetObject(sizeof(info), &info);
        std::printf("  image  %-20s bitmap %ld x %ld\n", key, info.bmWidth, info.bmHeight);
    } else if (const CImageList* list = mgr->GetImageList(key)) {
        int cx = 0, cy = 0;
        ImageList_GetIconSize(list->m_hImageList, &cx, &cy);
        std::printf("  image  %-20s list of %d cells %d x %d, mask %s\n", key, list->GetImageCount(),
                    cx, cy, static_cast<const char*>(FormatColor(mgr->GetTransparentColor(key))));
    } else {
        std::printf("  image  %-20s missing\n", key);
    }
}

void PrintCounts(const StyleEntry& entry)
{
    StyleData data;
    LoadStyleData(data, entry);
    std::printf("  %d colours, %d fonts\n", static_cast<int>(data.colors.entries.size()),
                static_cast<int>(data.fonts.fonts.size()));
}

bool ReportScheme(KivStyleMgr* mgr, const StyleEntry& entry)
{
    std::printf("\n%s (%s)\n", static_cast<const char*>(entry.name), Gb2312ToUtf8(entry.des).c_str());
    if (!mgr->LoadStyle(entry.name)) {
        std::printf("  could not load the scheme\n");
        return false;
    }
    PrintCounts(entry);
    for (const char* key : kShownColors)
        std::printf("  colour %-20s %s\n", key, static_cast<const char*>(FormatColor(mgr->GetColor(key))));
    for (const char* key : kShownFonts) PrintFont(mgr, key);
    for (const char* key : kImageKeys) PrintImage(mgr, key);
    return true;
}

}  // namespace

void ReportDpiSettings()
{
    PrintHeading("DPI scaling");
    DPIScale* dpi = DPIScale::GetInstance();
    CClientDC screen(nullptr);
    std::printf("screen DPI          %d x %d\n", screen.GetDeviceCaps(LOGPIXELSX),
                screen.GetDeviceCaps(LOGPIXELSY));
    std::printf("scaling enabled     %s\n", dpi->IsEnable() ? "yes" : "no");
    std::printf("100 logical pixels  %d x %d device pixels\n", dpi->XLP2DP(100), dpi->YLP2DP(100));
    CRect rect = dpi->LP2DP(CRect(0, 0, 300, 200));
    std::printf("a 300 x 200 panel   %d x %d device pixels\n", rect.Width(), rect.Height());
}

bool ReportSchemes()
{
    PrintHeading("Colour schemes");
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    if (!mgr->InitStyleMgr()) {
        std::printf("the style manager could not load the default scheme\n");
        return false;
    }
    StyleCatalogue* catalogue = StyleCatalogue::Instance();
    std::printf("%d schemes, default \"%s\"\n", static_cast<int>(catalogue->m_entries.size()),
                static_cast<const char*>(mgr->GetCurrentStyle()));
    bool allLoaded = true;
    for (const StyleEntry& entry : catalogue->m_entries) allLoaded = ReportScheme(mgr, entry) && allLoaded;
    return allLoaded;
}
