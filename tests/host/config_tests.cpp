// The host's configuration tree: "a\b" is the file cfg\a\b.xml beside the executable.
#include "kiv_base/config.h"
#include "support/test_files.h"
#include <windows.h>
#include <gtest/gtest.h>

using namespace kiv_base;

namespace {

class ConfigTest : public ::testing::Test {
protected:
    void TearDown() override { DeleteFileA((ExeDir() + "cfg\\test\\tree.xml").c_str()); }
    bool Open(const std::string& xml)
    {
        WriteFileBytes(ExeDir() + "cfg\\test\\tree.xml", xml);
        return CConfigManager::GetInstance()->GetConfig("test\\tree", cfg);
    }
    CCfgHelp cfg;
};

std::string Names(const CCfgNode* node)
{
    std::list<std::string> names;
    node->GetAttributeNames(names);
    std::string all;
    for (const std::string& n : names) all += n + ",";
    return all;
}

}  // namespace

TEST_F(ConfigTest, AttributesComeInTheFileOrder)
{
    ASSERT_TRUE(Open("<config><style des=\"d\" default=\"1\" name=\"n\" /></config>"));
    CCfgNode* style = cfg.FirstChild(cfg.RootNode(), nullptr);
    ASSERT_NE(nullptr, style);
    EXPECT_STREQ("style", style->GetNodeName());
    EXPECT_EQ("des,default,name,", Names(style));
    EXPECT_STREQ("n", style->GetAttribute("name"));
    EXPECT_STREQ("", style->GetAttribute("missing"));
}

TEST_F(ConfigTest, CurrentPathIsTheFilesFolderWithoutTrailingBackslash)
{
    ASSERT_TRUE(Open("<config />"));
    EXPECT_EQ(ExeDir() + "cfg\\test", cfg.GetCurrentPath());
}

TEST_F(ConfigTest, ChildrenAndSiblingsByName)
{
    ASSERT_TRUE(Open("<config><a id=\"1\" /><b id=\"2\" /><a id=\"3\"><c /></a></config>"));
    CCfgNode* root = cfg.RootNode();
    CCfgNode* b = cfg.FirstChild(root, "b");
    ASSERT_NE(nullptr, b);
    EXPECT_STREQ("2", b->GetAttribute("id"));
    CCfgNode* a = cfg.FirstChild(root, "a");
    CCfgNode* nextA = cfg.NextSiblingNode(a, "a");
    ASSERT_NE(nullptr, nextA);
    EXPECT_STREQ("3", nextA->GetAttribute("id"));
    EXPECT_EQ(nullptr, cfg.NextSiblingNode(nextA, nullptr));
    EXPECT_EQ(b, cfg.NextSiblingNode(a, nullptr));
    EXPECT_EQ(nullptr, cfg.FirstChild(root, "zzz"));
    CConfig* config = cfg.GetConfig();
    ASSERT_NE(nullptr, config);
    EXPECT_STREQ("c", config->FirstChild(nextA)->GetNodeName());
    EXPECT_EQ(nullptr, config->FirstChild(b));
    EXPECT_EQ(nullptr, config->NextSibling(root));
}

TEST_F(ConfigTest, MissingOrMalformedFilesAreNotOpened)
{
    EXPECT_FALSE(CConfigManager::GetInstance()->GetConfig("test\\absent", cfg));
    EXPECT_EQ(nullptr, cfg.RootNode());
    EXPECT_FALSE(Open("<config><style></config>"));
    EXPECT_FALSE(Open(""));
    EXPECT_FALSE(CConfigManager::GetInstance()->GetConfig("", cfg));
    EXPECT_FALSE(CConfigManager::GetInstance()->GetConfig(nullptr, cfg));
}
