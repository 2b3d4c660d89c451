// DPIScale at real screen DPIs. Each suite runs in its own process (see CMakeLists.txt) with the
// screen DPI and working directory named in its suite name.
#include "kiv_skin/display/dpi_scale.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

using kiv_skin::DPIScale;

namespace {

int ScreenDpi(int index)
{
    CClientDC screen(nullptr);
    return screen.GetDeviceCaps(index);
}

void ExpectIdentity(DPIScale* dpi)
{
    for (int v : {-1000, -13, -1, 0, 1, 7, 10, 13, 99999}) {
        EXPECT_EQ(v, dpi->XLP2DP(v));
        EXPECT_EQ(v, dpi->YLP2DP(v));
        EXPECT_EQ(v, dpi->XDP2LP(v));
        EXPECT_EQ(v, dpi->YDP2LP(v));
    }
    EXPECT_EQ(CRect(1, 2, 3, 4), dpi->LP2DP(CRect(1, 2, 3, 4)));
    EXPECT_EQ(CPoint(5, 6), dpi->DP2LP(CPoint(5, 6)));
    EXPECT_EQ(CSize(7, 8), dpi->LP2DP(CSize(7, 8)));
}

// The conversions with no settings file at a 120-DPI screen: 120/96 on both axes.
void ExpectRatio120(DPIScale* dpi)
{
    EXPECT_EQ(13, dpi->XLP2DP(10));
    EXPECT_EQ(-13, dpi->XLP2DP(-10));
    EXPECT_EQ(13, dpi->YLP2DP(10));
    EXPECT_EQ(10, dpi->XDP2LP(13));
    EXPECT_EQ(-10, dpi->YDP2LP(-13));
    EXPECT_EQ(5, dpi->XLP2DP(4));
    EXPECT_EQ(0, dpi->XDP2LP(0));
}

}  // namespace

TEST(NoIniAt96, AllConversionsAreTheIdentity)
{
    ASSERT_EQ(96, ScreenDpi(LOGPIXELSX));
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_TRUE(dpi->IsEnable());  // a missing file means scale 1
    ExpectIdentity(dpi);
}

TEST(NoIniAt96, GetInstanceAnswersTheSameObject)
{
    EXPECT_EQ(DPIScale::GetInstance(), DPIScale::GetInstance());
}

TEST(NoIniAt120, ConvertsWithRoundingHalvesAwayFromZero)
{
    ASSERT_EQ(120, ScreenDpi(LOGPIXELSX));
    ASSERT_EQ(120, ScreenDpi(LOGPIXELSY));
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_TRUE(dpi->IsEnable());
    ExpectRatio120(dpi);
    EXPECT_EQ(3, dpi->XLP2DP(2));    // 2.5 rounds up
    EXPECT_EQ(-3, dpi->XLP2DP(-2));  // -2.5 rounds away from zero
}

TEST(NoIniAt120, RectanglesPointsAndSizes)
{
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_EQ(CRect(13, 25, 125, 250), dpi->LP2DP(CRect(10, 20, 100, 200)));
    EXPECT_EQ(CRect(10, 20, 100, 200), dpi->DP2LP(CRect(13, 25, 125, 250)));
    EXPECT_EQ(CPoint(13, -13), dpi->LP2DP(CPoint(10, -10)));
    EXPECT_EQ(CSize(10, 10), dpi->DP2LP(CSize(13, 13)));
}

TEST(NoIniAt120, MulDivOverflowGivesMinusOne)
{
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_EQ(-1, dpi->XLP2DP(2000000000));
}

TEST(NoIniAt144, EachRectangleEdgeRoundsOnItsOwn)
{
    ASSERT_EQ(144, ScreenDpi(LOGPIXELSX));
    DPIScale* dpi = DPIScale::GetInstance();
    CRect odd(1, 1, 4, 6);  // width 3: 1.5 and 6 round to 2 and 6, so the width becomes 4
    CRect converted = dpi->LP2DP(odd);
    EXPECT_EQ(CRect(2, 2, 6, 9), converted);
    EXPECT_EQ(5, dpi->XLP2DP(odd.Width()));  // 4.5 rounds to 5
    EXPECT_NE(dpi->XLP2DP(odd.Width()), converted.Width());
}

TEST(NoIniAt144, ConvertsBothWays)
{
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_EQ(15, dpi->XLP2DP(10));
    EXPECT_EQ(-15, dpi->YLP2DP(-10));
    EXPECT_EQ(10, dpi->XDP2LP(15));
    EXPECT_EQ(7, dpi->YDP2LP(10));  // 6.67
}

