// The style manager on the sample schemes installed beside this program. The tests run in file
// order in one process: the manager is a process-wide singleton.
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_data.h"
#include "support/dc_state.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

using namespace kiv_skin;

namespace {

const char* const kColorKeys[] = {
    "DEFCOLOR", "BACKGROUND", "PLUG_BGCOLOR", "PLUG_FRAME", "PLUG_SELCOLOR", "PLUG_TITLE_BGCOLOR",
    "PLUG_TITLE_TEXT", "PLUG_TIME_COLOR1", "PLUG_BTN_BGCOLOR", "PLUG_BTN_BGCOLOR_HOVER",
    "PLUG_BTN_BGCOLOR_PRESSED", "PLUG_BTN_TEXTCOLOR", "AXIS", "SCROLLBARTEXT", "SCROLLBARLINE",
    "SCROLLBARBACK", "UPTEXT", "EQUTEXT", "DOWNTEXT"};
const char* const kFontKeys[] = {"DEFAULT", "PLUG_TITLE", "PLUG_STDFONT", "SMALL"};
const char* const kBitmapKeys[] = {"KIV_BTN", "KIV_TOOL", "KIV_MARK", "KIV_DOT", "KIV_FRAME",
                                   "IDB_ICONS", "IDB_ICONREV", "IDB_ICONREVBLACK", "IMG_RISE", "IMG_STOP"};

std::string ColorFontFile(const char* scheme)
{
    return ExeDir() + "cfg\\kiv_skin\\" + scheme + "\\colorfont.xml";
}

BITMAP BitmapInfo(const CBitmap* bitmap)
{
    BITMAP info = {};
    bitmap->GetObject(sizeof(info), &info);
    return info;
}

}  // namespace

// A name is known once the catalogue is read (the style dialog reads it too).
TEST(SampleSchemes, LoadStyleBeforeInitChangesNothing)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle("light"));
    ASSERT_EQ(1, StyleCatalogue::Instance()->LoadCatalogue());
    EXPECT_EQ(1, mgr->LoadStyle("light"));
    EXPECT_STREQ("", mgr->GetCurrentStyle());
    EXPECT_EQ(0xFFFFFFFFu, mgr->GetColor("BACKGROUND"));
    EXPECT_EQ(0u, mgr->GetTransparentColor("IDB_IMAGES"));
    EXPECT_EQ(nullptr, mgr->GetFont("DEFAULT"));
}

TEST(SampleSchemes, InitLoadsTheDarkDefault)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    ASSERT_EQ(1, mgr->InitStyleMgr());
    EXPECT_STREQ("dark", mgr->GetCurrentStyle());
    EXPECT_EQ(RGB(0, 0, 0), mgr->GetColor("PLUG_BGCOLOR"));
    COLORREF up = mgr->GetColor("UPTEXT"), down = mgr->GetColor("DOWNTEXT");
    EXPECT_GT(GetRValue(up), GetGValue(up));      // rise is red
    EXPECT_GT(GetGValue(down), GetRValue(down));  // fall is green
}

TEST(SampleSchemes, EverySchemeDefinesEveryKeyTheLibraryLooksUp)
{
    for (const char* scheme : {"dark", "light", "navy"}) {
        ColorTable colors;
        FontTable fonts;
        ASSERT_EQ(1, LoadColors(colors, ColorFontFile(scheme).c_str())) << scheme;
        ASSERT_TRUE(LoadFonts(ColorFontFile(scheme).c_str(), fonts)) << scheme;
        for (const char* key : kColorKeys) {
            bool found = false;
            for (const ColorEntry& e : colors.entries) found = found || e.name == key;
            EXPECT_TRUE(found) << scheme << " lacks colour " << key;
            EXPECT_NE(0xFFFFFFFFu, LookupColor(colors, key)) << scheme << " " << key;
            EXPECT_FALSE(GetColorDes(colors, key).IsEmpty()) << scheme << " " << key;
        }
        for (const char* key : kFontKeys) EXPECT_EQ(1u, fonts.fonts.count(key)) << scheme << " lacks font " << key;
    }
}

