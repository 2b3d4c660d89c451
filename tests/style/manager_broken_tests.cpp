// The style manager facing an empty configuration tree and broken scheme files. The files are
// written beside this program; the tests run in file order in one process, since the manager is
// a process-wide singleton whose state carries from one step to the next.
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include "support/bitmap_files.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

using kiv_skin::KivStyleMgr;

namespace {

std::string CfgDir() { return ExeDir() + "cfg\\kiv_skin\\"; }

std::string ColorFont(const char* bg, const char* fontKey)
{
    return std::string("<?xml version=\"1.0\" encoding=\"GB2312\" ?><globals><colors>"
                       "<color name=\"DEFCOLOR\" value=\"0x00010101\" />"
                       "<color name=\"PLUG_BGCOLOR\" value=\"") + bg + "\" /></colors><fonts>"
           "<font kivfontname=\"" + fontKey + "\" height=\"-12\" /></fonts></globals>";
}

std::string Images(const char* bmp)
{
    return std::string("<images><image name=\"KIV_FRAME\" file=\"broken_skin\\") + bmp +
           "\" mask=\"255,0,255\" /></images>";
}

std::string Style(const char* name, const char* colorfont, const char* img)
{
    return std::string("<style name=\"") + name + "\"><colorfont file=\"" + colorfont +
           "\" /><img file=\"" + img + "\" /></style>";
}

void WriteSchemes()
{
    WriteFileBytes(ExeDir() + "broken_skin\\frame.bmp", BmpBytes(SolidGrid(4, 4, RGB(10, 20, 30))));
    WriteFileBytes(CfgDir() + "good.xml", ColorFont("0x00112233", "DEFAULT"));
    WriteFileBytes(CfgDir() + "other.xml", ColorFont("0x00445566", "SMALL"));
    WriteFileBytes(CfgDir() + "bad.xml", "<globals><colors><color name=\"X\"");
    WriteFileBytes(CfgDir() + "nofonts.xml", "<globals><colors><color name=\"PLUG_BGCOLOR\" "
                                             "value=\"0x00778899\" /></colors></globals>");
    WriteFileBytes(CfgDir() + "images.xml", Images("frame.bmp"));
    WriteFileBytes(CfgDir() + "missing_bmp.xml", Images("absent.bmp"));
    WriteFileBytes(CfgDir() + "broken_images.xml", "<images><image name=\"KIV_FRAME\"");
    WriteFileBytes(CfgDir() + "style.xml",
                   "<config>" + Style("good", "good.xml", "images.xml") +
                   Style("badcolors", "bad.xml", "images.xml") +
                   Style("nofonts", "nofonts.xml", "images.xml") +
                   Style("brokenimg", "other.xml", "broken_images.xml") +
                   Style("nobmp", "good.xml", "missing_bmp.xml") +
                   Style("noimgfile", "good.xml", "absent_images.xml") + "</config>");
}

}  // namespace

TEST(BrokenSchemes, EmptyConfigurationTreeFailsInit)
{
    WriteFileBytes(CfgDir() + "style.xml", "<config></config>");
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->InitStyleMgr());  // no style, so no default name
    EXPECT_EQ(0xFFFFFFFFu, mgr->GetColor("PLUG_BGCOLOR"));
}

TEST(BrokenSchemes, RetriedInitSucceedsWithoutLoading)
{
    WriteSchemes();
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(1, mgr->InitStyleMgr());
    EXPECT_EQ(0xFFFFFFFFu, mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_EQ(nullptr, mgr->GetFont("DEFAULT"));
}

TEST(BrokenSchemes, LoadStyleUsesTheCatalogueReadByTheFailedInit)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle("good"));  // the catalogue was read while it was empty
}

TEST(BrokenSchemes, GoodSchemeLoads)
{
    ASSERT_EQ(1, kiv_skin::StyleCatalogue::Instance()->LoadCatalogue());
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    ASSERT_EQ(1, mgr->LoadStyle("good"));
    EXPECT_EQ(RGB(0x33, 0x22, 0x11), mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_NE(nullptr, mgr->GetFont("DEFAULT"));
    EXPECT_NE(nullptr, mgr->GetBitmap("KIV_FRAME"));
    EXPECT_EQ(RGB(255, 0, 255), mgr->GetTransparentColor("KIV_FRAME"));
}

TEST(BrokenSchemes, MalformedColourFileFailsAndKeepsTheRest)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle("badcolors"));
    // The colours are emptied; unknown keys answer the previous scheme's "DEFCOLOR".
    EXPECT_EQ(RGB(1, 1, 1), mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_NE(nullptr, mgr->GetFont("DEFAULT"));
    EXPECT_NE(nullptr, mgr->GetBitmap("KIV_FRAME"));
    EXPECT_STREQ("good", mgr->GetCurrentStyle());
}

TEST(BrokenSchemes, FileWithoutFontsLoadsColoursButNoFonts)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle("nofonts"));
    EXPECT_EQ(RGB(0x99, 0x88, 0x77), mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_EQ(nullptr, mgr->GetFont("DEFAULT"));
    EXPECT_NE(nullptr, mgr->GetBitmap("KIV_FRAME"));
    EXPECT_STREQ("good", mgr->GetCurrentStyle());
}

TEST(BrokenSchemes, MissingBitmapDropsOnlyThatImage)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    ASSERT_EQ(1, mgr->LoadStyle("nobmp"));
    EXPECT_EQ(nullptr, mgr->GetBitmap("KIV_FRAME"));
    EXPECT_EQ(0u, mgr->GetTransparentColor("KIV_FRAME"));
    EXPECT_NE(nullptr, mgr->GetFont("DEFAULT"));
    ASSERT_EQ(1, mgr->LoadStyle("good"));
    EXPECT_NE(nullptr, mgr->GetBitmap("KIV_FRAME"));
}

// A failed switch of image configuration empties the images but keeps the stored path, so
// switching back to the previous scheme answers 1 without reloading its images.
TEST(BrokenSchemes, BrokenImageConfigurationLosesTheImages)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle("brokenimg"));
    EXPECT_EQ(RGB(0x66, 0x55, 0x44), mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_NE(nullptr, mgr->GetFont("SMALL"));
    EXPECT_EQ(nullptr, mgr->GetBitmap("KIV_FRAME"));
    EXPECT_STREQ("good", mgr->GetCurrentStyle());
    EXPECT_EQ(1, mgr->LoadStyle("good"));
    EXPECT_EQ(RGB(0x33, 0x22, 0x11), mgr->GetColor("PLUG_BGCOLOR"));
    EXPECT_EQ(nullptr, mgr->GetBitmap("KIV_FRAME"));
}

TEST(BrokenSchemes, MissingImageConfigurationFails)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    EXPECT_EQ(0, mgr->LoadStyle("noimgfile"));
    EXPECT_EQ(RGB(0x33, 0x22, 0x11), mgr->GetColor("PLUG_BGCOLOR"));
}
