// The colour table: reading, look-ups and writing of a scheme's "colors" section.
#include "kiv_skin/style/color_table.h"
#include "support/test_files.h"
#include <gtest/gtest.h>

using namespace kiv_skin;

namespace {

const char kRed[] = "\xBA\xEC\xC9\xAB";        // 红色
const char kDefault[] = "\xC4\xAC\xC8\xCF";    // 默认

std::string Colors(const std::string& body)
{
    return "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<globals>\n<colors>\n" + body +
           "</colors>\n</globals>\n";
}

class ColorTableTest : public ::testing::Test {
protected:
    // Writes a colour file and loads it into table.
    int Load(const std::string& xml, const char* name = "colors.xml")
    {
        WriteFileBytes(scratch.Path(name), xml);
        return LoadColors(table, scratch.Path(name).c_str());
    }
    CString Path(const char* name) const { return scratch.Path(name).c_str(); }

    ScratchDir scratch;
    ColorTable table;
};

}  // namespace

TEST(ColorValue, OnlyTextsWithAHexPrefixCount)
{
    EXPECT_EQ(0x000000FFu, ParseColorValue("0x0000FF"));
    EXPECT_EQ(0x0000FF00u, ParseColorValue("0XFF00FF00"));
    EXPECT_EQ(0x00FF8000u, ParseColorValue("0x00FF8000"));
    EXPECT_EQ(0x00123456u, ParseColorValue("0xFF123456"));
    EXPECT_EQ(0x00FF0000u, ParseColorValue("0x00ff0000"));
    EXPECT_EQ(kNoColor, ParseColorValue("FF0000"));
    EXPECT_EQ(kNoColor, ParseColorValue("255"));
    EXPECT_EQ(kNoColor, ParseColorValue("#FF0000"));
    EXPECT_EQ(kNoColor, ParseColorValue(""));
    EXPECT_EQ(kNoColor, ParseColorValue(nullptr));
}

TEST(ColorValue, TheNumberIsReadFromTheStartOfTheText)
{
    EXPECT_EQ(0x00000ABCu, ParseColorValue("abc 0x12"));  // "0x" anywhere, number at the start
    EXPECT_EQ(0x00000012u, ParseColorValue(" 0x12"));
}

TEST(FormatColor, WritesBlueGreenRedInUpperCase)
{
    EXPECT_STREQ("0x00563412", FormatColor(RGB(0x12, 0x34, 0x56)));
    EXPECT_STREQ("0x00ABCDEF", FormatColor(0x00ABCDEF));
    EXPECT_STREQ("0x00000000", FormatColor(0));
    EXPECT_STREQ("0x00FFFFFF", FormatColor(kNoColor));
}

TEST_F(ColorTableTest, ReadsNamesValuesAndDescriptionsInFileOrder)
{
    ASSERT_EQ(1, Load(Colors(std::string("<color name=\"UP\" value=\"0x000000FF\" des=\"") + kRed +
                             "\" />\n<color name=\"DOWN\" value=\"0x0000FF00\" />\n")));
    ASSERT_EQ(2u, table.entries.size());
    EXPECT_STREQ("UP", table.entries[0].name);
    EXPECT_EQ(0x000000FFu, table.entries[0].color);
    EXPECT_STREQ(kRed, table.entries[0].des);
    EXPECT_STREQ("DOWN", table.entries[1].name);
    EXPECT_STREQ("", table.entries[1].des);
    EXPECT_EQ(0x000000FFu, LookupColor(table, "UP"));
    EXPECT_STREQ(kRed, GetColorDes(table, "UP"));
    EXPECT_STREQ("", GetColorDes(table, "NONE"));
}

TEST_F(ColorTableTest, ElementWithoutNameIsIgnoredAndNamesAreTrimmed)
{
    ASSERT_EQ(1, Load(Colors("<color value=\"0x00000001\" />\n"
                             "<color name=\"  TEXT \t\" value=\"0x00000002\" />\n"
                             "<color name=\"\" value=\"0x00000003\" />\n")));
    ASSERT_EQ(1u, table.entries.size());
    EXPECT_STREQ("TEXT", table.entries[0].name);
    EXPECT_EQ(2u, LookupColor(table, "TEXT"));
}

