// The image manager: reading an image configuration, stand-alone images, strips cut into image
// lists and their cells, transparent colours, and reloading. Bitmap files are written by the
// tests into a folder of their own below the executable's folder, which "file" attributes are
// relative to.
#include "kiv_skin/display/image_manager.h"
#include "support/bitmap_files.h"
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

using kiv_skin::ParseMaskColor;

namespace {

const COLORREF kRed = RGB(255, 0, 0);  // 0x000000FF: the colour at which strips are cut
const COLORREF kWhite = RGB(255, 255, 255);
// The 16-colour palette without red: colours that survive a 16-colour image list unchanged.
const COLORREF kPalette[] = {RGB(0, 0, 0),     RGB(128, 0, 0),     RGB(0, 128, 0),     RGB(128, 128, 0),
                             RGB(0, 0, 128),   RGB(128, 0, 128),   RGB(0, 128, 128),   RGB(192, 192, 192),
                             RGB(128, 128, 128), RGB(0, 255, 0),   RGB(255, 255, 0),   RGB(0, 0, 255),
                             RGB(255, 0, 255), RGB(0, 255, 255),   kWhite};
const int kPaletteSize = sizeof(kPalette) / sizeof(kPalette[0]);

const int kCellWidth = 4;
const int kCellHeight = 3;

// A strip of cells whose pixels are all different palette patterns.
PixelGrid Strip(int cells, int seed = 0)
{
    PixelGrid grid = SolidGrid(cells * kCellWidth, kCellHeight, 0);
    for (int y = 0; y < grid.height; ++y) {
        for (int x = 0; x < grid.width; ++x) grid.Set(x, y, kPalette[(seed + x * 3 + y * 5) % kPaletteSize]);
    }
    return grid;
}

// Cell `index` of a strip as it should come out of the manager.
PixelGrid CellOf(const PixelGrid& strip, int index)
{
    PixelGrid cell = SolidGrid(kCellWidth, kCellHeight, 0);
    for (int y = 0; y < kCellHeight; ++y) {
        for (int x = 0; x < kCellWidth; ++x) {
            COLORREF c = strip.At(index * kCellWidth + x, y);
            cell.Set(x, y, c == kRed ? RGB(0, 0, 0) : c);
        }
    }
    return cell;
}

::testing::AssertionResult SamePixels(const PixelGrid& expected, const CBitmap* bitmap)
{
    if (!bitmap) return ::testing::AssertionFailure() << "no bitmap";
    PixelGrid actual = BitmapPixels(*bitmap);
    if (actual.width != expected.width || actual.height != expected.height)
        return ::testing::AssertionFailure() << "size " << actual.width << "x" << actual.height;
    for (int y = 0; y < expected.height; ++y) {
        for (int x = 0; x < expected.width; ++x) {
            if (actual.At(x, y) != expected.At(x, y))
                return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") is " << std::hex
                                                     << actual.At(x, y) << ", not " << expected.At(x, y);
        }
    }
    return ::testing::AssertionSuccess();
}

class ImageManagerTest : public ::testing::Test {
protected:
    ImageManagerTest() : folder(ExeDir()) {}

    // The name of a file in the test folder as a "file" attribute gives it.
    std::string File(const std::string& name) const
    {
        return folder.dir().substr(ExeDir().size()) + "\\" + name;
    }
    void WriteBmp(const std::string& name, const PixelGrid& grid) { WriteFileBytes(folder.Path(name), BmpBytes(grid)); }
    CString WriteConfig(const std::string& body, const std::string& name = "images.xml")
    {
        WriteFileBytes(folder.Path(name), "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<images>\n" + body + "</images>\n");
        return folder.Path(name).c_str();
    }
    std::string Image(const std::string& name, const std::string& file, const std::string& extra = "") const
    {
        return "<image name=\"" + name + "\" file=\"" + File(file) + "\" " + extra + " />\n";
    }
    std::string List(const std::string& name, const std::string& file, const std::string& children,
                     const std::string& extra = "width=\"4\" height=\"3\"") const
    {
        return "<imagelist name=\"" + name + "\" file=\"" + File(file) + "\" " + extra + ">\n" + children +
               "</imagelist>\n";
    }

