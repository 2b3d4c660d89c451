// The panels and scroll sheets on a 144-DPI screen: their layouts are converted through DPIScale
// (the panel's 440 logical units wide become 660 pixels) and every scheme is written.
#include "demo/gallery.h"
#include "demo/scroll_sheet.h"
#include "png_reader.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

TEST(GalleryAt144, PanelsAndScrollSheetsAreLaidOutInTheScreensPixels)
{
    CClientDC screen(nullptr);
    ASSERT_EQ(144, screen.GetDeviceCaps(LOGPIXELSY)) << "the process did not run at 144 DPI";
    ScratchDir folder;
    ASSERT_TRUE(RenderDpiGallery(folder.dir()));
    for (const char* scheme : {"dark", "light", "navy"}) {
        std::string path = folder.Path(std::string(scheme) + "_panel_144dpi.png");
        DecodedPng panel = ReadPng(std::wstring(path.begin(), path.end()));
        ASSERT_EQ(S_OK, panel.result) << scheme;
        EXPECT_EQ(660, panel.width) << scheme;
        EXPECT_GT(panel.height, 900) << scheme << ": the 96-DPI panel's rows are 20 units high, here 30";
        path = folder.Path(std::string(scheme) + "_scroll_144dpi.png");
        DecodedPng scroll = ReadPng(std::wstring(path.begin(), path.end()));
        ASSERT_EQ(S_OK, scroll.result) << scheme;
        EXPECT_EQ(ScrollSheetSize().cx, scroll.width) << scheme;
        EXPECT_EQ(2 * 18 + 3 * 558 + 2 * 18, scroll.width) << scheme;
    }
}
