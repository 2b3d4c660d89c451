// The font table: reading a scheme's "fonts" section into GDI fonts, look-ups, replacing one
// font, and writing the section back. Suites named ...At120 or ...At192 run in a process of that
// screen DPI; the working directory's cfg\dpi.ini sets the design DPI (see CMakeLists.txt).
#include "kiv_skin/style/font_table.h"
#include "support/dc_state.h"
#include "support/test_files.h"
#include <gtest/gtest.h>
#include <tinyxml.h>
#include <cstring>

using namespace kiv_skin;

namespace {

const char kSong[] = "\xCB\xCE\xCC\xE5";   // 宋体
const char kHei[] = "\xBA\xDA\xCC\xE5";    // 黑体
const char kTitle[] = "\xB1\xEA\xCC\xE2";  // 标题

std::string Scheme(const std::string& fonts)
{
    return "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<globals>\n"
           "<colors>\n<color name=\"TEXT\" value=\"0x00FFFFFF\" des=\"\" />\n</colors>\n"
           "<fonts>\n" + fonts + "</fonts>\n</globals>\n";
}

std::string Font(const std::string& attributes) { return "<font " + attributes + " />\n"; }

LOGFONTA Description(const CFont* font)
{
    LOGFONTA lf = {};
    EXPECT_EQ(static_cast<int>(sizeof(LOGFONTA)), font->GetObject(sizeof(lf), &lf));
    return lf;
}

class FontFileTest : public ::testing::Test {
protected:
    bool Load(const std::string& xml, const char* name = "scheme.xml")
    {
        WriteFileBytes(scratch.Path(name), xml);
        return LoadFonts(Path(name), table);
    }
    CString Path(const char* name) const { return scratch.Path(name).c_str(); }
    // The description of a font that must be in the table.
    LOGFONTA Of(const char* name)
    {
        const CFont* font = LookupFont(table, name);
        EXPECT_NE(nullptr, font) << name;
        return font ? Description(font) : LOGFONTA{};
    }
    // The "fonts" children of a saved file, as elements in document order.
    std::vector<const TiXmlElement*> SavedFonts(TiXmlDocument& doc, const char* name = "scheme.xml")
    {
        std::vector<const TiXmlElement*> out;
        EXPECT_TRUE(doc.LoadFile(scratch.Path(name).c_str()));
        const TiXmlElement* fonts = doc.FirstChildElement()->FirstChildElement("fonts");
        for (const TiXmlElement* e = fonts ? fonts->FirstChildElement() : nullptr; e; e = e->NextSiblingElement())
            out.push_back(e);
        return out;
    }

    ScratchDir scratch;
    FontTable table;
};

class Fonts : public FontFileTest {};
class FontsAt96 : public FontFileTest {};
class FontsAt120 : public FontFileTest {};
class FontsAt192 : public FontFileTest {};
class FontsScaleOffAt120 : public FontFileTest {};
class FontsAxesAt120 : public FontFileTest {};

std::string ScaledFonts()
{
    return Scheme(Font("kivfontname=\"S\" height=\"-12\" width=\"8\"") + Font("kivfontname=\"DEFAULT\""));
}

}  // namespace

// ---- Reading ----

TEST_F(Fonts, DefaultsFillWhatTheElementLeavesOut)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\""))));
    LOGFONTA lf = Of("DEFAULT");
    EXPECT_EQ(0, lf.lfWidth);
    EXPECT_EQ(FW_NORMAL, lf.lfWeight);
    EXPECT_EQ(0, lf.lfItalic);
    EXPECT_EQ(0, lf.lfUnderline);
    EXPECT_EQ(0, lf.lfStrikeOut);
    EXPECT_EQ(0, lf.lfCharSet);
    EXPECT_EQ(0, lf.lfEscapement);
    EXPECT_EQ(0, lf.lfOrientation);
    EXPECT_EQ(0, lf.lfOutPrecision);
    EXPECT_EQ(0, lf.lfClipPrecision);
    EXPECT_EQ(0, lf.lfQuality);
    EXPECT_EQ(0, lf.lfPitchAndFamily);
    EXPECT_STREQ(kSong, lf.lfFaceName);
}