    ScratchDir folder;
    ImageManager images;
};

std::string Cell(const std::string& name, const std::string& extra = "")
{
    return "<image name=\"" + name + "\" " + extra + " />\n";
}

}  // namespace

// ---- The three-number colour rule ----

TEST(MaskColor, ThreeDecimalNumbersAreRedGreenBlue)
{
    EXPECT_EQ(0x00000000u, ParseMaskColor("0,0"));
    EXPECT_EQ(0x001E140Au, ParseMaskColor("10;20;30"));
    EXPECT_EQ(0x00030201u, ParseMaskColor("r=1 g=2 b=3"));
    EXPECT_EQ(0x00FF00FFu, ParseMaskColor("255,0,255"));
}

TEST(MaskColor, MissingNumbersCountZeroAndExtraOnesAreIgnored)
{
    EXPECT_EQ(0u, ParseMaskColor(""));
    EXPECT_EQ(0u, ParseMaskColor(nullptr));
    EXPECT_EQ(0u, ParseMaskColor("none"));
    EXPECT_EQ(0x000000FFu, ParseMaskColor("255"));
    EXPECT_EQ(0x00000201u, ParseMaskColor("1 2"));
    EXPECT_EQ(0x00030201u, ParseMaskColor("1,2,3,4"));
}

TEST(MaskColor, MinusSignsAreSkippedAndLargeNumbersSpill)
{
    EXPECT_EQ(0x00000705u, ParseMaskColor("-5,-7"));
    EXPECT_EQ(0x0000012Cu, ParseMaskColor("300,0,0"));
    EXPECT_EQ(0x00012C00u, ParseMaskColor("0,300,0"));
    EXPECT_EQ(0x012C0000u, ParseMaskColor("0,0,300"));
}

// ---- Stand-alone images ----

TEST_F(ImageManagerTest, AStandAloneImageKeepsItsPixelsAndMask)
{
    PixelGrid picture = SolidGrid(5, 4, RGB(12, 34, 56));
    picture.Set(0, 0, RGB(250, 1, 2));
    picture.Set(4, 3, RGB(3, 200, 100));
    picture.Set(2, 1, kRed);
    WriteBmp("picture.bmp", picture);
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(Image("logo", "picture.bmp", "mask=\"10;20;30\""))));
    EXPECT_TRUE(SamePixels(picture, images.getBitmap("logo")));
    EXPECT_EQ(0x001E140Au, images.getTransparentColor("logo"));
    EXPECT_EQ(nullptr, images.getImageList("logo"));
}

TEST_F(ImageManagerTest, AnImageWithoutMaskHasTransparentColourZero)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(Image("a", "picture.bmp") + Image("b", "picture.bmp", "mask=\"\""))));
    EXPECT_NE(nullptr, images.getBitmap("a"));
    EXPECT_EQ(0u, images.getTransparentColor("a"));
    EXPECT_EQ(0u, images.getTransparentColor("b"));
}

TEST_F(ImageManagerTest, AnImageWhoseFileCannotBeLoadedIsLeftOut)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    WriteFileBytes(folder.Path("text.bmp"), "not a bitmap");
    std::string body = Image("missing", "nothing.bmp", "mask=\"1,2,3\"") + Image("text", "text.bmp") +
                       "<image name=\"nofile\" />\n" + Image("good", "picture.bmp");
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(body)));
    EXPECT_EQ(nullptr, images.getBitmap("missing"));
    EXPECT_EQ(0u, images.getTransparentColor("missing"));
    EXPECT_EQ(nullptr, images.getBitmap("text"));
    EXPECT_EQ(nullptr, images.getBitmap("nofile"));
    EXPECT_NE(nullptr, images.getBitmap("good"));
}

