// The library installed in a folder whose name ends in a double-byte character with 0x5C as its
// second byte ("功" in Big5, "乗" in GBK), run under that code page with the folder as its working
// directory: every style's colours, fonts and images, the DPI settings and a message catalogue
// must load from there.
#include "intl/catalogue_files.h"
#include "kiv_skin/display/dpi_scale.h"
#include "kiv_skin/intl/kiv_intl.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_data.h"
#include "support/test_files.h"
#include <gtest/gtest.h>
#include <cstdlib>
#include <cstring>
#include <tinyxml.h>
#include <vector>

using namespace kiv_skin;

namespace {

// The code page LC_ALL asks Wine for.
UINT ExpectedCodePage()
{
    const char* lc = std::getenv("LC_ALL");
    if (lc && std::strncmp(lc, "zh_TW", 5) == 0) return 950;
    if (lc && std::strncmp(lc, "zh_CN", 5) == 0) return 936;
    return 0;
}

struct ImageNames {
    std::vector<std::string> images;                     // stand-alone images and cells
    std::vector<std::pair<std::string, int>> strips;    // strips with their number of cells
};

// The keys an image configuration names, read with TinyXML independently of the library.
ImageNames ReadImageNames(const char* path)
{
    ImageNames names;
    TiXmlDocument doc;
    if (!doc.LoadFile(path) || !doc.RootElement()) return names;
    for (TiXmlElement* e = doc.RootElement()->FirstChildElement(); e; e = e->NextSiblingElement()) {
        if (std::strcmp(e->Value(), "image") == 0) names.images.push_back(e->Attribute("name"));
        if (std::strcmp(e->Value(), "imagelist") != 0) continue;
        int cells = 0;
        for (TiXmlElement* c = e->FirstChildElement("image"); c; c = c->NextSiblingElement("image"), ++cells)
            names.images.push_back(c->Attribute("name"));
        names.strips.emplace_back(e->Attribute("name"), cells);
    }
    return names;
}

}  // namespace

TEST(InstalledFolder, EndsInADoubleByteCharacterWhoseSecondByteIsABackslash)
{
    ASSERT_NE(0u, ExpectedCodePage()) << "LC_ALL names zh_TW or zh_CN";
    ASSERT_EQ(ExpectedCodePage(), GetACP());
    std::string dir = ExeDir();
    ASSERT_GE(dir.size(), 4u);
    EXPECT_EQ('\\', dir[dir.size() - 2]);
    EXPECT_TRUE(IsDBCSLeadByte(static_cast<BYTE>(dir[dir.size() - 3])));
    char current[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, current);
    EXPECT_EQ(dir, std::string(current) + "\\");
}

TEST(InstalledFolder, TheManagerLoadsTheDefaultStyle)
{
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    ASSERT_EQ(1, mgr->InitStyleMgr());
    EXPECT_STREQ("dark", mgr->GetCurrentStyle());
    EXPECT_NE(0xFFFFFFFFu, mgr->GetColor("BACKGROUND"));
    EXPECT_NE(nullptr, mgr->GetFont("DEFAULT"));
    const CBitmap* frame = mgr->GetBitmap("KIV_FRAME");
    ASSERT_NE(nullptr, frame);
    EXPECT_NE(nullptr, frame->m_hObject);
}

TEST(InstalledFolder, EveryStyleLoadsEveryColourFontAndImage)
{
    StyleCatalogue* catalogue = StyleCatalogue::Instance();
    ASSERT_EQ(1, catalogue->LoadCatalogue());
    ASSERT_EQ(3u, catalogue->m_entries.size());
    for (const StyleEntry& entry : catalogue->m_entries) {
        SCOPED_TRACE(entry.name.GetString());
        EXPECT_EQ(0, std::string(entry.img).find(ExeDir()));
        StyleData data;
        ASSERT_EQ(1, LoadStyleData(data, entry));
        EXPECT_NE(0xFFFFFFFFu, LookupColor(data.colors, "PLUG_BGCOLOR"));
        EXPECT_NE(nullptr, LookupFont(data.fonts, "PLUG_TITLE"));
        ImageNames names = ReadImageNames(entry.img);
        ASSERT_GT(names.images.size(), 10u);
        for (const std::string& key : names.images) {
            const CBitmap* bitmap = data.images.getBitmap(key.c_str());
            ASSERT_NE(nullptr, bitmap) << key;
            BITMAP info = {};
            EXPECT_EQ(static_cast<int>(sizeof(info)), bitmap->GetObject(sizeof(info), &info)) << key;
            EXPECT_GT(info.bmWidth, 0) << key;
        }
        ASSERT_FALSE(names.strips.empty());
        for (const auto& strip : names.strips) {
            const CImageList* list = data.images.getImageList(strip.first.c_str());
            ASSERT_NE(nullptr, list) << strip.first;
            EXPECT_EQ(strip.second, list->GetImageCount()) << strip.first;
        }
    }
}

// cfg\dpi.ini in the working directory sets a design DPI of 48 across and 192 down.
TEST(InstalledFolder, TheDpiSettingsAreRead)
{
    DPIScale* dpi = DPIScale::GetInstance();
    int screen = GetDeviceCaps(CClientDC(nullptr), LOGPIXELSX);
    EXPECT_EQ(MulDiv(48, screen, 48), dpi->XLP2DP(48));
    EXPECT_EQ(MulDiv(192, screen, 192), dpi->YLP2DP(192));
    EXPECT_EQ(MulDiv(10, screen, 48), dpi->XLP2DP(10));
    EXPECT_EQ(MulDiv(10, screen, 192), dpi->YLP2DP(10));
    EXPECT_NE(dpi->XLP2DP(10), dpi->YLP2DP(10));
}

TEST(InstalledFolder, AMessageCatalogueBesideTheProgramLoads)
{
    const char kOpenZh[] = "\xB4\xF2\xBF\xAA";  // a translation's bytes, returned as stored
    CatalogueFile file("zh_TW", "folder", Mox(Record("Open", kOpenZh)));
    KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_ZH_TW, "folder");
    EXPECT_EQ(KivIntl::LANGUAGE_ZH_TW, KivIntl::Instance().GetPackageLanguage());
    EXPECT_STREQ(kOpenZh, KivIntl::Instance().GetText("Open"));
}
