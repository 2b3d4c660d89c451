// The scroll bar's painting, on pixels: the background piece, arrow colours, faces cut from the
// scheme's button strip (compared with the strip file itself), the thumb's minimum length, the
// gradient and plain pieces, and the caller's context left as it was.
#include "scroll_fixture.h"
#include <memory>

namespace {

const COLORREF kLine = 0x00808000;   // SCROLLBARLINE of the test schemes
const COLORREF kText = 0x00909000;   // SCROLLBARTEXT
const COLORREF kBar = 0x00707000;    // SCROLLBARBACK
const COLORREF kAxis = 0x00A0A000;   // AXIS
const COLORREF kTestBack = scheme::kPlugBackground;

// The test schemes' button strip, read from its file.
class Strip {
public:
    Strip() : m_canvas(240, 21, kSentinel)
    {
        HBITMAP bitmap = static_cast<HBITMAP>(
            ::LoadImageA(nullptr, "skin\\dark\\kiv_btn.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
        HDC memory = ::CreateCompatibleDC(nullptr);
        HGDIOBJ previous = ::SelectObject(memory, bitmap);
        ::BitBlt(m_canvas.dc()->m_hDC, 0, 0, 240, 21, memory, 0, 0, SRCCOPY);
        ::SelectObject(memory, previous);
        ::DeleteDC(memory);
        ::DeleteObject(bitmap);
    }
    COLORREF At(int x, int y) const { return m_canvas.Pixel(x, y); }
    // Pixel (x, y) of face cell n.
    COLORREF Cell(int n, int x, int y) const { return At(21 * n + x, y); }

private:
    DibCanvas m_canvas;
};

// The standard bar drawn at its place; its pixel (x, y) is the sheet's (84 + x, y).
struct DrawnBar {
    explicit DrawnBar(int pos = 0, CRect area = kArea, int lineHeight = 10) : sheet(120, 110)
    {
        bar.SetScrollInfo(area, lineHeight, 100, 0);
        bar.SetScrollPos(pos);
        bar.Draw(sheet.dc());
    }
    COLORREF At(int x, int y) const { return sheet.At(84 + x, y); }

    PluginScrollBar bar;
    Sheet sheet;
};

// Checks that the face of cell n lies at (left, top) of a bar, w x h, with its bottom and right
// edges in the cell's corner colour.
testing::AssertionResult FaceAt(const DrawnBar& drawn, const Strip& strip, int n, int left, int top, int w, int h)
{
    COLORREF corner = strip.Cell(n, 0, 0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            bool edge = y == h - 1 || (x == w - 1 && y >= 2);
            COLORREF want = edge ? corner : strip.Cell(n, x, y);
            if (drawn.At(left + x, top + y) != want)
                return testing::AssertionFailure() << "face pixel (" << x << ", " << y << ") is " << std::hex
                                                   << drawn.At(left + x, top + y) << ", not " << want;
        }
    return testing::AssertionSuccess();
}

// At position 40 both arrows can scroll, in the enabled colour; the arrows' and the thumb's faces
// come from the strip's cell.
void ExpectEnabledArrowsAndFaces(COLORREF enabled, int cell)
{
    Strip strip;
    DrawnBar drawn(40);
    EXPECT_EQ(enabled, drawn.At(8, 10));
    EXPECT_EQ(enabled, drawn.At(8, 92));
    EXPECT_TRUE(FaceAt(drawn, strip, cell, 2, 44, 13, 6));  // thumb 43-51, drawn 44-50
    for (int i = 0; i < 12; ++i) EXPECT_EQ(strip.Cell(cell, i, 1), drawn.At(2 + i, 3)) << i;
    EXPECT_TRUE(drawn.sheet.check.Unchanged());
}

class ScrollDrawing : public TestScheme {};

// Suites whose every test runs on the named scheme of the test catalogue.
template <const char* Scheme> class OnScheme : public ::testing::Test {
protected:
    void SetUp() override { UseScheme(Scheme); }
};

TEST_F(ScrollDrawing, NothingWithoutContent)
{
    Sheet sheet(120, 110);
    PluginScrollBar bar;
    bar.SetScrollInfo(kArea, 10, 1, 0);
    bar.Draw(sheet.dc());
    EXPECT_EQ(120 * 110, sheet.Count(kSentinel, {0, 0, 120, 110}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(ScrollDrawing, BackgroundPieceIsFramedAndFillsTheTrack)
{
    DrawnBar drawn;
    EXPECT_EQ(kLine, drawn.At(0, 50));
    EXPECT_EQ(kLine, drawn.At(16, 50));
    EXPECT_EQ(kLine, drawn.At(8, 0));
    EXPECT_EQ(kLine, drawn.At(8, 101));
    EXPECT_EQ(kTestBack, drawn.At(1, 50));
    EXPECT_EQ(kTestBack, drawn.At(8, 50));  // the track has no fill of its own
    EXPECT_EQ(kSentinel, drawn.sheet.At(83, 50));
    EXPECT_EQ(kSentinel, drawn.sheet.At(101, 50));
    EXPECT_EQ(kSentinel, drawn.sheet.At(90, 102));
    EXPECT_TRUE(drawn.sheet.check.Unchanged());
}

// The first arrow's triangle covers (8, 10), the second's (8, 92); enabled arrows on the test
// scheme's dark background are its complement.
TEST_F(ScrollDrawing, ArrowsAtTheStartAreDisabledUpAndEnabledDown)
{
    DrawnBar drawn(0);
    EXPECT_EQ(kText, drawn.At(8, 10));
    EXPECT_EQ(0xFFFFFF - kTestBack, drawn.At(8, 92));
    EXPECT_TRUE(drawn.sheet.check.Unchanged());
}

TEST_F(ScrollDrawing, ArrowsAtTheEndAreEnabledUpAndDisabledDown)
{
    DrawnBar drawn(90);
    EXPECT_EQ(0xFFFFFF - kTestBack, drawn.At(8, 10));
    EXPECT_EQ(kText, drawn.At(8, 92));
}

TEST_F(ScrollDrawing, DarkFacesAndComplementArrowsOnTheTestScheme) { ExpectEnabledArrowsAndFaces(0xFFFFFF - kTestBack, 1); }

TEST_F(ScrollDrawing, SeparatorsInTheAxisColour)
{
    DrawnBar drawn(40);
    for (int x = 2; x <= 14; ++x) {
        EXPECT_EQ(kAxis, drawn.At(x, 15)) << x;
        EXPECT_EQ(kAxis, drawn.At(x, 87)) << x;
    }
}

TEST_F(ScrollDrawing, ArrowFacesAreThirteenPixelCornersOfTheDarkCell)
{
    Strip strip;
    DrawnBar drawn(0);
    // Rows and columns 0-2 of the 13 x 13 first arrow hold no triangle.
    for (int i = 0; i < 12; ++i)
        for (int j = 0; j < 3; ++j) {
            EXPECT_EQ(strip.Cell(1, i, j), drawn.At(2 + i, 2 + j)) << i << "," << j;
            EXPECT_EQ(strip.Cell(1, j, i), drawn.At(2 + j, 2 + i)) << j << "," << i;
        }
    for (int i = 0; i < 13; ++i) EXPECT_EQ(strip.Cell(1, 0, 0), drawn.At(2 + i, 14)) << i;
}

TEST_F(ScrollDrawing, ThumbFaceOfTheDarkCell)
{
    Strip strip;
    DrawnBar drawn(0);  // thumb 15-23 of the inset bar, drawn 16-22
    EXPECT_TRUE(FaceAt(drawn, strip, 1, 2, 16, 13, 6));
    EXPECT_TRUE(drawn.sheet.check.Unchanged());
}

TEST_F(ScrollDrawing, OneAndTwoPixelThumbsAreDrawnThreeAndFourLong)
{
    Strip strip;
    // Bar 33 high: track 15-18, thumb 15-18, inset to one pixel, drawn 15-17.
    DrawnBar one(0, CRect(0, 1, 100, 32), 8);
    EXPECT_TRUE(FaceAt(one, strip, 1, 2, 15, 13, 3));
    EXPECT_EQ(kAxis, one.At(5, 18));  // the second arrow's separator
    // Bar 34 high: track and thumb 15-19, inset to two pixels, drawn 15-18.
    DrawnBar two(0, CRect(0, 1, 100, 33), 8);
    EXPECT_TRUE(FaceAt(two, strip, 1, 2, 15, 13, 4));
}

TEST_F(ScrollDrawing, GradientPiecesStretchAStripColumnInABlackFrame)
{
    Strip strip;
    for (int type : {100, 132, 200, 300}) {
        Sheet sheet(40, 30);
        PluginScrollBar bar;
        CRect piece(3, 4, 33, 25);  // 30 x 21
        Internals::DrawPiece(bar, sheet.dc(), &piece, type, 0);
        int column = type >= 200 ? type - 200 : type + 68;
        for (int y = 1; y < 20; ++y) {
            EXPECT_EQ(strip.At(column, y), sheet.At(10, 4 + y)) << type << " row " << y;
            EXPECT_EQ(strip.At(column, y), sheet.At(31, 4 + y)) << type << " row " << y;
        }
        EXPECT_EQ(0u, sheet.At(3, 10)) << type;
        EXPECT_EQ(0u, sheet.At(32, 10)) << type;
        EXPECT_EQ(0u, sheet.At(10, 4)) << type;
        EXPECT_EQ(0u, sheet.At(10, 24)) << type;
        EXPECT_EQ(kSentinel, sheet.At(33, 10)) << type;
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

// Bars at the start, in the middle and at the end, and every kind of piece, hand back a busy
// caller's context with the caller's own modes as they found it.
TEST_F(ScrollDrawing, DrawingRestoresABusyCallersOwnModes)
{
    for (int pos : {0, 45, 90}) {
        PluginScrollBar bar;
        MakeStandard(bar);
        bar.SetScrollPos(pos);
        Sheet sheet(120, 110, Caller::BusyWithOwnModes);
        bar.Draw(sheet.dc());
        EXPECT_TRUE(sheet.check.Unchanged()) << "position " << pos;
    }
    for (int type : {-3, -2, -1, 0, 1, 2, 4, 5, 100, 132, 200, 300}) {
        Sheet sheet(40, 30, Caller::BusyWithOwnModes);
        PluginScrollBar bar;
        CRect piece(3, 4, 33, 25);
        Internals::DrawPiece(bar, sheet.dc(), &piece, type, 1);
        EXPECT_TRUE(sheet.check.Unchanged()) << "piece " << type;
    }
}

// Before a Draw the colour fields are unset; one Draw fetches them.
void FetchColours(PluginScrollBar& bar)
{
    Sheet scratch(120, 110);
    MakeStandard(bar);
    bar.Draw(scratch.dc());
}

TEST_F(ScrollDrawing, FramedPlainPieces)
{
    PluginScrollBar bar;
    FetchColours(bar);
    for (int type : {2, 4, 5, -3}) {
        Sheet sheet(30, 30);
        CRect piece(2, 2, 20, 20);
        Internals::DrawPiece(bar, sheet.dc(), &piece, type, 0);
        EXPECT_EQ(kLine, sheet.At(2, 10)) << type;
        EXPECT_EQ(kLine, sheet.At(19, 10)) << type;
        EXPECT_EQ(type == 4 ? kTestBack : kBar, sheet.At(10, 10)) << type;
        EXPECT_EQ(kSentinel, sheet.At(20, 10)) << type;
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(ScrollDrawing, OtherPiecesAreUnframedFills)
{
    PluginScrollBar bar;
    FetchColours(bar);
    for (int type : {3, 6, 99, 133, 199, 301, -4, 1000}) {
        Sheet sheet(30, 30);
        CRect piece(2, 2, 20, 20);
        Internals::DrawPiece(bar, sheet.dc(), &piece, type, 0);
        EXPECT_EQ(18 * 18, sheet.Count(kBar, piece)) << type;
        EXPECT_EQ(kSentinel, sheet.At(20, 10)) << type;
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(ScrollDrawing, ShapedPiecesCutTheirCorners)
{
    PluginScrollBar bar;
    FetchColours(bar);
    Sheet bottomCut(30, 30), rightCut(30, 30);
    CRect piece(2, 2, 22, 22);
    Internals::DrawPiece(bar, bottomCut.dc(), &piece, 2, 1);
    Internals::DrawPiece(bar, rightCut.dc(), &piece, 2, 2);
    EXPECT_EQ(kSentinel, bottomCut.At(2, 21));   // bottom left cut
    EXPECT_EQ(kSentinel, bottomCut.At(21, 21));  // bottom right cut
    EXPECT_EQ(kLine, bottomCut.At(21, 2));
    EXPECT_EQ(kSentinel, rightCut.At(21, 2));    // top right cut
    EXPECT_EQ(kLine, rightCut.At(2, 21));
    EXPECT_EQ(kBar, rightCut.At(10, 10));
    EXPECT_TRUE(bottomCut.check.Unchanged());
    EXPECT_TRUE(rightCut.check.Unchanged());
}

TEST_F(ScrollDrawing, LargeFacesStretchTheCellsLastColumnAndRow)
{
    Strip strip;
    Sheet sheet(60, 60);
    PluginScrollBar bar;
    FetchColours(bar);
    CRect piece(0, 0, 40, 40);
    Internals::DrawPiece(bar, sheet.dc(), &piece, 0, 0);
    EXPECT_EQ(strip.Cell(1, 20, 5), sheet.At(30, 5));
    EXPECT_EQ(strip.Cell(1, 5, 20), sheet.At(5, 30));
    EXPECT_EQ(strip.Cell(1, 20, 20), sheet.At(30, 30));
    EXPECT_EQ(strip.Cell(1, 0, 0), sheet.At(20, 39));  // bottom edge in the corner colour
}

const char kWhiteScheme[] = "white";
using ScrollDrawingWhite = OnScheme<kWhiteScheme>;

TEST_F(ScrollDrawingWhite, LightFacesAndBlackArrows) { ExpectEnabledArrowsAndFaces(0, 5); }

TEST_F(ScrollDrawingWhite, DisabledArrowsKeepTheTextColour)
{
    DrawnBar drawn(0);
    EXPECT_EQ(kText, drawn.At(8, 10));
}

const char kBlackScheme[] = "black";
using ScrollDrawingBlack = OnScheme<kBlackScheme>;

TEST_F(ScrollDrawingBlack, DarkFacesAndWhiteArrows) { ExpectEnabledArrowsAndFaces(0xFFFFFF, 1); }

const char kBareScheme[] = "bare";
using ScrollDrawingBare = OnScheme<kBareScheme>;

TEST_F(ScrollDrawingBare, WithoutTheStripStripColumnsAreFillsAndFacesHaveNoArt)
{
    PluginScrollBar bar;
    FetchColours(bar);
    Sheet sheet(30, 30);
    CRect piece(2, 2, 20, 20);
    Internals::DrawPiece(bar, sheet.dc(), &piece, 250, 0);
    EXPECT_EQ(18 * 18, sheet.Count(kBar, piece));
    // Types 100 to 132 still take the gradient path: its black frame, around no column art.
    Sheet gradient(30, 30);
    Internals::DrawPiece(bar, gradient.dc(), &piece, 120, 0);
    EXPECT_EQ(0u, gradient.At(2, 10));
    EXPECT_EQ(0u, gradient.At(19, 10));
    EXPECT_EQ(0u, gradient.At(10, 19));
    EXPECT_NE(kBar, gradient.At(10, 10));
    EXPECT_TRUE(gradient.check.Unchanged());
    DrawnBar drawn(40);
    EXPECT_EQ(kLine, drawn.At(0, 50));  // the background piece still
    EXPECT_TRUE(drawn.sheet.check.Unchanged());
}

}  // namespace