TEST_F(ImageManagerTest, TheFirstImageOfANameWins)
{
    WriteBmp("navy.bmp", SolidGrid(2, 2, RGB(0, 0, 128)));
    WriteBmp("teal.bmp", SolidGrid(2, 2, RGB(0, 128, 128)));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(Image("x", "navy.bmp", "mask=\"1\"") +
                                                    Image("x", "teal.bmp", "mask=\"2\""))));
    EXPECT_TRUE(SamePixels(SolidGrid(2, 2, RGB(0, 0, 128)), images.getBitmap("x")));
    EXPECT_EQ(1u, images.getTransparentColor("x"));
}

TEST_F(ImageManagerTest, KeysAreCaseSensitive)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(Image("Logo", "picture.bmp", "mask=\"9\""))));
    EXPECT_NE(nullptr, images.getBitmap("Logo"));
    EXPECT_EQ(nullptr, images.getBitmap("logo"));
    EXPECT_EQ(0u, images.getTransparentColor("logo"));
}

// ---- Strips ----

TEST_F(ImageManagerTest, CellsAreCutFromTheStripInSixteenColours)
{
    PixelGrid strip = Strip(3);
    WriteBmp("strip.bmp", strip);
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(List("buttons", "strip.bmp", Cell("b0") + Cell("b1") + Cell("b2")))));
    const CImageList* list = images.getImageList("buttons");
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(3, list->GetImageCount());
    for (int i = 0; i < 3; ++i) {
        CString key;
        key.Format("b%d", i);
        EXPECT_TRUE(SamePixels(CellOf(strip, i), images.getBitmap(key))) << i;
    }
}

TEST_F(ImageManagerTest, PixelsOfTheCuttingColourTurnBlack)
{
    PixelGrid strip = Strip(2);
    strip.Set(1, 1, kRed);
    strip.Set(6, 2, kRed);
    WriteBmp("strip.bmp", strip);
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(List("s", "strip.bmp", Cell("c0") + Cell("c1")))));
    PixelGrid c0 = BitmapPixels(*images.getBitmap("c0"));
    PixelGrid c1 = BitmapPixels(*images.getBitmap("c1"));
    EXPECT_EQ(RGB(0, 0, 0), c0.At(1, 1));
    EXPECT_EQ(RGB(0, 0, 0), c1.At(2, 2));
    EXPECT_TRUE(SamePixels(CellOf(strip, 1), images.getBitmap("c1")));
}

TEST_F(ImageManagerTest, CellPositionsCountEveryChildElement)
{
    PixelGrid strip = Strip(3);
    WriteBmp("strip.bmp", strip);
    std::string children = Cell("first") + "<spacer name=\"gap\" />\n<!-- comment -->\n" + Cell("third");
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(List("s", "strip.bmp", children))));
    EXPECT_TRUE(SamePixels(CellOf(strip, 0), images.getBitmap("first")));
    EXPECT_TRUE(SamePixels(CellOf(strip, 2), images.getBitmap("third")));
    EXPECT_EQ(nullptr, images.getBitmap("gap"));
}

TEST_F(ImageManagerTest, ACellBeyondTheStripStaysWhite)
{
    WriteBmp("strip.bmp", Strip(2));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(List("s", "strip.bmp", Cell("a") + Cell("b") + Cell("c")))));
    EXPECT_TRUE(SamePixels(SolidGrid(kCellWidth, kCellHeight, kWhite), images.getBitmap("c")));
}

TEST_F(ImageManagerTest, TheStripsMaskIsTheDefaultOfItsCells)
{
    WriteBmp("strip.bmp", Strip(3));
    std::string children = Cell("plain") + Cell("own", "mask=\"4 5 6\"") + Cell("empty", "mask=\"\"");
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(List("s", "strip.bmp", children, "width=\"4\" height=\"3\" mask=\"1,2,3\""))));
    EXPECT_EQ(0x00030201u, images.getTransparentColor("s"));
    EXPECT_EQ(0x00030201u, images.getTransparentColor("plain"));
    EXPECT_EQ(0x00060504u, images.getTransparentColor("own"));
    EXPECT_EQ(0x00030201u, images.getTransparentColor("empty"));
}

