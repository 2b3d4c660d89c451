// The dark scheme's contrast sheet and its panel seen with each colour-vision deficiency, as the
// gallery wrote them: every drawn pair on its ground, verdicts in the number kivlint's model
// gives, the panel's pixels mapped through the model, and the figures' Markdown tables.
#include "demo/contrast_figures.h"
#include "demo/contrast_sheet.h"
#include "demo/report_style.h"
#include "demo/vision_sheet.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "dark_gallery.h"
#include <string>

namespace {

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
    for (const PairFigure& figure : PairFigures()) (figure.passes ? passes : fails) += 1;
    for (const DirectionFigure& figure : DirectionFigures())
        if (figure.vision->simulated) (figure.passes ? passes : fails) += 1;
    ASSERT_GT(passes + fails, 16);
    const int discAndWord = 150;  // a 16-pixel disc less its sign, and the word
    int green = Count(s_contrast, kReportPass), red = Count(s_contrast, kReportFail);
    EXPECT_GE(green, passes * discAndWord);
    EXPECT_LE(green, passes * 2 * discAndWord);
    EXPECT_GE(red, fails * discAndWord);
    EXPECT_LE(red, fails * 2 * discAndWord);
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
                          kivlint::NameOf(figure.pair->kind) + " | " + Printed("%.1f:1", figure.needed) + " | " +
                          Printed("%.2f", figure.ratio) + (figure.passes ? " pass |" : " **FAIL** |");
        EXPECT_NE(std::string::npos, tables.find(row)) << row;
    }
    for (const DirectionFigure& figure : dark.directions) {
        std::string row = std::string("| ") + figure.vision->name + " | " + Printed("%.1f", figure.distance) + " (" +
                          figure.closest->first + "/" + figure.closest->second + ")";
        EXPECT_NE(std::string::npos, tables.find(row)) << row;
    }
}
