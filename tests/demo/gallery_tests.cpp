// The gallery of the dark scheme painted into a scratch folder: both files decode as PNG, the
// panel's file holds exactly what the panel paints, and the scheme's colours are where the panel
// and the sheet put them.
#include "demo/gallery.h"
#include "demo/markup_sheet.h"
#include "demo/panel.h"
#include "demo/panel_market.h"
#include "demo/piece_sheet.h"
#include "demo/png_writer.h"
#include "demo/scroll_sheet.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "dark_gallery.h"
#include "support/dib_canvas.h"

using kiv_skin::KivStyleMgr;

namespace {

std::wstring Wide(const std::string& path)
{
    return std::wstring(path.begin(), path.end());  // the scratch folder's path is ASCII
}

COLORREF Scheme(const char* key)
{
    return KivStyleMgr::GetInstance()->GetColor(key);
}

int Count(const DecodedPng& png, COLORREF color)
{
    int n = 0;
    for (int y = 0; y < png.height; ++y)
        for (int x = 0; x < png.width; ++x) n += png.Color(x, y) == color ? 1 : 0;
    return n;
}

// Pixels of exactly color inside rect of a decoded picture.
int CountIn(const DecodedPng& png, const CRect& rect, COLORREF color)
{
    int n = 0;
    for (int y = rect.top; y < rect.bottom; ++y)
        for (int x = rect.left; x < rect.right; ++x) n += png.Color(x, y) == color ? 1 : 0;
    return n;
}

int CountIn(DibCanvas& canvas, const CRect& rect, COLORREF color)
{
    int n = 0;
    for (int y = rect.top; y < rect.bottom; ++y)
        for (int x = rect.left; x < rect.right; ++x) n += canvas.Pixel(x, y) == color ? 1 : 0;
    return n;
}

int OpaquePixels(const DecodedPng& png)
{
    int n = 0;
    for (int y = 0; y < png.height; ++y)
        for (int x = 0; x < png.width; ++x) n += png.Alpha(x, y) == 255 ? 1 : 0;
    return n;
}

}  // namespace

void DarkGallery::SetUpTestSuite()
{
    s_folder = std::make_unique<ScratchDir>();
    s_initialised = KivStyleMgr::GetInstance()->InitStyleMgr() == 1;
    s_written = RenderSchemeGallery("dark", s_folder->dir());
    s_panel = ReadPng(Wide(s_folder->Path("dark_panel.png")));
    s_sheet = ReadPng(Wide(s_folder->Path("dark_pieces.png")));
    s_markup = ReadPng(Wide(s_folder->Path("dark_markup.png")));
    s_scroll = ReadPng(Wide(s_folder->Path("dark_scroll.png")));
    s_contrast = ReadPng(Wide(s_folder->Path("dark_contrast.png")));
    s_vision = ReadPng(Wide(s_folder->Path("dark_vision.png")));
}

void DarkGallery::TearDownTestSuite() { s_folder.reset(); }

void DarkGallery::SetUp()
{
    ASSERT_TRUE(s_initialised);
    ASSERT_TRUE(s_written);
    ASSERT_EQ(S_OK, s_panel.result);
    ASSERT_EQ(S_OK, s_sheet.result);
    ASSERT_EQ(S_OK, s_markup.result);
    ASSERT_EQ(S_OK, s_scroll.result);
    ASSERT_EQ(S_OK, s_contrast.result);
    ASSERT_EQ(S_OK, s_vision.result);
}

std::unique_ptr<ScratchDir> DarkGallery::s_folder;
bool DarkGallery::s_initialised = false;
bool DarkGallery::s_written = false;
DecodedPng DarkGallery::s_panel;
DecodedPng DarkGallery::s_sheet;
DecodedPng DarkGallery::s_markup;
DecodedPng DarkGallery::s_scroll;
DecodedPng DarkGallery::s_contrast;
DecodedPng DarkGallery::s_vision;

TEST_F(DarkGallery, WritesOpaqueBgraPngFilesOfThePanelAndTheSheet)
{
    EXPECT_TRUE(s_panel.bgra);
    EXPECT_TRUE(s_sheet.bgra);
    EXPECT_EQ(s_panel.width * s_panel.height, OpaquePixels(s_panel));
    EXPECT_EQ(s_sheet.width * s_sheet.height, OpaquePixels(s_sheet));
}

