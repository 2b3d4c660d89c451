// The style catalogue, read from the host's configuration "kiv_skin\style" beside this program.
#include "kiv_skin/style/style_catalogue.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

using namespace kiv_skin;

namespace {

class CatalogueTest : public ::testing::Test {
protected:
    void TearDown() override { DeleteFileA(ConfigFile().c_str()); }
    static std::string ConfigFile() { return ExeDir() + "cfg\\kiv_skin\\style.xml"; }
    static std::string Folder() { return ExeDir() + "cfg\\kiv_skin"; }
    int Load(const std::string& styles)
    {
        WriteFileBytes(ConfigFile(), "<config>" + styles + "</config>");
        return catalogue->LoadCatalogue();
    }
    // Makes "keep" the default through a well-ordered style node.
    void SetDefault(const char* keep)
    {
        ASSERT_EQ(1, Load(std::string("<style name=\"") + keep + "\" default=\"1\" />"));
        ASSERT_STREQ(keep, catalogue->m_strDefaultName);
    }
    StyleCatalogue* catalogue = StyleCatalogue::Instance();
};

}  // namespace

// What one caller loads, every later caller of Instance() sees.
TEST_F(CatalogueTest, InstanceIsASingleton)
{
    ASSERT_EQ(1, Load("<style name=\"shared\" default=\"1\" />"));
    StyleCatalogue* later = StyleCatalogue::Instance();
    ASSERT_EQ(1u, later->m_entries.size());
    EXPECT_STREQ("shared", later->m_entries[0].name);
    EXPECT_STREQ("shared", later->m_strDefaultName);
}

TEST_F(CatalogueTest, ReadsStylesInOrderWithFullPaths)
{
    ASSERT_EQ(1, Load("<style name=\"dark\" default=\"1\" des=\"Dark\">"
                      "<colorfont file=\"dark\\colorfont.xml\" /><img file=\"dark\\images.xml\" /></style>"
                      "<other name=\"x\" />"
                      "<style name=\"light\" des=\"Light\"><img file=\"light\\images.xml\" />"
                      "<colorfont file=\"light\\cf.xml\" /><note file=\"ignored\" /></style>"));
    ASSERT_EQ(2u, catalogue->m_entries.size());
    const StyleEntry& dark = catalogue->m_entries[0];
    EXPECT_STREQ("dark", dark.name);
    EXPECT_STREQ("Dark", dark.des);
    EXPECT_EQ(Folder() + "\\dark\\colorfont.xml", std::string(dark.colorfont));
    EXPECT_EQ(Folder() + "\\dark\\images.xml", std::string(dark.img));
    EXPECT_STREQ("light", catalogue->m_entries[1].name);
    EXPECT_EQ(Folder() + "\\light\\cf.xml", std::string(catalogue->m_entries[1].colorfont));
    EXPECT_STREQ("dark", catalogue->m_strDefaultName);
}

TEST_F(CatalogueTest, DefaultTakesTheDescriptionWhenItComesAfterDes)
{
    ASSERT_EQ(1, Load("<style des=\"Blue scheme\" default=\"1\" name=\"Blue\" />"));
    EXPECT_STREQ("Blue scheme", catalogue->m_strDefaultName);
}

TEST_F(CatalogueTest, DefaultBeforeNameGivesAnEmptyDefault)
{
    SetDefault("keep");
    ASSERT_EQ(1, Load("<style default=\"1\" name=\"Blue\" />"));
    EXPECT_STREQ("", catalogue->m_strDefaultName);
}

TEST_F(CatalogueTest, TheLastFlaggedStyleIsTheDefault)
{
    ASSERT_EQ(1, Load("<style name=\"A\" default=\"1\" /><style name=\"B\" default=\"1\" />"
                      "<style name=\"C\" default=\"0\" />"));
    EXPECT_STREQ("B", catalogue->m_strDefaultName);
}