TEST_F(Fonts, EveryAttributeReachesTheGdiFont)
{
    std::string attributes = std::string("kivfontname=\"T\" facename=\"") + kHei +
                             "\" height=\"-20\" width=\"7\" weight=\"700\" itatic=\"1\" underline=\"1\""
                             " quality=\"4\" charset=\"134\" outprecision=\"3\" pitchandfamily=\"49\""
                             " des=\"" + kTitle + "\"";
    ASSERT_TRUE(Load(Scheme(Font(attributes))));
    LOGFONTA lf = Of("T");
    EXPECT_STREQ(kHei, lf.lfFaceName);
    EXPECT_EQ(700, lf.lfWeight);
    EXPECT_EQ(1, lf.lfItalic);
    EXPECT_EQ(1, lf.lfUnderline);
    EXPECT_EQ(4, lf.lfQuality);
    EXPECT_EQ(134, lf.lfCharSet);
    EXPECT_EQ(3, lf.lfOutPrecision);
    EXPECT_EQ(49, lf.lfPitchAndFamily);
    EXPECT_STREQ(kTitle, GetFontDes(table, "T"));
}

TEST_F(Fonts, ItalicIsReadFromTheFormatsOwnSpelling)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\" itatic=\"1\"") + Font("kivfontname=\"B\" italic=\"1\""))));
    EXPECT_EQ(1, Of("A").lfItalic);
    EXPECT_EQ(0, Of("B").lfItalic);
}

TEST_F(Fonts, ByteFieldsKeepTheLowByte)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\" charset=\"390\" underline=\"257\""))));
    EXPECT_EQ(134, Of("A").lfCharSet);  // 390 = 0x186
    EXPECT_EQ(1, Of("A").lfUnderline);
}

TEST_F(Fonts, NumbersAreReadLikeAtoi)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\" weight=\"700bold\"") + Font("kivfontname=\"B\" weight=\"heavy\""))));
    EXPECT_EQ(700, Of("A").lfWeight);
    EXPECT_EQ(0, Of("B").lfWeight);
}

TEST_F(Fonts, TheFirstDefinitionOfAKeyWins)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\" weight=\"700\" des=\"first\"") +
                            Font("kivfontname=\"DEFAULT\" weight=\"300\" des=\"second\""))));
    EXPECT_EQ(1u, table.fonts.size());
    EXPECT_EQ(700, Of("DEFAULT").lfWeight);
    EXPECT_STREQ("first", GetFontDes(table, "DEFAULT"));
}

TEST_F(Fonts, ElementsWithoutAKeyOrAttributesAreSkipped)
{
    ASSERT_TRUE(Load(Scheme("<font />\n" + Font("weight=\"700\"") + Font("kivfontname=\"\" weight=\"700\"") +
                            Font("kivfontname=\"A\""))));
    ASSERT_EQ(1u, table.fonts.size());
    EXPECT_EQ("A", table.fonts.begin()->first);
}

TEST_F(Fonts, AnyElementNameIsReadAndKeysKeepTheirBlanks)
{
    ASSERT_TRUE(Load(Scheme("<typeface kivfontname=\" A \" weight=\"600\" />\n<!-- note -->\n")));
    EXPECT_EQ(600, Of(" A ").lfWeight);
    EXPECT_EQ(nullptr, LookupFont(table, "A"));
}

TEST_F(Fonts, AFaceNameOf31BytesFitsAndALongerOneLeavesTheFontOut)
{
    std::string face31(31, 'F'), face32(32, 'G');
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\" facename=\"" + face31 + "\"") +
                            Font("kivfontname=\"B\" facename=\"" + face32 + "\""))));
    EXPECT_STREQ(face31.c_str(), Of("A").lfFaceName);
    EXPECT_EQ(0u, table.fonts.count("B"));
}