// Three panels, each with a vertical bar whose frame runs down both its sides beside about 15
// rows, and a horizontal bar.
TEST_F(DarkGallery, ScrollSheetShowsThePanelsAndTheirBars)
{
    CSize size = ScrollSheetSize();
    ASSERT_EQ(size.cx, s_scroll.width);
    ASSERT_EQ(size.cy, s_scroll.height);
    EXPECT_EQ(size.cx * size.cy, OpaquePixels(s_scroll));
    COLORREF frame = KivStyleMgr::GetInstance()->GetColor("SCROLLBARLINE");
    int framePixels = 0;
    for (int y = 0; y < s_scroll.height; ++y)
        for (int x = 0; x < s_scroll.width; ++x) framePixels += s_scroll.Color(x, y) == frame ? 1 : 0;
    EXPECT_GT(framePixels, 3 * 2 * 15 * 20);
}

TEST_F(DarkGallery, PanelFileHoldsExactlyWhatThePanelPaints)
{
    DibCanvas probe(1, 1);
    CSize size = QuotePanelSize(probe.dc());
    ASSERT_EQ(size.cx, s_panel.width);
    ASSERT_EQ(size.cy, s_panel.height);
    DibCanvas canvas(size.cx, size.cy, RGB(1, 2, 3));
    DrawQuotePanel(canvas.dc());
    int differing = 0;
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x) differing += canvas.Pixel(x, y) != s_panel.Color(x, y) ? 1 : 0;
    EXPECT_EQ(0, differing);
}

TEST_F(DarkGallery, PanelHasItsFrameTitleBandAndBackground)
{
    int right = s_panel.width - 1, bottom = s_panel.height - 1;
    EXPECT_EQ(Scheme("PLUG_FRAME"), s_panel.Color(0, 0));
    EXPECT_EQ(Scheme("PLUG_FRAME"), s_panel.Color(right, bottom));
    EXPECT_EQ(Scheme("PLUG_FRAME"), s_panel.Color(right, bottom / 2));
    EXPECT_EQ(Scheme("PLUG_TITLE_BGCOLOR"), s_panel.Color(2, 2));
    EXPECT_EQ(Scheme("PLUG_TITLE_BGCOLOR"), s_panel.Color(right - 2, 2));
    DibCanvas probe(1, 1);
    int titleBottom = 1 + kiv_skin::PluginTitle().GetAreaHeight(probe.dc());
    EXPECT_EQ(Scheme("PLUG_TITLE_BGCOLOR"), s_panel.Color(2, titleBottom - 1));
    // Below the title, the padding inside the frame is background from top to bottom.
    for (int y = titleBottom; y < bottom; ++y)
        ASSERT_EQ(Scheme("PLUG_BGCOLOR"), s_panel.Color(kPanelPadding / 2, y)) << "row " << y;
}

TEST_F(DarkGallery, PanelShowsPricesButtonStatesAndTheSelection)
{
    EXPECT_GT(Count(s_panel, Scheme("UPTEXT")), 100);
    EXPECT_GT(Count(s_panel, Scheme("DOWNTEXT")), 100);
    EXPECT_GT(Count(s_panel, Scheme("PLUG_TIME_COLOR1")), 50);
    // One button hovered and one pressed: a 22-unit face less its frame and its icon.
    EXPECT_GT(Count(s_panel, Scheme("PLUG_BTN_BGCOLOR_HOVER")), 250);
    EXPECT_GT(Count(s_panel, Scheme("PLUG_BTN_BGCOLOR_PRESSED")), 250);
    // The selection frame around one row, 430 units wide.
    EXPECT_GT(Count(s_panel, Scheme("PLUG_SELCOLOR")), 2 * 400);
}

TEST_F(DarkGallery, SheetHasItsSizeBackgroundAndNames)
{
    CSize size = PieceSheetSize();
    EXPECT_EQ(size.cx, s_sheet.width);
    EXPECT_EQ(size.cy, s_sheet.height);
    EXPECT_EQ(Scheme("BACKGROUND"), s_sheet.Color(0, 0));
    EXPECT_EQ(Scheme("BACKGROUND"), s_sheet.Color(size.cx - 1, size.cy - 1));
    EXPECT_GT(Count(s_sheet, Scheme("PLUG_TITLE_TEXT")), 1000);  // the heading and every name
    EXPECT_GT(Count(s_sheet, Scheme("PLUG_BTN_BGCOLOR_PRESSED")), 3 * 250);
}