TEST_F(ColorTableTest, UnusableValueGivesNoColourButKeepsTheEntry)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"A\" value=\"FF0000\" />\n<color name=\"B\" />\n")));
    ASSERT_EQ(2u, table.entries.size());
    EXPECT_EQ(kNoColor, LookupColor(table, "A"));
    EXPECT_EQ(kNoColor, LookupColor(table, "B"));
}

TEST_F(ColorTableTest, FirstDuplicateWinsAndLookupIsCaseSensitive)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"UP\" value=\"0x00000001\" />\n"
                             "<color name=\"UP\" value=\"0x00000002\" />\n"
                             "<color name=\"DEFCOLOR\" value=\"0x00000009\" />\n")));
    EXPECT_EQ(3u, table.entries.size());
    EXPECT_EQ(1u, LookupColor(table, "UP"));
    EXPECT_EQ(9u, LookupColor(table, "up"));   // not found: the fallback
    EXPECT_EQ(9u, LookupColor(table, " UP"));  // look-ups do not trim
}

TEST_F(ColorTableTest, LastDefColorSetsTheFallback)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"DEFCOLOR\" value=\"0x00000001\" />\n"
                             "<color name=\" DEFCOLOR \" value=\"0x00000002\" />\n")));
    EXPECT_EQ(1u, LookupColor(table, "DEFCOLOR"));  // the first entry answers its own name
    EXPECT_EQ(2u, table.defaultColor);              // the last one is the fallback
    EXPECT_EQ(2u, LookupColor(table, "MISSING"));
}

TEST_F(ColorTableTest, FallbackSurvivesALaterFileWithoutDefColor)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"DEFCOLOR\" value=\"0x00FFFFFF\" />\n"), "a.xml"));
    ASSERT_EQ(1, Load(Colors("<color name=\"UP\" value=\"0x000000FF\" />\n"), "b.xml"));
    EXPECT_EQ(1u, table.entries.size());
    EXPECT_EQ(0x00FFFFFFu, LookupColor(table, "MISSING"));
}

TEST_F(ColorTableTest, NoFallbackEverSetAnswersNoColour)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"UP\" value=\"0x000000FF\" />\n")));
    EXPECT_EQ(kNoColor, LookupColor(table, "MISSING"));
}

TEST_F(ColorTableTest, MissingFileGivesZeroEmptiesEntriesAndKeepsTheFallback)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"DEFCOLOR\" value=\"0x00112233\" />\n")));
    EXPECT_EQ(0, LoadColors(table, Path("missing.xml")));
    EXPECT_TRUE(table.entries.empty());
    EXPECT_EQ(0x00112233u, LookupColor(table, "DEFCOLOR"));
}

TEST_F(ColorTableTest, MalformedFileGivesZero)
{
    ASSERT_EQ(1, Load(Colors("<color name=\"UP\" value=\"0x000000FF\" />\n")));
    EXPECT_EQ(0, Load("<globals><colors><color name=\"UP\" </colors>", "bad.xml"));
    EXPECT_TRUE(table.entries.empty());
    EXPECT_EQ(0, Load("", "empty.xml"));
    EXPECT_EQ(0, Load(std::string("\0\xFF\xFE<", 4), "binary.xml"));
}

TEST_F(ColorTableTest, FileWithoutColorsSectionLoadsEmpty)
{
    EXPECT_EQ(1, Load("<globals><fonts><font kivfontname=\"DEFAULT\" /></fonts></globals>"));
    EXPECT_TRUE(table.entries.empty());
}

TEST_F(ColorTableTest, ColorsMustStartWithAColorElement)
{
    EXPECT_EQ(1, Load(Colors("<other />\n<color name=\"UP\" value=\"0x000000FF\" />\n")));
    EXPECT_TRUE(table.entries.empty());
}

TEST_F(ColorTableTest, OtherElementsBetweenColoursAreSkipped)
{
    EXPECT_EQ(1, Load(Colors("<color name=\"A\" value=\"0x00000001\" />\n<note name=\"N\" />\n"
                             "<color name=\"B\" value=\"0x00000002\" />\n")));
    ASSERT_EQ(2u, table.entries.size());
    EXPECT_STREQ("B", table.entries[1].name);
}