TEST_F(ImageManagerTest, EachKeyAnswersOnlyForItsKind)
{
    WriteBmp("strip.bmp", Strip(2));
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(Image("pic", "picture.bmp") + List("s", "strip.bmp", Cell("cell")))));
    EXPECT_NE(nullptr, images.getImageList("s"));
    EXPECT_EQ(nullptr, images.getBitmap("s"));
    EXPECT_NE(nullptr, images.getBitmap("cell"));
    EXPECT_EQ(nullptr, images.getImageList("cell"));
    EXPECT_EQ(nullptr, images.getImageList("pic"));
    EXPECT_EQ(nullptr, images.getBitmap("unknown"));
    EXPECT_EQ(nullptr, images.getImageList("unknown"));
    EXPECT_EQ(0u, images.getTransparentColor("unknown"));
}

TEST_F(ImageManagerTest, AStripWithoutSizeOrFileAddsNothing)
{
    WriteBmp("strip.bmp", Strip(2));
    std::string body = List("zero", "strip.bmp", Cell("z0"), "width=\"0\" height=\"3\"") +
                       List("flat", "strip.bmp", Cell("f0"), "width=\"4\" height=\"-1\"") +
                       List("nowidth", "strip.bmp", Cell("n0"), "height=\"3\"") +
                       List("missing", "nothing.bmp", Cell("m0"));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(body)));
    for (const char* key : {"zero", "z0", "flat", "f0", "nowidth", "n0", "missing", "m0"}) {
        EXPECT_EQ(nullptr, images.getImageList(key)) << key;
        EXPECT_EQ(nullptr, images.getBitmap(key)) << key;
    }
}

TEST_F(ImageManagerTest, DuplicateNamesKeepTheFirstEntry)
{
    PixelGrid first = Strip(2), second = Strip(2, 7);
    WriteBmp("first.bmp", first);
    WriteBmp("second.bmp", second);
    WriteBmp("picture.bmp", SolidGrid(kCellWidth, kCellHeight, RGB(0, 0, 128)));
    std::string body = Image("pic", "picture.bmp") +
                       List("s", "first.bmp", Cell("a") + Cell("a") + Cell("pic")) +
                       List("s", "second.bmp", Cell("only_in_second"));
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(body)));
    EXPECT_TRUE(SamePixels(CellOf(first, 0), images.getBitmap("a")));
    EXPECT_TRUE(SamePixels(SolidGrid(kCellWidth, kCellHeight, RGB(0, 0, 128)), images.getBitmap("pic")));
    EXPECT_EQ(nullptr, images.getBitmap("only_in_second"));
    EXPECT_EQ(2, images.getImageList("s")->GetImageCount());
}

TEST_F(ImageManagerTest, OnlyTheRootsChildrenAndStripCellsAreRead)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    WriteBmp("strip.bmp", Strip(2));
    std::string body = "<icon name=\"icon\" file=\"" + File("picture.bmp") + "\" />\n<group>\n" +
                       Image("deep", "picture.bmp") + "</group>\n" +
                       List("s", "strip.bmp", "<row>\n" + Cell("nested") + "</row>\n" + Cell("cell")) +
                       "<image name=\"outer\" file=\"" + File("picture.bmp") + "\">\n" + Image("inner", "picture.bmp") + "</image>\n";
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(body)));
    EXPECT_EQ(nullptr, images.getBitmap("icon"));
    EXPECT_EQ(nullptr, images.getBitmap("deep"));
    EXPECT_EQ(nullptr, images.getBitmap("nested"));
    EXPECT_NE(nullptr, images.getBitmap("cell"));
    EXPECT_NE(nullptr, images.getBitmap("outer"));
    EXPECT_EQ(nullptr, images.getBitmap("inner"));
}

