// The panels and scroll sheets on 144-DPI and 192-DPI screens: their layouts are converted through
// DPIScale (the panel's 440 logical units wide become 660 and 880 pixels) and every scheme is
// written.
#include "demo/gallery.h"
#include "demo/scroll_sheet.h"
#include "png_reader.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

namespace {

struct DpiLayout {
    int dpi;
    int panelWidth;
    int minPanelHeight;  // the 96-DPI panel's rows are 20 units high; scaled, dpi / 96 times that
    int scrollWidth;     // two margins, three scenes and two gaps, each scaled
};

void ExpectDpiGallery(const DpiLayout& layout)
{
    CClientDC screen(nullptr);
    ASSERT_EQ(layout.dpi, screen.GetDeviceCaps(LOGPIXELSY)) << "the process did not run at " << layout.dpi << " DPI";
    ScratchDir folder;
    ASSERT_TRUE(RenderDpiGallery(folder.dir()));
    const std::string suffix = "_" + std::to_string(layout.dpi) + "dpi.png";
    for (const char* scheme : {"dark", "light", "navy"}) {
        std::string path = folder.Path(scheme + std::string("_panel") + suffix);
        DecodedPng panel = ReadPng(std::wstring(path.begin(), path.end()));
        ASSERT_EQ(S_OK, panel.result) << scheme;
        EXPECT_EQ(layout.panelWidth, panel.width) << scheme;
        EXPECT_GT(panel.height, layout.minPanelHeight) << scheme;
        path = folder.Path(scheme + std::string("_scroll") + suffix);
        DecodedPng scroll = ReadPng(std::wstring(path.begin(), path.end()));
        ASSERT_EQ(S_OK, scroll.result) << scheme;
        EXPECT_EQ(ScrollSheetSize().cx, scroll.width) << scheme;
        EXPECT_EQ(layout.scrollWidth, scroll.width) << scheme;
    }
}

}  // namespace

TEST(GalleryAt144, PanelsAndScrollSheetsAreLaidOutInTheScreensPixels)
{
    ExpectDpiGallery({144, 660, 900, 2 * 18 + 3 * 558 + 2 * 18});
}

TEST(GalleryAt192, PanelsAndScrollSheetsAreLaidOutInTheScreensPixels)
{
    ExpectDpiGallery({192, 880, 1200, 2 * 24 + 3 * 744 + 2 * 24});
}
