// SaveStyleData on the sample schemes installed beside this program: colours and fonts written
// back into the style's one colour/font file, each flag alone, an unknown style and a file that
// cannot be written. Every test puts the file back as it was.
#include "kiv_skin/style/style_data.h"
#include "support/test_files.h"
#include <gtest/gtest.h>
#include <cstring>

using namespace kiv_skin;

namespace {

const COLORREF kEdited = RGB(0x12, 0x34, 0x56);
const LONG kEditedHeight = -31;

class SaveStyleDataTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(1, StyleCatalogue::Instance()->LoadCatalogue());
        CString name("light");
        ASSERT_EQ(1, StyleCatalogue::Instance()->FindStyle(name, entry));
        file = entry.colorfont.GetString();
        original = ReadFileBytes(file);
        ASSERT_FALSE(original.empty());
        ASSERT_EQ(1, LoadStyleData(data, entry));
        data.name = "light";
    }
    void TearDown() override { WriteFileBytes(file, original); }
    // Edits the loaded data: one colour and one font.
    void Edit()
    {
        bool found = false;
        for (ColorEntry& e : data.colors.entries) {
            if (e.name == "PLUG_BGCOLOR") { e.color = kEdited; found = true; }
        }
        ASSERT_TRUE(found);
        LOGFONTA lf = {};
        ASSERT_NE(nullptr, LookupFont(data.fonts, "SMALL"));
        const_cast<CFont*>(LookupFont(data.fonts, "SMALL"))->GetLogFont(&lf);
        lf.lfHeight = kEditedHeight;
        CFont bigger;
        ASSERT_TRUE(bigger.CreateFontIndirect(&lf));
        ASSERT_TRUE(SetFont(data.fonts, "SMALL", &bigger, GetFontDes(data.fonts, "SMALL")));
    }
    // What the file on disk now says.
    COLORREF SavedColor()
    {
        ColorTable colors;
        EXPECT_EQ(1, LoadColors(colors, file.c_str()));
        return LookupColor(colors, "PLUG_BGCOLOR");
    }
    LONG SavedFontHeight()
    {
        FontTable fonts;
        EXPECT_TRUE(LoadFonts(file.c_str(), fonts));
        LOGFONTA lf = {};
        const CFont* font = LookupFont(fonts, "SMALL");
        if (font) const_cast<CFont*>(font)->GetLogFont(&lf);
        return lf.lfHeight;
    }

    StyleEntry entry;
    std::string file;
    std::string original;
    StyleData data;
};

}  // namespace

TEST_F(SaveStyleDataTest, ColoursAndFontsGoIntoTheOneFile)
{
    LONG before = SavedFontHeight();
    ASSERT_NE(kEditedHeight, before);
    ASSERT_NE(kEdited, SavedColor());
    Edit();
    EXPECT_EQ(1, SaveStyleData(data, 1, 1));
    EXPECT_EQ(kEdited, SavedColor());
    EXPECT_EQ(kEditedHeight, SavedFontHeight());
}

TEST_F(SaveStyleDataTest, ColoursAlone)
{
    LONG before = SavedFontHeight();
    Edit();
    EXPECT_EQ(1, SaveStyleData(data, 1, 0));
    EXPECT_EQ(kEdited, SavedColor());
    EXPECT_EQ(before, SavedFontHeight());
}

TEST_F(SaveStyleDataTest, FontsAlone)
{
    COLORREF before = SavedColor();
    Edit();
    EXPECT_EQ(1, SaveStyleData(data, 0, 1));
    EXPECT_EQ(before, SavedColor());
    EXPECT_EQ(kEditedHeight, SavedFontHeight());
}

TEST_F(SaveStyleDataTest, NeitherFlagWritesNothing)
{
    Edit();
    EXPECT_EQ(1, SaveStyleData(data, 0, 0));
    EXPECT_EQ(original, ReadFileBytes(file));
}

TEST_F(SaveStyleDataTest, AnUnknownStyleFailsAndWritesNothing)
{
    Edit();
    data.name = "no such style";
    EXPECT_EQ(0, SaveStyleData(data, 1, 1));
    EXPECT_EQ(original, ReadFileBytes(file));
}

// Another process holding the file open for reading only (as an editor might) makes writing it
// fail; the fonts are then not written either.
TEST_F(SaveStyleDataTest, AFailedColourWriteFailsAndLeavesTheFonts)
{
    Edit();
    HANDLE reader = CreateFileA(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, reader);
    EXPECT_EQ(0, SaveStyleData(data, 1, 1));
    CloseHandle(reader);
    EXPECT_EQ(original, ReadFileBytes(file));
}