TEST_F(CatalogueTest, OnlyTheExactValueOneFlagsTheDefault)
{
    SetDefault("keep");
    ASSERT_EQ(1, Load("<style name=\"A\" default=\"01\" /><style name=\"B\" default=\"1 \" />"));
    EXPECT_STREQ("keep", catalogue->m_strDefaultName);
}

TEST_F(CatalogueTest, StyleWithoutNameIsNotListed)
{
    ASSERT_EQ(1, Load("<style des=\"nameless\"><colorfont file=\"a.xml\" /></style><style name=\"\" />"));
    EXPECT_TRUE(catalogue->m_entries.empty());
}

TEST_F(CatalogueTest, StyleWithoutFilesGetsTheBareFolder)
{
    ASSERT_EQ(1, Load("<style name=\"bare\"><colorfont /></style>"));
    ASSERT_EQ(1u, catalogue->m_entries.size());
    EXPECT_EQ(Folder() + "\\", std::string(catalogue->m_entries[0].colorfont));
    EXPECT_EQ(Folder() + "\\", std::string(catalogue->m_entries[0].img));
}

TEST_F(CatalogueTest, LaterChildOfTheSameNameWins)
{
    ASSERT_EQ(1, Load("<style name=\"s\"><img file=\"one.xml\" /><img file=\"two.xml\" /></style>"));
    EXPECT_EQ(Folder() + "\\two.xml", std::string(catalogue->m_entries[0].img));
}

TEST_F(CatalogueTest, RereadingWithoutDefaultsKeepsTheOldDefault)
{
    SetDefault("dark");
    ASSERT_EQ(1, Load("<style name=\"dark\" /><style name=\"light\" />"));
    EXPECT_STREQ("dark", catalogue->m_strDefaultName);
    EXPECT_EQ(2u, catalogue->m_entries.size());
}

TEST_F(CatalogueTest, MissingOrBrokenConfigurationGivesZeroAndNoEntries)
{
    SetDefault("kept");
    DeleteFileA(ConfigFile().c_str());
    EXPECT_EQ(0, catalogue->LoadCatalogue());
    EXPECT_TRUE(catalogue->m_entries.empty());
    EXPECT_STREQ("kept", catalogue->m_strDefaultName);
    WriteFileBytes(ConfigFile(), "<config><style name=\"x\"></config>");
    EXPECT_EQ(0, catalogue->LoadCatalogue());
}

TEST_F(CatalogueTest, EmptyConfigurationLoadsNoStyles)
{
    EXPECT_EQ(1, Load(""));
    EXPECT_TRUE(catalogue->m_entries.empty());
}

TEST_F(CatalogueTest, FindStyleTrimsBothNamesInPlace)
{
    ASSERT_EQ(1, Load("<style name=\" Blue \" des=\"b\"><img file=\"b.xml\" /></style>"));
    CString wanted = "  Blue\t";
    StyleEntry found;
    ASSERT_EQ(1, catalogue->FindStyle(wanted, found));
    EXPECT_STREQ("Blue", wanted);
    EXPECT_STREQ("Blue", catalogue->m_entries[0].name);
    EXPECT_STREQ("Blue", found.name);
    EXPECT_STREQ("b", found.des);
    EXPECT_EQ(Folder() + "\\b.xml", std::string(found.img));
}

TEST_F(CatalogueTest, FindStyleIsCaseSensitiveAndFindsTheFirst)
{
    ASSERT_EQ(1, Load("<style name=\"A\" des=\"first\" /><style name=\"A\" des=\"second\" />"));
    StyleEntry found;
    CString lower = "a";
    EXPECT_EQ(0, catalogue->FindStyle(lower, found));
    CString upper = "A";
    ASSERT_EQ(1, catalogue->FindStyle(upper, found));
    EXPECT_STREQ("first", found.des);
}

TEST_F(CatalogueTest, FindStyleInAnEmptyCatalogueLeavesTheNameAlone)
{
    ASSERT_EQ(1, Load(""));
    CString name = " A ";
    StyleEntry found;
    EXPECT_EQ(0, catalogue->FindStyle(name, found));
    EXPECT_STREQ(" A ", name);
}