TEST_F(Fonts, AFileThatCannotBeLoadedKeepsTheOldFonts)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\" weight=\"700\""))));
    const CFont* before = LookupFont(table, "DEFAULT");
    EXPECT_FALSE(Load("<globals><fonts><font kivfontname=\"X\" </fonts>", "broken.xml"));
    EXPECT_FALSE(LoadFonts(Path("missing.xml"), table));
    EXPECT_EQ(before, LookupFont(table, "DEFAULT"));
    EXPECT_EQ(700, Description(LookupFont(table, "DEFAULT")).lfWeight);
}

TEST_F(Fonts, AFileWithoutFontsLeavesNone)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\""))));
    EXPECT_FALSE(Load("<globals><colors /></globals>", "colours_only.xml"));
    EXPECT_TRUE(table.fonts.empty());
    EXPECT_EQ(nullptr, LookupFont(table, "DEFAULT"));
}

TEST_F(Fonts, OnlyTheRootsFirstFontsSectionIsRead)
{
    std::string xml = "<globals><other><fonts><font kivfontname=\"Deep\" /></fonts></other>"
                      "<fonts><font kivfontname=\"A\" /></fonts><fonts><font kivfontname=\"B\" /></fonts></globals>";
    ASSERT_TRUE(Load(xml));
    FontNameList names;
    ASSERT_TRUE(ListFontNames(table, names));
    EXPECT_EQ(FontNameList{"A"}, names);
}

// ---- Look-ups ----

TEST_F(Fonts, UnknownKeysFallBackToDefault)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\"") + Font("kivfontname=\"Title\" weight=\"700\""))));
    const CFont* fallback = LookupFont(table, "DEFAULT");
    ASSERT_NE(nullptr, fallback);
    EXPECT_NE(fallback, LookupFont(table, "Title"));
    EXPECT_EQ(fallback, LookupFont(table, "title"));
    EXPECT_EQ(fallback, LookupFont(table, "Title "));
    EXPECT_EQ(fallback, LookupFont(table, "NOSUCHKEY"));
}

TEST_F(Fonts, WithoutDefaultUnknownKeysAnswerNull)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"Title\""))));
    EXPECT_NE(nullptr, LookupFont(table, "Title"));
    EXPECT_EQ(nullptr, LookupFont(table, "Other"));
    EXPECT_EQ(nullptr, LookupFont(kiv_skin::FontTable(), "DEFAULT"));
}

TEST_F(Fonts, DescriptionsAndNames)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"b\" des=\"x\"") + Font("kivfontname=\"a\"") + Font("kivfontname=\"A\""))));
    EXPECT_STREQ("x", GetFontDes(table, "b"));
    EXPECT_STREQ("", GetFontDes(table, "a"));
    EXPECT_STREQ("", GetFontDes(table, "B"));
    FontNameList names = {"stale"};
    ASSERT_TRUE(ListFontNames(table, names));
    EXPECT_EQ((FontNameList{"A", "a", "b"}), names);
    kiv_skin::FontTable empty;
    EXPECT_FALSE(ListFontNames(empty, names));
    EXPECT_TRUE(names.empty());
}

// ---- Replacing one font ----

TEST_F(Fonts, SetFontReplacesAndKeepsTheOldDescription)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"Title\" weight=\"400\" des=\"old\""))));
    LOGFONTA wanted = {};
    wanted.lfHeight = -31;
    wanted.lfWeight = 800;
    wanted.lfCharSet = 134;
    std::strcpy(wanted.lfFaceName, kHei);
    CFont source;
    ASSERT_TRUE(source.CreateFontIndirect(&wanted));
    ASSERT_TRUE(SetFont(table, "Title", &source, ""));
    const CFont* now = LookupFont(table, "Title");
    ASSERT_NE(nullptr, now);
    EXPECT_NE(&source, now);
    EXPECT_NE(source.m_hObject, now->m_hObject);
    LOGFONTA lf = Description(now);
    EXPECT_EQ(-31, lf.lfHeight);  // a screen font: not scaled again
    EXPECT_EQ(800, lf.lfWeight);
    EXPECT_EQ(134, lf.lfCharSet);
    EXPECT_STREQ(kHei, lf.lfFaceName);
    EXPECT_STREQ("old", GetFontDes(table, "Title"));
    ASSERT_TRUE(SetFont(table, "Title", &source, "new"));
    EXPECT_STREQ("new", GetFontDes(table, "Title"));
}