TEST_F(ColorTableTest, OnlyTheFirstColorsSectionIsRead)
{
    EXPECT_EQ(1, Load("<g><colors><color name=\"A\" value=\"0x01\" /></colors>"
                      "<colors><color name=\"B\" value=\"0x02\" /></colors></g>"));
    ASSERT_EQ(1u, table.entries.size());
    EXPECT_STREQ("A", table.entries[0].name);
}

TEST(AssignColors, ReplacesEntriesAndKeepsTheFallback)
{
    ColorTable table;
    table.defaultColor = 7;
    table.entries.push_back({"OLD", 1, ""});
    ColorList from = {{"A", 2, "a"}, {"B", 3, "b"}};
    EXPECT_EQ(1, AssignColors(from, table));
    ASSERT_EQ(2u, table.entries.size());
    EXPECT_EQ(3u, LookupColor(table, "B"));
    EXPECT_EQ(7u, table.defaultColor);
    EXPECT_EQ(0, AssignColors(ColorList(), table));
    EXPECT_TRUE(table.entries.empty());
    EXPECT_EQ(7u, table.defaultColor);
}

TEST_F(ColorTableTest, SavingAnEmptyTableToANewPathWritesNothing)
{
    EXPECT_FALSE(SaveColors(table, Path("new.xml")));
    EXPECT_FALSE(FileExists(scratch.Path("new.xml")));
}

// The writer opens files in text mode, so lines end in CR LF.
TEST_F(ColorTableTest, NewFileHasDeclarationGlobalsAndOrderedAttributes)
{
    table.entries = {{"UP", RGB(0x12, 0x34, 0x56), kRed}, {"DEFCOLOR", 0, kDefault}};
    ASSERT_TRUE(SaveColors(table, Path("new.xml")));
    std::string text = ReadFileBytes(scratch.Path("new.xml"));
    EXPECT_EQ(0u, text.find("<?xml version=\"1.0\" encoding=\"GB2312\" ?>")) << text;
    EXPECT_EQ(std::string::npos, text.find("standalone"));
    EXPECT_NE(std::string::npos,
              text.find(std::string("<globals>\r\n    <colors>\r\n        <color name=\"UP\" "
                                    "value=\"0x00563412\" des=\"") + kRed + "\" />"))
        << text;
    ColorTable back;
    ASSERT_EQ(1, LoadColors(back, Path("new.xml")));
    ASSERT_EQ(2u, back.entries.size());
    EXPECT_EQ(RGB(0x12, 0x34, 0x56), LookupColor(back, "UP"));
    EXPECT_STREQ(kDefault, GetColorDes(back, "DEFCOLOR"));
}

TEST_F(ColorTableTest, Gb2312NamesAndDescriptionsRoundTripByteForByte)
{
    std::string name = std::string("\xC9\xCF\xD5\xC7") + "_UP";  // 上涨_UP
    ASSERT_EQ(1, Load(Colors("<color name=\"" + name + "\" value=\"0x000000FF\" des=\"" +
                             kRed + "\" />\n")));
    ASSERT_TRUE(SaveColors(table, Path("copy.xml")));
    ColorTable back;
    ASSERT_EQ(1, LoadColors(back, Path("copy.xml")));
    ASSERT_EQ(1u, back.entries.size());
    EXPECT_EQ(name, std::string(back.entries[0].name));
    EXPECT_EQ(std::string(kRed), std::string(back.entries[0].des));
    std::string text = ReadFileBytes(scratch.Path("copy.xml"));
    EXPECT_NE(std::string::npos, text.find("name=\"" + name + "\""));
    EXPECT_NE(std::string::npos, text.find(std::string("des=\"") + kRed + "\""));
}