TEST(SampleSchemes, ResourcesOfTheActiveScheme)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    for (const char* key : kBitmapKeys) EXPECT_NE(nullptr, mgr->GetBitmap(key)) << key;
    EXPECT_EQ(21, BitmapInfo(mgr->GetBitmap("KIV_BTN")).bmHeight);
    EXPECT_EQ(28 * 23, BitmapInfo(mgr->GetBitmap("IDB_ICONS")).bmWidth);
    BITMAP cell = BitmapInfo(mgr->GetBitmap("IMG_RISE"));
    EXPECT_EQ(16, cell.bmWidth);
    EXPECT_EQ(17, cell.bmHeight);
    const CImageList* strip = mgr->GetImageList("IDB_IMAGES");
    ASSERT_NE(nullptr, strip);
    EXPECT_EQ(12, strip->GetImageCount());
    EXPECT_EQ(nullptr, mgr->GetImageList("IMG_RISE"));
    EXPECT_EQ(RGB(255, 0, 255), mgr->GetTransparentColor("IDB_IMAGES"));
    EXPECT_EQ(RGB(255, 0, 255), mgr->GetTransparentColor("IMG_RISE"));
    LOGFONTA lf = {};
    ASSERT_NE(nullptr, mgr->GetFont("PLUG_TITLE"));
    mgr->GetFont("PLUG_TITLE")->GetObject(sizeof(lf), &lf);
    EXPECT_EQ(700, lf.lfWeight);
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", lf.lfFaceName);  // 宋体
    EXPECT_EQ(mgr->GetFont("DEFAULT"), mgr->GetFont("NO_SUCH_FONT"));
}

// A second InitStyleMgr answers 1 without reading the files again.
TEST(SampleSchemes, InitAgainLoadsNothing)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    std::string original = ReadFileBytes(ColorFontFile("dark"));
    std::string changed = original;
    size_t at = changed.find("name=\"PLUG_BGCOLOR\" value=\"") + 27;
    changed.replace(at, 10, "0x00123456");
    WriteFileBytes(ColorFontFile("dark"), changed);
    EXPECT_EQ(1, mgr->InitStyleMgr());
    WriteFileBytes(ColorFontFile("dark"), original);
    EXPECT_EQ(RGB(0, 0, 0), mgr->GetColor("PLUG_BGCOLOR"));
}

TEST(SampleSchemes, LoadStyleRejectsEmptyAndUnknownNames)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle(""));
    EXPECT_EQ(0, mgr->LoadStyle("Dark"));
    EXPECT_EQ(0, mgr->LoadStyle("no such scheme"));
    EXPECT_STREQ("dark", mgr->GetCurrentStyle());
}

TEST(SampleSchemes, LoadStyleTrimsForTheLookUpButKeepsTheNameAsGiven)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    CString name = "  light ";
    ASSERT_EQ(1, mgr->LoadStyle(name));
    EXPECT_STREQ("  light ", name);
    EXPECT_STREQ("  light ", mgr->GetCurrentStyle());
    COLORREF bg = mgr->GetColor("PLUG_BGCOLOR");
    EXPECT_GT(GetRValue(bg) + GetGValue(bg) + GetBValue(bg), 600);  // a light panel
}

TEST(SampleSchemes, SwitchingSchemesAThousandTimesLeaksNoGdiObject)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    ASSERT_EQ(1, mgr->LoadStyle("dark"));
    ASSERT_EQ(1, mgr->LoadStyle("navy"));
    int before = GdiProbeSlot();
    for (int i = 0; i < 500; ++i) {
        ASSERT_EQ(1, mgr->LoadStyle("dark"));
        ASSERT_EQ(1, mgr->LoadStyle("navy"));
    }
    EXPECT_EQ(before, GdiProbeSlot());
    EXPECT_NE(nullptr, mgr->GetBitmap("KIV_BTN"));
}

TEST(SampleSchemes, CopiesShareTheStyleData)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    KivStyleMgr* copy = new KivStyleMgr(*mgr);  // never deleted: its destructor is private
    EXPECT_EQ(mgr->GetFont("DEFAULT"), copy->GetFont("DEFAULT"));
    EXPECT_STREQ(mgr->GetCurrentStyle(), copy->GetCurrentStyle());
}
