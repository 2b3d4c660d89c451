#include "demo/style_report.h"
#include "demo/console.h"
#include "kiv_skin/display/dpi_scale.h"
#include "kiv_skin/style/color_table.h"
#include <cstdio>

using namespace kiv_skin;

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

bool ReportColorTable(const CString& colorFontPath)
{
    PrintHeading("Colour table");
    std::printf("file %s\n", static_cast<const char*>(colorFontPath));
    ColorTable table;
    if (!LoadColors(table, colorFontPath)) {
        std::printf("could not load the file\n");
        return false;
    }
    for (const ColorEntry& entry : table.entries) {
        std::printf("%-28s %s  %s\n", static_cast<const char*>(entry.name),
                    static_cast<const char*>(FormatColor(entry.color)),
                    Gb2312ToUtf8(entry.des).c_str());
    }
    std::printf("%d colours; unknown keys answer %s\n", static_cast<int>(table.entries.size()),
                static_cast<const char*>(FormatColor(LookupColor(table, "NO_SUCH_KEY"))));
    return true;
}