// A file in the writer's own layout: saving the unchanged table reproduces it exactly, even with
// lower-case hexadecimal digits.
TEST_F(ColorTableTest, LowerCaseValuesAreLeftUntouchedWhenNothingChanged)
{
    table.entries = {{"UP", 0x00FF0000, kRed}, {"DOWN", 0x00ABCDEF, ""}};
    ASSERT_TRUE(SaveColors(table, Path("c.xml")));
    std::string text = ReadFileBytes(scratch.Path("c.xml"));
    for (const char* upper : {"0x00FF0000", "0x00ABCDEF"}) {
        std::string lower = CString(upper).MakeLower().GetString();
        text.replace(text.find(upper), lower.size(), lower);
    }
    WriteFileBytes(scratch.Path("c.xml"), text);
    ASSERT_TRUE(SaveColors(table, Path("c.xml")));
    EXPECT_EQ(text, ReadFileBytes(scratch.Path("c.xml")));
    EXPECT_NE(std::string::npos, text.find("value=\"0x00ff0000\""));
}

TEST_F(ColorTableTest, InPlaceUpdateRewritesChangedValuesAndDescriptions)
{
    WriteFileBytes(scratch.Path("c.xml"),
                   Colors("<color name=\"UP\" value=\"0x00000001\" des=\"old\" />\n"
                          "<color name=\"GONE\" value=\"0x00000002\" des=\"gone\" />\n"
                          "<other name=\"UP\" value=\"x\" />\n"));
    table.defaultColor = 0x00445566;
    table.entries = {{"UP", 0x00ABCDEF, "new"}, {"EXTRA", 0x00000003, "extra"}};
    ASSERT_TRUE(SaveColors(table, Path("c.xml")));
    std::string text = ReadFileBytes(scratch.Path("c.xml"));
    EXPECT_NE(std::string::npos, text.find("<color name=\"UP\" value=\"0x00ABCDEF\" des=\"new\" />"));
    // An element the table lacks gets the fallback colour and an empty description.
    EXPECT_NE(std::string::npos, text.find("<color name=\"GONE\" value=\"0x00445566\" des=\"\" />"));
    // Every child of the section is updated, whatever its tag.
    EXPECT_NE(std::string::npos, text.find("<other name=\"UP\" value=\"0x00ABCDEF\" des=\"new\" />"));
    // Colours the file lacks are not added.
    EXPECT_EQ(std::string::npos, text.find("EXTRA"));
}

TEST_F(ColorTableTest, MissingColorsSectionIsAppendedToTheRoot)
{
    WriteFileBytes(scratch.Path("c.xml"), "<root><fonts><font kivfontname=\"DEFAULT\" /></fonts></root>");
    table.entries = {{"UP", 0x000000FF, "u"}};
    ASSERT_TRUE(SaveColors(table, Path("c.xml")));
    std::string text = ReadFileBytes(scratch.Path("c.xml"));
    size_t fonts = text.find("</fonts>");
    size_t colors = text.find("<colors>");
    ASSERT_NE(std::string::npos, colors);
    EXPECT_LT(fonts, colors);
    EXPECT_NE(std::string::npos, text.find("<color name=\"UP\" value=\"0x000000FF\" des=\"u\" />"));
    EXPECT_NE(std::string::npos, text.find("</colors>\r\n</root>"));
}

TEST_F(ColorTableTest, UnparsableExistingFileIsNotOverwritten)
{
    WriteFileBytes(scratch.Path("c.xml"), "<globals><colors>");
    table.entries = {{"UP", 0x000000FF, "u"}};
    EXPECT_FALSE(SaveColors(table, Path("c.xml")));
    EXPECT_EQ("<globals><colors>", ReadFileBytes(scratch.Path("c.xml")));
}

TEST_F(ColorTableTest, SavingToADirectoryFails)
{
    table.entries = {{"UP", 0x000000FF, "u"}};
    CreateDirectoryA(scratch.Path("folder").c_str(), nullptr);
    EXPECT_FALSE(SaveColors(table, Path("folder")));
}

TEST_F(ColorTableTest, SavingDoesNotChangeTheTable)
{
    table.entries = {{"UP", 0x000000FF, "u"}};
    table.defaultColor = 5;
    ASSERT_TRUE(SaveColors(table, Path("c.xml")));
    ASSERT_EQ(1u, table.entries.size());
    EXPECT_EQ(5u, table.defaultColor);
    ColorTable saved;
    ASSERT_EQ(1, LoadColors(saved, Path("c.xml")));
    EXPECT_EQ(0x000000FFu, LookupColor(saved, "UP"));
}