TEST_F(Fonts, SetFontAddsAMissingKey)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\""))));
    CFont source;
    LOGFONTA wanted = {};
    wanted.lfHeight = -9;
    ASSERT_TRUE(source.CreateFontIndirect(&wanted));
    ASSERT_TRUE(SetFont(table, "New", &source, "d"));
    EXPECT_EQ(2u, table.fonts.size());
    EXPECT_EQ(-9, Of("New").lfHeight);
    EXPECT_STREQ("New", table.fonts.at("New").name);
}

TEST_F(Fonts, SetFontWithAnUnreadableSourceDropsTheEntry)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"DEFAULT\"") + Font("kivfontname=\"A\"") + Font("kivfontname=\"B\""))));
    CFont empty;
    EXPECT_FALSE(SetFont(table, "A", &empty, "x"));
    EXPECT_EQ(0u, table.fonts.count("A"));
    EXPECT_FALSE(SetFont(table, "DEFAULT", nullptr, "x"));
    EXPECT_EQ(0u, table.fonts.count("DEFAULT"));
    // The entry's own font is deleted before it could be read.
    EXPECT_FALSE(SetFont(table, "B", LookupFont(table, "B"), "x"));
    EXPECT_TRUE(table.fonts.empty());
}

// ---- Writing ----

TEST_F(Fonts, SaveRewritesTheFontsSectionInKeyOrder)
{
    std::string xml = Scheme(std::string("<font kivfontname=\"b\" facename=\"") + kHei +
                             "\" height=\"-14\" weight=\"700\" itatic=\"1\" charset=\"134\" des=\"" + kTitle + "\" />\n"
                             "<font kivfontname=\"a\" quality=\"2\" outprecision=\"7\" pitchandfamily=\"34\" underline=\"1\" />\n"
                             "<font />\n<junk kivfontname=\"b\" />\n");
    ASSERT_TRUE(Load(xml));
    ASSERT_TRUE(SaveFonts(table, Path("scheme.xml")));
    TiXmlDocument doc;
    std::vector<const TiXmlElement*> fonts = SavedFonts(doc);
    ASSERT_EQ(2u, fonts.size());
    std::vector<std::string> order;
    for (const TiXmlAttribute* a = fonts[1]->FirstAttribute(); a; a = a->Next()) order.push_back(a->Name());
    EXPECT_EQ((std::vector<std::string>{"kivfontname", "facename", "height", "width", "weight", "itatic",
                                        "underline", "quality", "charset", "outprecision",
                                        "pitchandfamily", "des"}),
              order);
    EXPECT_STREQ("font", fonts[0]->Value());
    EXPECT_STREQ("a", fonts[0]->Attribute("kivfontname"));
    EXPECT_STREQ("2", fonts[0]->Attribute("quality"));
    EXPECT_STREQ("7", fonts[0]->Attribute("outprecision"));
    EXPECT_STREQ("34", fonts[0]->Attribute("pitchandfamily"));
    EXPECT_STREQ("1", fonts[0]->Attribute("underline"));
    EXPECT_STREQ(kSong, fonts[0]->Attribute("facename"));
    EXPECT_STREQ("b", fonts[1]->Attribute("kivfontname"));
    EXPECT_STREQ(kHei, fonts[1]->Attribute("facename"));
    EXPECT_STREQ("-14", fonts[1]->Attribute("height"));
    EXPECT_STREQ("0", fonts[1]->Attribute("width"));
    EXPECT_STREQ("700", fonts[1]->Attribute("weight"));
    EXPECT_STREQ("1", fonts[1]->Attribute("itatic"));
    EXPECT_STREQ("134", fonts[1]->Attribute("charset"));
    EXPECT_STREQ(kTitle, fonts[1]->Attribute("des"));
    // The colours beside the fonts survive.
    EXPECT_STREQ("TEXT", doc.FirstChildElement()->FirstChildElement("colors")->FirstChildElement()->Attribute("name"));
}