TEST_F(ImageManagerTest, AbsurdCellSizesDoNotBreakLoading)
{
    WriteBmp("strip.bmp", Strip(2));
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    std::string body = List("huge", "strip.bmp", Cell("h0"), "width=\"2000000000\" height=\"2000000000\"") +
                       Image("after", "picture.bmp");
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(body)));
    // A cell whose bitmap cannot be made is left out rather than handed out without a handle.
    EXPECT_EQ(nullptr, images.getBitmap("h0"));
    const CBitmap* after = images.getBitmap("after");
    ASSERT_NE(nullptr, after);
    EXPECT_NE(nullptr, after->m_hObject);
}

// The strip's own list, drawn cell by cell with ImageList_Draw, gives each cell's pixels.
TEST_F(ImageManagerTest, TheStripsListDrawsEveryCell)
{
    PixelGrid strip = Strip(3, 1);
    WriteBmp("strip.bmp", strip);
    ASSERT_EQ(1, images.loadImageConfig(WriteConfig(List("s", "strip.bmp", Cell("c0") + Cell("c1") + Cell("c2")))));
    const CImageList* list = images.getImageList("s");
    ASSERT_NE(nullptr, list);
    ASSERT_NE(nullptr, list->m_hImageList);
    ASSERT_EQ(3, list->GetImageCount());
    for (int i = 0; i < 3; ++i) {
        DibCanvas canvas(kCellWidth, kCellHeight, kWhite);
        ASSERT_TRUE(ImageList_Draw(*list, i, canvas.dc()->m_hDC, 0, 0, ILD_NORMAL)) << i;
        PixelGrid expected = CellOf(strip, i);
        for (int y = 0; y < kCellHeight; ++y) {
            for (int x = 0; x < kCellWidth; ++x)
                EXPECT_EQ(expected.At(x, y), canvas.Pixel(x, y)) << "cell " << i << " at " << x << "," << y;
        }
    }
}

// ---- Loading and reloading ----

TEST_F(ImageManagerTest, ABrokenConfigurationAnswersZero)
{
    EXPECT_EQ(0, images.loadImageConfig(folder.Path("absent.xml").c_str()));
    WriteFileBytes(folder.Path("broken.xml"), "<images><image name=\"a\" </images>");
    EXPECT_EQ(0, images.loadImageConfig(folder.Path("broken.xml").c_str()));
    WriteFileBytes(folder.Path("empty.xml"), "");
    EXPECT_EQ(0, images.loadImageConfig(folder.Path("empty.xml").c_str()));
}

TEST_F(ImageManagerTest, TheSamePathIsReadOnce)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    CString path = WriteConfig(Image("old", "picture.bmp"));
    ASSERT_EQ(1, images.loadImageConfig(path));
    WriteConfig(Image("new", "picture.bmp"));
    EXPECT_EQ(1, images.loadImageConfig(path));
    EXPECT_NE(nullptr, images.getBitmap("old"));
    EXPECT_EQ(nullptr, images.getBitmap("new"));
    // The comparison is exact: the same file named in other letters is read again.
    CString other = path.Left(path.GetLength() - 10) + "IMAGES.XML";
    ASSERT_EQ(1, images.loadImageConfig(other));
    EXPECT_EQ(nullptr, images.getBitmap("old"));
    EXPECT_NE(nullptr, images.getBitmap("new"));
}

TEST_F(ImageManagerTest, SwitchingReplacesTheEntries)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    WriteBmp("strip.bmp", Strip(2));
    CString a = WriteConfig(Image("a", "picture.bmp") + List("s", "strip.bmp", Cell("cell")), "a.xml");
    CString b = WriteConfig(Image("b", "picture.bmp"), "b.xml");
    ASSERT_EQ(1, images.loadImageConfig(a));
    ASSERT_EQ(1, images.loadImageConfig(b));
    EXPECT_EQ(nullptr, images.getBitmap("a"));
    EXPECT_EQ(nullptr, images.getImageList("s"));
    EXPECT_EQ(nullptr, images.getBitmap("cell"));
    EXPECT_NE(nullptr, images.getBitmap("b"));
}