TEST_F(DarkGallery, SheetShowsMarksBarsAndIconsInTheTrendColours)
{
    // Marks, prices, rich text and four rows of percentage bars, rising and falling.
    EXPECT_GT(Count(s_sheet, Scheme("UPTEXT")), 1500);
    EXPECT_GT(Count(s_sheet, Scheme("DOWNTEXT")), 1500);
    EXPECT_GT(Count(s_sheet, Scheme("AXIS")), 200);  // two axes, their ticks, labels and titles
}

TEST_F(DarkGallery, MarkupSheetHasItsSizeAndDrawsEachLinesColours)
{
    CSize size = MarkupSheetSize();
    ASSERT_EQ(size.cx, s_markup.width);
    ASSERT_EQ(size.cy, s_markup.height);
    EXPECT_EQ(s_markup.width * s_markup.height, OpaquePixels(s_markup));
    // "sc": rise, flat and fall in the scheme's three trend colours.
    CRect trends = MarkupDrawnCell(3);
    EXPECT_GT(CountIn(s_markup, trends, Scheme("UPTEXT")), 20);
    EXPECT_GT(CountIn(s_markup, trends, Scheme("EQUTEXT")), 20);
    EXPECT_GT(CountIn(s_markup, trends, Scheme("DOWNTEXT")), 20);
    // "bkcolor": an opaque band of 0x2020C0 behind " LIMIT UP ", white text on it.
    CRect limit = MarkupDrawnCell(4);
    EXPECT_GT(CountIn(s_markup, limit, 0x2020C0), 500);
    EXPECT_GT(CountIn(s_markup, limit, RGB(255, 255, 255)), 50);
    // "sysbkcolor": the selection colour behind the code.
    EXPECT_GT(CountIn(s_markup, MarkupDrawnCell(6), Scheme("PLUG_SELCOLOR")), 300);
    // "syscolor" draws no background and nothing in the falling colour.
    EXPECT_EQ(0, CountIn(s_markup, MarkupDrawnCell(2), Scheme("DOWNTEXT")));
}

class DarkPanelSections : public DarkGallery {
protected:
    static const int kWidth = 430, kRow = 20;
};

TEST_F(DarkPanelSections, MoverRowsAreInTheirTrendColours)
{
    DibCanvas canvas(kWidth, kMoverRows * kRow, Scheme("PLUG_BGCOLOR"));
    kiv_skin::KivDraw kit;
    DrawMoverList(canvas.dc(), kit, CRect(0, 0, kWidth, kMoverRows * kRow));
    const char* trends[] = {"UPTEXT", "UPTEXT", "EQUTEXT", "DOWNTEXT", "DOWNTEXT"};
    for (int i = 0; i < kMoverRows; ++i) {
        CRect prices(160, i * kRow, kWidth, (i + 1) * kRow);  // last, change and percentage
        bool rising = trends[i][0] == 'U', falling = trends[i][0] == 'D';
        EXPECT_GT(CountIn(canvas, prices, Scheme(trends[i])), 40) << "row " << i;
        if (falling) {
            EXPECT_EQ(0, CountIn(canvas, prices, Scheme("UPTEXT"))) << "row " << i;
        }
        if (rising) {
            EXPECT_EQ(0, CountIn(canvas, prices, Scheme("DOWNTEXT"))) << "row " << i;
        }
    }
    // Codes in the time colour on the left.
    EXPECT_GT(CountIn(canvas, CRect(0, 0, 60, kMoverRows * kRow), Scheme("PLUG_TIME_COLOR1")), 5 * 40);
}