TEST_F(Fonts, SavedFontsReadBackTheSame)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\" height=\"-13\" weight=\"700\" itatic=\"1\" charset=\"134\" des=\"d\""))));
    ASSERT_TRUE(SaveFonts(table, Path("scheme.xml")));
    kiv_skin::FontTable again;
    ASSERT_TRUE(LoadFonts(Path("scheme.xml"), again));
    LOGFONTA a = Of("A"), b = Description(LookupFont(again, "A"));
    EXPECT_EQ(0, std::memcmp(&a, &b, sizeof(LOGFONTA)));
    EXPECT_STREQ("d", GetFontDes(again, "A"));
}

TEST_F(Fonts, SaveAnEmptyTableEmptiesTheSection)
{
    WriteFileBytes(scratch.Path("scheme.xml"), Scheme(Font("kivfontname=\"A\"")));
    kiv_skin::FontTable empty;
    ASSERT_TRUE(SaveFonts(empty, Path("scheme.xml")));
    TiXmlDocument doc;
    EXPECT_TRUE(SavedFonts(doc).empty());
    EXPECT_NE(nullptr, doc.FirstChildElement()->FirstChildElement("fonts"));
}

TEST_F(Fonts, SaveIntoAFileWithoutFontsFailsAndLeavesItUnchanged)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\""))));
    std::string colours = "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<globals>\n<colors />\n</globals>\n";
    WriteFileBytes(scratch.Path("colours.xml"), colours);
    EXPECT_FALSE(SaveFonts(table, Path("colours.xml")));
    EXPECT_EQ(colours, ReadFileBytes(scratch.Path("colours.xml")));
}

TEST_F(Fonts, SaveNeverCreatesAFile)
{
    ASSERT_TRUE(Load(Scheme(Font("kivfontname=\"A\""))));
    EXPECT_FALSE(SaveFonts(table, Path("new.xml")));
    EXPECT_FALSE(FileExists(scratch.Path("new.xml")));
    WriteFileBytes(scratch.Path("broken.xml"), "<globals><fonts>");
    EXPECT_FALSE(SaveFonts(table, Path("broken.xml")));
    EXPECT_EQ("<globals><fonts>", ReadFileBytes(scratch.Path("broken.xml")));
}

// ---- Ownership ----

TEST_F(Fonts, LoadingAndReplacingLeakNoGdiObject)
{
    std::string xml = Scheme(Font("kivfontname=\"DEFAULT\"") + Font("kivfontname=\"A\" weight=\"700\"") +
                             Font("kivfontname=\"A\"") + Font("kivfontname=\"B\" itatic=\"1\""));
    CFont source;
    LOGFONTA wanted = {};
    wanted.lfHeight = -11;
    ASSERT_TRUE(source.CreateFontIndirect(&wanted));
    ASSERT_TRUE(Load(xml));
    auto cycle = [&] {
        ASSERT_TRUE(LoadFonts(Path("scheme.xml"), table));
        ASSERT_TRUE(SetFont(table, "A", &source, ""));
        ASSERT_TRUE(SetFont(table, "C", &source, "c"));
        kiv_skin::FontTable local;
        ASSERT_TRUE(LoadFonts(Path("scheme.xml"), local));
    };
    cycle();  // the table now holds as many fonts as after every later cycle
    int before = GdiProbeSlot();
    for (int i = 0; i < 300; ++i) cycle();
    EXPECT_EQ(before, GdiProbeSlot());
}

// ---- DPI ----

