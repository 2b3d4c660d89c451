// Two-colour percentage bars: flat when thin, with the kept asymmetry of the flat form; lit from
// a strip of shaded colours when at least 4 across; an outline out to a split beyond the bar.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"

using kiv_skin::KivDraw;

namespace {

const COLORREF kFirst = RGB(200, 40, 40);
const COLORREF kSecond = RGB(40, 180, 60);

}  // namespace

using TestSchemeGauges = TestScheme;

TEST_F(TestSchemeGauges, ThinHorizontalBarIsFlatAndLeavesItsFirstPartsLastRow)
{
    Sheet sheet(50, 6);
    CRect bar(2, 2, 42, 4);
    KivDraw::Draw3DPercentBar(sheet.dc(), &bar, 12, kFirst, kSecond, 1);
    EXPECT_EQ(30 * 2, sheet.Count(kSecond, {12, 2, 42, 4})) << "the second part is painted whole";
    EXPECT_EQ(10, sheet.Count(kFirst, {2, 2, 12, 3}));
    EXPECT_EQ(10, sheet.Count(kSentinel, {2, 3, 12, 4})) << "the first part's last row stays unpainted";
    EXPECT_EQ(50 * 6 - 30 * 2 - 10, sheet.Count(kSentinel, {0, 0, 50, 6}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeGauges, FourHighHorizontalBarIsLit)
{
    Sheet sheet(50, 8);
    CRect bar(0, 2, 40, 6);
    KivDraw::Draw3DPercentBar(sheet.dc(), &bar, 10, kFirst, kSecond, 1);
    // A lit strip of length 4 weighs 0, 10000, 5000, 0 toward 224 per channel.
    COLORREF firstRows[4] = {kFirst, RGB(224, 224, 224), RGB(212, 132, 132), kFirst};
    COLORREF secondRows[4] = {kSecond, RGB(224, 224, 224), RGB(132, 202, 142), kSecond};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(10, sheet.Count(firstRows[row], {0, 2 + row, 10, 3 + row})) << "first part, row " << row;
        EXPECT_EQ(30, sheet.Count(secondRows[row], {10, 2 + row, 40, 3 + row})) << "second part, row " << row;
    }
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeGauges, SplitBeyondTheBarOutlinesOutToIt)
{
    Sheet sheet(40, 6);
    CRect bar(0, 1, 20, 3);
    KivDraw::Draw3DPercentBar(sheet.dc(), &bar, 30, kFirst, kSecond, 1);
    EXPECT_EQ(20, sheet.Count(kFirst, {0, 1, 20, 2}));
    EXPECT_EQ(12, sheet.Count(kFirst, {19, 1, 31, 2})) << "the outline's top from 19 to 30";
    EXPECT_EQ(12, sheet.Count(kFirst, {19, 2, 31, 3})) << "and its bottom";
    EXPECT_EQ(kSentinel, sheet.At(31, 1));
    EXPECT_EQ(0, sheet.Count(kSecond, {0, 0, 40, 6}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeGauges, ThinVerticalBarFillsFirstFromTheSplitDownAndLeavesItsLastColumn)
{
    Sheet sheet(6, 50);
    CRect bar(2, 0, 4, 40);
    KivDraw::Draw3DPercentBar(sheet.dc(), &bar, 30, kFirst, kSecond, 0);
    EXPECT_EQ(2 * 30, sheet.Count(kSecond, {2, 0, 4, 30}));
    EXPECT_EQ(10, sheet.Count(kFirst, {2, 30, 3, 40}));
    EXPECT_EQ(10, sheet.Count(kSentinel, {3, 30, 4, 40})) << "the first part's last column stays unpainted";
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeGauges, VerticalSplitAboveTheBarOutlinesUpToIt)
{
    Sheet sheet(6, 50);
    CRect bar(1, 20, 4, 40);
    KivDraw::Draw3DPercentBar(sheet.dc(), &bar, 10, kFirst, kSecond, 0);
    EXPECT_EQ(2, sheet.Count(kFirst, {1, 10, 3, 11})) << "the outline's far side at the split";
    EXPECT_EQ(10, sheet.Count(kFirst, {1, 10, 2, 20})) << "its left side";
    EXPECT_EQ(2 * 20, sheet.Count(kFirst, {1, 20, 3, 40})) << "the bar, less its last column";
    EXPECT_EQ(0, sheet.Count(kSecond, {0, 0, 6, 50}));
}

TEST_F(TestSchemeGauges, WideVerticalBarIsLitAcross)
{
    Sheet sheet(10, 50);
    CRect bar(0, 0, 4, 40);
    KivDraw::Draw3DPercentBar(sheet.dc(), &bar, 10, kFirst, kSecond, 0);
    COLORREF firstColumns[4] = {kFirst, RGB(224, 224, 224), RGB(212, 132, 132), kFirst};
    COLORREF secondColumns[4] = {kSecond, RGB(224, 224, 224), RGB(132, 202, 142), kSecond};
    for (int column = 0; column < 4; ++column) {
        EXPECT_EQ(10, sheet.Count(secondColumns[column], {column, 0, column + 1, 10})) << column;
        EXPECT_EQ(30, sheet.Count(firstColumns[column], {column, 10, column + 1, 40})) << column;
    }
}