TEST(DifferentAxesAt120, EachAxisUsesItsOwnRatio)
{
    DPIScale* dpi = DPIScale::GetInstance();  // xpix 96, ypix 120
    EXPECT_EQ(13, dpi->XLP2DP(10));
    EXPECT_EQ(10, dpi->YLP2DP(10));
    EXPECT_EQ(CPoint(13, 10), dpi->LP2DP(CPoint(10, 10)));
    EXPECT_EQ(CSize(10, 10), dpi->DP2LP(CSize(13, 10)));
    EXPECT_EQ(CRect(13, 10, 25, 20), dpi->LP2DP(CRect(10, 10, 20, 20)));
}

TEST(ScaleTwoAt120, ConvertsExactlyAsScaleOne)
{
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_TRUE(dpi->IsEnable());
    ExpectRatio120(dpi);
}

TEST(NegativeScaleAt120, IsEnabledButConvertsNothing)
{
    ASSERT_EQ(120, ScreenDpi(LOGPIXELSX));  // at 96 the identity would hold anyway
    ASSERT_EQ(120, ScreenDpi(LOGPIXELSY));
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_TRUE(dpi->IsEnable());
    ExpectIdentity(dpi);
}

TEST(ScaleOffAt144, IsNotEnabledAndConvertsNothing)
{
    ASSERT_EQ(144, ScreenDpi(LOGPIXELSX));
    ASSERT_EQ(144, ScreenDpi(LOGPIXELSY));
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_FALSE(dpi->IsEnable());
    ExpectIdentity(dpi);
}

TEST(ZeroDesignDpiAt120, LogicalToDeviceGivesMinusOneOnThatAxis)
{
    ASSERT_EQ(120, ScreenDpi(LOGPIXELSY));
    DPIScale* dpi = DPIScale::GetInstance();  // xpix 0
    EXPECT_EQ(-1, dpi->XLP2DP(10));
    EXPECT_EQ(-1, dpi->XLP2DP(0));
    EXPECT_EQ(0, dpi->XDP2LP(10));
    EXPECT_EQ(13, dpi->YLP2DP(10));
    EXPECT_EQ(CPoint(-1, 13), dpi->LP2DP(CPoint(10, 10)));
}

// A settings file beside the executable is not read: the one under the working directory is.
TEST(WorkingDirectoryAt120, ReadsTheFileUnderTheWorkingDirectory)
{
    char exe[MAX_PATH];
    GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string cfg = std::string(exe, strrchr(exe, '\\') + 1) + "cfg";
    WriteFileBytes(cfg + "\\dpi.ini", "[Setting]\r\nscale=0\r\n");
    DPIScale* dpi = DPIScale::GetInstance();  // working directory: scale 1, design DPI 48
    DeleteFileA((cfg + "\\dpi.ini").c_str());
    RemoveDirectoryA(cfg.c_str());
    EXPECT_TRUE(dpi->IsEnable());
    EXPECT_EQ(25, dpi->XLP2DP(10));
    EXPECT_EQ(25, dpi->YLP2DP(10));
    EXPECT_EQ(4, dpi->XDP2LP(10));
}

TEST(WorkingDirectoryAt120, CopyAssignmentCopiesTheSettings)
{
    DPIScale* dpi = DPIScale::GetInstance();
    // The second object comes from the implicit copy constructor, which GCC calls deprecated
    // next to a user-declared assignment; the class keeps both public.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-copy"
    DPIScale copy = *dpi;
#pragma GCC diagnostic pop
    DPIScale& result = (copy = *dpi);
    EXPECT_EQ(&copy, &result);
    EXPECT_NE(dpi, &copy);
    EXPECT_EQ(25, copy.XLP2DP(10));
    EXPECT_EQ(4, copy.XDP2LP(10));
}

// A 200 % screen: a logical unit is two pixels, and a pixel is half a unit, halves rounding away
// from zero.
TEST(NoIniAt192, UnitsDoubleAndPixelsHalve)
{
    ASSERT_EQ(192, ScreenDpi(LOGPIXELSX));
    ASSERT_EQ(192, ScreenDpi(LOGPIXELSY));
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_EQ(20, dpi->XLP2DP(10));
    EXPECT_EQ(-20, dpi->YLP2DP(-10));
    EXPECT_EQ(2, dpi->XDP2LP(3));
    EXPECT_EQ(-2, dpi->YDP2LP(-3));
    EXPECT_EQ(1, dpi->XDP2LP(1));
    EXPECT_EQ(CRect(2, 4, 880, 400), dpi->LP2DP(CRect(1, 2, 440, 200)));
    EXPECT_EQ(CRect(1, 1, 440, 200), dpi->DP2LP(CRect(1, 2, 879, 399)));
}

// Twice a value past half the integer range no longer fits: the conversion answers -1.
TEST(NoIniAt192, DoublingPastTheIntegerRangeGivesMinusOne)
{
    DPIScale* dpi = DPIScale::GetInstance();
    EXPECT_EQ(2147483646, dpi->XLP2DP(1073741823));
    EXPECT_EQ(-1, dpi->XLP2DP(1073741824));
}