TEST_F(DarkPanelSections, VolumeRatioBarIsRisingUpToItsSplitAndFallingBeyond)
{
    CRect band(0, 0, kWidth, 24);
    DibCanvas canvas(kWidth, 24, Scheme("PLUG_BGCOLOR"));
    kiv_skin::KivDraw kit;
    DrawVolumeRatio(canvas.dc(), kit, band);
    CRect bar = VolumeRatioBar(band);
    int split = VolumeRatioSplit(bar);
    // The lit strip starts in the colour itself on the bar's top row.
    EXPECT_EQ(Scheme("UPTEXT"), canvas.Pixel(bar.left, bar.top));
    EXPECT_EQ(Scheme("UPTEXT"), canvas.Pixel(split - 1, bar.top));
    EXPECT_EQ(Scheme("DOWNTEXT"), canvas.Pixel(split, bar.top));
    EXPECT_EQ(Scheme("DOWNTEXT"), canvas.Pixel(bar.right - 1, bar.top));
    EXPECT_EQ(Scheme("PLUG_BGCOLOR"), canvas.Pixel(bar.left, bar.top - 1));
    EXPECT_GT(CountIn(canvas, CRect(0, 0, bar.left, 24), Scheme("UPTEXT")), 40);      // 12.3万 58%
    EXPECT_GT(CountIn(canvas, CRect(bar.right, 0, kWidth, 24), Scheme("DOWNTEXT")), 40);  // 42% 8.9万
}

TEST_F(DarkPanelSections, IntradayChartHasBothAxesAndThePriceLine)
{
    CRect band(0, 0, kWidth, 132);
    DibCanvas canvas(kWidth, 132, Scheme("PLUG_BGCOLOR"));
    kiv_skin::KivDraw kit;
    DrawIntradayChart(canvas.dc(), kit, band);
    int originX = 52, originY = 132 - 18;
    EXPECT_EQ(Scheme("AXIS"), canvas.Pixel(originX, originY - 40));  // the price axis
    EXPECT_EQ(Scheme("AXIS"), canvas.Pixel(originX + 100, originY));  // the minute axis
    EXPECT_GT(CountIn(canvas, CRect(0, 0, originX, 132), Scheme("AXIS")), 100);  // price labels
    EXPECT_GT(CountIn(canvas, CRect(originX + 1, 0, kWidth, originY), Scheme("EQUTEXT")), 240);
}

TEST_F(DarkGallery, UnknownSchemeWritesNothing)
{
    ScratchDir folder;
    EXPECT_FALSE(RenderSchemeGallery("no_such_scheme", folder.dir()));
    EXPECT_FALSE(FileExists(folder.Path("no_such_scheme_panel.png")));
    EXPECT_FALSE(FileExists(folder.Path("no_such_scheme_pieces.png")));
    EXPECT_FALSE(FileExists(folder.Path("no_such_scheme_markup.png")));
    EXPECT_FALSE(FileExists(folder.Path("no_such_scheme_contrast.png")));
    EXPECT_FALSE(FileExists(folder.Path("no_such_scheme_vision.png")));
}

TEST_F(DarkGallery, FolderThatCannotBeMadeFails)
{
    ScratchDir folder;
    WriteFileBytes(folder.Path("file"), "not a folder");
    EXPECT_FALSE(RenderSchemeGallery("dark", folder.Path("file\\gallery")));
}

TEST(PngWriter, RefusesAnEmptyPicture)
{
    ScratchDir folder;
    uint32_t pixel = 0xFF000000u;
    EXPECT_EQ(E_INVALIDARG, WritePng(Wide(folder.Path("empty.png")), 0, 1, &pixel));
    EXPECT_EQ(E_INVALIDARG, WritePng(Wide(folder.Path("empty.png")), 1, 1, nullptr));
    EXPECT_FALSE(FileExists(folder.Path("empty.png")));
}

TEST(PngWriter, KeepsEveryChannelOfEveryPixel)
{
    ScratchDir folder;
    const uint32_t pixels[] = {0xFF102030u, 0x80FFFFFFu, 0x00000000u, 0xFFABCDEFu, 0xFF000001u, 0x7F7F7F7Fu};
    ASSERT_EQ(S_OK, WritePng(Wide(folder.Path("six.png")), 3, 2, pixels));
    DecodedPng png = ReadPng(Wide(folder.Path("six.png")));
    ASSERT_EQ(S_OK, png.result);
    EXPECT_TRUE(png.bgra);
    ASSERT_EQ(3, png.width);
    ASSERT_EQ(2, png.height);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(pixels[i], png.pixels[i]) << "pixel " << i;
}
