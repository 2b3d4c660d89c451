// The dark scheme's contrast sheet and its panel seen with each colour-vision deficiency, as the
// gallery wrote them: every drawn pair on its ground, verdicts in the number kivlint's model
// gives, the panel's pixels mapped through the model, and the figures' Markdown tables; a pair
// holding no colour is left unjudged.
#include "demo/contrast_figures.h"
#include "demo/contrast_sheet.h"
#include "demo/report_style.h"
#include "demo/vision_sheet.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "dark_gallery.h"
#include "support/dib_canvas.h"
#include "support/scheme_files.h"
#include <string>

namespace {

// The least a verdict paints in its colour: a 16-pixel disc less its sign, and the word.
const int kDiscAndWord = 150;

int Count(const DecodedPng& png, COLORREF color)
{
    int n = 0;
    for (int y = 0; y < png.height; ++y)
        for (int x = 0; x < png.width; ++x) n += png.Color(x, y) == color ? 1 : 0;
    return n;
}

}  // namespace

TEST_F(DarkGallery, ContrastSheetDrawsEveryPairsInkOnASwatchOfItsGround)
{
    CSize size = ContrastSheetSize();
    ASSERT_EQ(size.cx, s_contrast.width);
    ASSERT_EQ(size.cy, s_contrast.height);
    EXPECT_EQ(kReportPage, s_contrast.Color(0, 0));
    for (const PairFigure& figure : PairFigures()) {
        // A swatch is 250 by 30 pixels, of which the ink covers far less than a third.
        EXPECT_GT(Count(s_contrast, figure.ground), 5000) << figure.pair->ink << " on " << figure.pair->ground;
        EXPECT_GT(Count(s_contrast, figure.ink), 20) << figure.pair->ink << " on " << figure.pair->ground;
    }
}

// One pass or fail disc per pair and per deficiency, as many of each as the model gives; none of a
// kind the model does not give.
TEST_F(DarkGallery, ContrastSheetsVerdictsAreTheModels)
{
    int passes = 0, fails = 0;
    for (const PairFigure& figure : PairFigures())
        if (figure.judged) (figure.passes ? passes : fails) += 1;
    for (const DirectionFigure& figure : DirectionFigures())
        if (figure.vision->simulated && figure.closest != nullptr) (figure.passes ? passes : fails) += 1;
    ASSERT_GT(passes + fails, 16);
    int green = Count(s_contrast, kReportPass), red = Count(s_contrast, kReportFail);
    EXPECT_GE(green, passes * kDiscAndWord);
    EXPECT_LE(green, passes * 2 * kDiscAndWord);
    EXPECT_GE(red, fails * kDiscAndWord);
    EXPECT_LE(red, fails * 2 * kDiscAndWord);
}

// The first panel is the gallery's panel itself; each of the others is that panel with every
// pixel as the model simulates it.
TEST_F(DarkGallery, VisionSheetShowsThePanelThenItThroughEachDeficiency)
{
    CSize size = VisionSheetSize();
    ASSERT_EQ(size.cx, s_vision.width);
    ASSERT_EQ(size.cy, s_vision.height);
    for (int i = 0; i < 4; ++i) {
        CRect area = VisionPanelArea(i);
        ASSERT_EQ(s_panel.width, area.Width());
        ASSERT_EQ(s_panel.height, area.Height());
        int differing = 0;
        for (int y = 0; y < area.Height(); ++y)
            for (int x = 0; x < area.Width(); ++x) {
                COLORREF expected = SeenAs(s_panel.Color(x, y), kVisions[i]);
                differing += s_vision.Color(area.left + x, area.top + y) != expected ? 1 : 0;
            }
        EXPECT_EQ(0, differing) << kVisions[i].name;
    }
}

TEST_F(DarkGallery, ContrastTablesHoldEachPairsRatioAndEachVisionsDistance)
{
    ASSERT_TRUE(kiv_skin::KivStyleMgr::GetInstance()->LoadStyle("dark"));
    SchemeFigures dark = FiguresOf("dark");
    std::string tables = ContrastTablesMarkdown({dark});
    EXPECT_NE(std::string::npos, tables.find("| Ink | Ground | Kind | Needs | dark |"));
    for (const PairFigure& figure : dark.pairs) {
        std::string row = std::string("| `") + figure.pair->ink + "` | `" + figure.pair->ground + "` | " +
                          kivlint::NameOf(figure.pair->kind) + " | " + Plain(figure.needed) + ":1 | " +
                          Cut(figure.ratio, 2) + (figure.passes ? " pass |" : " **FAIL** |");
        EXPECT_NE(std::string::npos, tables.find(row)) << row;
    }
    for (const DirectionFigure& figure : dark.directions) {
        ASSERT_NE(nullptr, figure.closest) << figure.vision->name;
        std::string row = std::string("| ") + figure.vision->name + " | " + Cut(figure.distance, 1) + " (" +
                          figure.closest->first + "/" + figure.closest->second + ")";
        EXPECT_NE(std::string::npos, tables.find(row)) << row;
    }
}

// A colour the library reads as no colour leaves the pairs holding it unjudged, as kivlint does:
// neither pass nor fail, in the figures and in the tables.
TEST_F(DarkGallery, ContrastFiguresLeaveAPairWithNoColourUnjudged)
{
    auto* styles = kiv_skin::KivStyleMgr::GetInstance();
    {
        SchemeFilesKeeper files;
        std::string text = files.Original("dark");
        const std::string value = "name=\"SCROLLBARTEXT\" value=\"";
        size_t at = text.find(value);
        ASSERT_NE(std::string::npos, at);
        text.replace(at + value.size(), text.find('"', at + value.size()) - at - value.size(), "255");
        WriteFileBytes(files.Path("dark"), text);
        ASSERT_TRUE(styles->LoadStyle("dark"));
        ASSERT_EQ(kNoSchemeColour, styles->GetColor("SCROLLBARTEXT"));
        SchemeFigures figures = FiguresOf("dark");
        int verdicts = 3;  // one per deficiency
        for (const PairFigure& figure : figures.pairs) {
            bool noColour = std::string(figure.pair->ink) == "SCROLLBARTEXT";
            EXPECT_EQ(!noColour, figure.judged) << figure.pair->ink << " on " << figure.pair->ground;
            verdicts += figure.judged ? 1 : 0;
        }
        std::string row = "| `SCROLLBARTEXT` | `SCROLLBARBACK` | graphic | 3:1 | no colour |";
        EXPECT_NE(std::string::npos, ContrastTablesMarkdown({figures}).find(row));
        // The sheet draws no verdict for it: a verdict's worth fewer pixels than the gallery's.
        CSize size = ContrastSheetSize();
        DibCanvas sheet(size.cx, size.cy);
        DrawContrastSheet(sheet.dc(), "no colour");
        int verdictPixels = 0;
        for (int y = 0; y < size.cy; ++y)
            for (int x = 0; x < size.cx; ++x) {
                COLORREF pixel = sheet.Pixel(x, y);
                verdictPixels += pixel == kReportPass || pixel == kReportFail ? 1 : 0;
            }
        EXPECT_GE(verdictPixels, verdicts * kDiscAndWord);
        int galleryPixels = Count(s_contrast, kReportPass) + Count(s_contrast, kReportFail);
        EXPECT_LE(verdictPixels, galleryPixels - kDiscAndWord);
    }
    ASSERT_TRUE(styles->LoadStyle("dark"));
}