TEST_F(FontsAt96, SizesStayAsWritten)
{
    ASSERT_TRUE(Load(ScaledFonts()));
    EXPECT_EQ(-16, Of("DEFAULT").lfHeight);
    EXPECT_EQ(-12, Of("S").lfHeight);
    EXPECT_EQ(8, Of("S").lfWidth);
    ASSERT_TRUE(SaveFonts(table, Path("scheme.xml")));
    ASSERT_TRUE(LoadFonts(Path("scheme.xml"), table));
    EXPECT_EQ(-12, Of("S").lfHeight);
    EXPECT_EQ(8, Of("S").lfWidth);
}

TEST_F(FontsAt120, SizesFollowTheScreen)
{
    ASSERT_TRUE(Load(ScaledFonts()));
    EXPECT_EQ(-20, Of("DEFAULT").lfHeight);
    EXPECT_EQ(0, Of("DEFAULT").lfWidth);
    EXPECT_EQ(-15, Of("S").lfHeight);
    EXPECT_EQ(10, Of("S").lfWidth);
}

TEST_F(FontsAt120, EachSaveCycleScalesTheStoredSizesOnceMore)
{
    ASSERT_TRUE(Load(ScaledFonts()));
    ASSERT_TRUE(SaveFonts(table, Path("scheme.xml")));
    TiXmlDocument doc;
    std::vector<const TiXmlElement*> fonts = SavedFonts(doc);
    ASSERT_EQ(2u, fonts.size());
    EXPECT_STREQ("-15", fonts[1]->Attribute("height"));
    EXPECT_STREQ("10", fonts[1]->Attribute("width"));
    ASSERT_TRUE(LoadFonts(Path("scheme.xml"), table));
    EXPECT_EQ(-19, Of("S").lfHeight);  // -18.75 rounds away from zero
    EXPECT_EQ(13, Of("S").lfWidth);    // 12.5 likewise
    EXPECT_EQ(-25, Of("DEFAULT").lfHeight);
}

TEST_F(FontsAt120, ReplacedFontsAreNotScaled)
{
    ASSERT_TRUE(Load(ScaledFonts()));
    CFont source;
    LOGFONTA wanted = {};
    wanted.lfHeight = -12;
    ASSERT_TRUE(source.CreateFontIndirect(&wanted));
    ASSERT_TRUE(SetFont(table, "S", &source, ""));
    EXPECT_EQ(-12, Of("S").lfHeight);
}

// A 200 % screen doubles every size; a save writes the doubled sizes, which the next load
// doubles again.
TEST_F(FontsAt192, SizesDoubleAndEachSaveCycleDoublesThemAgain)
{
    ASSERT_TRUE(Load(ScaledFonts()));
    EXPECT_EQ(-32, Of("DEFAULT").lfHeight);
    EXPECT_EQ(-24, Of("S").lfHeight);
    EXPECT_EQ(16, Of("S").lfWidth);
    ASSERT_TRUE(SaveFonts(table, Path("scheme.xml")));
    ASSERT_TRUE(LoadFonts(Path("scheme.xml"), table));
    EXPECT_EQ(-48, Of("S").lfHeight);
    EXPECT_EQ(32, Of("S").lfWidth);
}

TEST_F(FontsScaleOffAt120, SizesStayAsWritten)
{
    ASSERT_TRUE(Load(ScaledFonts()));
    EXPECT_EQ(-16, Of("DEFAULT").lfHeight);
    EXPECT_EQ(-12, Of("S").lfHeight);
    EXPECT_EQ(8, Of("S").lfWidth);
}

TEST_F(FontsAxesAt120, WidthFollowsTheVerticalRatio)
{
    // Design DPI 96 across and 80 down: both sizes scale by 120/80, none by 120/96.
    ASSERT_TRUE(Load(ScaledFonts()));
    EXPECT_EQ(-18, Of("S").lfHeight);
    EXPECT_EQ(12, Of("S").lfWidth);
    EXPECT_EQ(-24, Of("DEFAULT").lfHeight);
}