TEST_F(ImageManagerTest, AFailedSwitchEmptiesButKeepsThePreviousPath)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    CString a = WriteConfig(Image("a", "picture.bmp"), "a.xml");
    CString c = WriteConfig(Image("c", "picture.bmp"), "c.xml");
    ASSERT_EQ(1, images.loadImageConfig(a));
    EXPECT_EQ(0, images.loadImageConfig(folder.Path("absent.xml").c_str()));
    EXPECT_EQ(nullptr, images.getBitmap("a"));
    EXPECT_EQ(1, images.loadImageConfig(a));  // answers at once: still the stored path
    EXPECT_EQ(nullptr, images.getBitmap("a"));
    ASSERT_EQ(1, images.loadImageConfig(c));
    EXPECT_NE(nullptr, images.getBitmap("c"));
}

TEST_F(ImageManagerTest, AFreshManagerTakesTheEmptyPathAsLoaded)
{
    EXPECT_EQ(1, images.loadImageConfig(""));
    EXPECT_EQ(nullptr, images.getBitmap(""));
}

TEST_F(ImageManagerTest, TheRootElementMayHaveAnyName)
{
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    WriteFileBytes(folder.Path("other.xml"), "<anything>" + Image("a", "picture.bmp") + "</anything>");
    ASSERT_EQ(1, images.loadImageConfig(folder.Path("other.xml").c_str()));
    EXPECT_NE(nullptr, images.getBitmap("a"));
}

// Failure paths leak nothing either: missing and unreadable bitmaps, strips without a bitmap,
// absurd cells and broken XML.
TEST_F(ImageManagerTest, FailedLoadsLeakNoGdiObject)
{
    WriteBmp("picture.bmp", SolidGrid(3, 3, RGB(0, 128, 0)));
    WriteBmp("strip.bmp", Strip(2));
    WriteFileBytes(folder.Path("text.bmp"), "not a bitmap");
    CString missing = WriteConfig(Image("gone", "absent.bmp") + List("s", "absent.bmp", Cell("c")) +
                                      Image("pic", "picture.bmp"), "missing.xml");
    CString unreadable = WriteConfig(Image("text", "text.bmp") + List("t", "text.bmp", Cell("c")) +
                                         List("huge", "strip.bmp", Cell("h"), "width=\"2000000000\" height=\"3\""),
                                     "unreadable.xml");
    WriteFileBytes(folder.Path("broken.xml"), "<images><image name=\"a\" </images>");
    CString broken = folder.Path("broken.xml").c_str();
    auto cycle = [&] {
        ASSERT_EQ(1, images.loadImageConfig(missing));
        ASSERT_EQ(1, images.loadImageConfig(unreadable));
        ASSERT_EQ(0, images.loadImageConfig(broken));
    };
    cycle();
    int before = GdiProbeSlot();
    for (int i = 0; i < 300; ++i) cycle();
    EXPECT_EQ(before, GdiProbeSlot());
    EXPECT_EQ(nullptr, images.getBitmap("gone"));
}

TEST_F(ImageManagerTest, ReloadingAThousandTimesLeaksNoGdiObject)
{
    WriteBmp("picture.bmp", SolidGrid(6, 5, RGB(0, 0, 128)));
    WriteBmp("strip.bmp", Strip(6));
    CString a = WriteConfig(Image("pic", "picture.bmp") +
                                List("s", "strip.bmp", Cell("c0") + Cell("c1") + Cell("c1") + Cell("c3")) +
                                List("s", "strip.bmp", Cell("x")) + Image("pic", "picture.bmp"),
                            "a.xml");
    CString b = WriteConfig(List("t", "strip.bmp", Cell("d0") + Cell("d1") + Cell("d2") + Cell("d3") + Cell("d4") +
                                                       Cell("d5") + Cell("d6")),
                            "b.xml");
    // The probe answers the slot freed last, so it is read after the same step each time.
    auto cycle = [&](int i) {
        ASSERT_EQ(1, images.loadImageConfig(a));
        ASSERT_EQ(1, images.loadImageConfig(b));
        if (i % 10 == 0) {
            ImageManager local;
            ASSERT_EQ(1, local.loadImageConfig(a));
        }
    };
    cycle(0);
    int before = GdiProbeSlot();
    for (int i = 1; i <= 500; ++i) cycle(i);  // ends, like cycle(0), with a local manager
    EXPECT_EQ(before, GdiProbeSlot());
    EXPECT_EQ(6, images.getImageList("t")->GetImageCount());
}

TEST_F(ImageManagerTest, ACellAnswersTheSameBitmapUntilTheNextLoad)
{
    PixelGrid strip = Strip(3);
    WriteBmp("strip.bmp", strip);
    WriteBmp("picture.bmp", SolidGrid(2, 2, kWhite));
    CString a = WriteConfig(List("s", "strip.bmp", Cell("c0") + Cell("c1") + Cell("c2")), "a.xml");
    CString b = WriteConfig(Image("pic", "picture.bmp"), "b.xml");
    ASSERT_EQ(1, images.loadImageConfig(a));
    const CBitmap* second = images.getBitmap("c1");
    const CBitmap* first = images.getBitmap("c0");
    EXPECT_EQ(second, images.getBitmap("c1"));
    EXPECT_EQ(first, images.getBitmap("c0"));
    EXPECT_TRUE(SamePixels(CellOf(strip, 1), second));
    EXPECT_TRUE(SamePixels(CellOf(strip, 0), first));
    EXPECT_TRUE(SamePixels(CellOf(strip, 2), images.getBitmap("c2")));
    EXPECT_TRUE(SamePixels(CellOf(strip, 1), images.getBitmap("c1")));
    ASSERT_EQ(1, images.loadImageConfig(b));
    EXPECT_EQ(nullptr, images.getBitmap("c1"));
}

TEST_F(ImageManagerTest, ReloadingWithEveryCellAskedForLeaksNoGdiObject)
{
    WriteBmp("strip.bmp", Strip(6));
    CString a = WriteConfig(List("s", "strip.bmp", Cell("c0") + Cell("c1") + Cell("c1") + Cell("c3")), "a.xml");
    CString b = WriteConfig(List("t", "strip.bmp", Cell("d0") + Cell("d1") + Cell("d2")), "b.xml");
    auto cycle = [&]() {
        ASSERT_EQ(1, images.loadImageConfig(a));
        for (const char* cell : {"c0", "c1", "c3", "c1"}) ASSERT_NE(nullptr, images.getBitmap(cell));
        ASSERT_EQ(1, images.loadImageConfig(b));
        for (const char* cell : {"d0", "d1", "d2"}) ASSERT_NE(nullptr, images.getBitmap(cell));
    };
    cycle();
    int before = GdiProbeSlot();
    for (int i = 0; i < 300; ++i) cycle();
    EXPECT_EQ(before, GdiProbeSlot());
}

TEST(GdiProbe, GrowsByOnePerLiveObjectWhateverTheOrderOfFrees)
{
    std::vector<HGDIOBJ> objects;
    for (int i = 0; i < 40; ++i) objects.push_back(CreateSolidBrush(RGB(i, 0, 0)));
    // Free every other one, out of order, so that freed slots are scattered.
    for (int i = 0; i < 40; i += 2) DeleteObject(objects[(i * 7) % 40]);
    int before = GdiProbeSlot();
    HGDIOBJ leaked[3] = {CreatePen(PS_SOLID, 1, 0), CreateSolidBrush(0), CreateSolidBrush(1)};
    EXPECT_EQ(before + 3, GdiProbeSlot());
    DeleteObject(leaked[1]);
    EXPECT_EQ(before + 2, GdiProbeSlot());
    DeleteObject(leaked[0]);
    DeleteObject(leaked[2]);
    EXPECT_EQ(before, GdiProbeSlot());
    for (int i = 1; i < 40; i += 2) DeleteObject(objects[i]);
    EXPECT_EQ(before - 20, GdiProbeSlot());
}
