// The style dialog on catalogues made for its edge cases, written beside this program before each
// test: no catalogue at all, an empty one, a scheme with fewer fonts or colours than its index
// in the catalogue, and a colour row whose key is blank.
#include "support/dialog_driver.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/styledlg/style_dlg.h"
#include "support/test_files.h"
#include <gtest/gtest.h>
#include <cstdio>
#include <vector>

using kiv_skin::CStyleDlg;

namespace {

const char kOutOfRange[] = "invalid vector<T> subscript";

struct SchemeSpec {
    std::string name;
    std::vector<std::pair<std::string, std::string>> colors;  // name, value
    int fonts;
};

std::string CatalogueDir() { return ExeDir() + "cfg\\kiv_skin\\"; }

std::string ColourFontFile(const SchemeSpec& scheme)
{
    std::string text = "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<globals>\n    <colors>\n";
    for (const auto& color : scheme.colors)
        text += "        <color name=\"" + color.first + "\" value=\"" + color.second + "\" des=\"" + color.first + "\" />\n";
    text += "    </colors>\n    <fonts>\n";
    for (int i = 0; i < scheme.fonts; ++i)
        text += "        <font kivfontname=\"FONT" + std::to_string(i) + "\" facename=\"Tahoma\" height=\"-12\" des=\"font " +
                std::to_string(i) + "\" />\n";
    return text + "    </fonts>\n</globals>\n";
}

// Writes the catalogue and each scheme's colour/font file; the first scheme is the default.
void WriteCatalogue(const std::vector<SchemeSpec>& schemes)
{
    std::string catalogue = "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<config>\n";
    for (size_t i = 0; i < schemes.size(); ++i) {
        const std::string& name = schemes[i].name;
        catalogue += "    <style name=\"" + name + "\" default=\"" + (i == 0 ? "1" : "0") + "\" des=\"" + name + "\">\n" +
                     "        <colorfont file=\"" + name + ".xml\" />\n        <img file=\"images.xml\" />\n    </style>\n";
        WriteFileBytes(CatalogueDir() + name + ".xml", ColourFontFile(schemes[i]));
    }
    WriteFileBytes(CatalogueDir() + "style.xml", catalogue + "</config>\n");
    WriteFileBytes(CatalogueDir() + "images.xml", "<images />\n");
}

const std::vector<std::pair<std::string, std::string>> kThreeColours = {
    {"DEFCOLOR", "0x00C0C0C0"}, {"PLUG_BGCOLOR", "0x00000000"}, {"PLUG_FRAME", "0x00585050"}};

class StyleDlgEdgeTest : public ::testing::Test {
protected:
    void SetUp() override { AfxSetResourceHandle(LoadLibraryA("kiv_skin.dll")); }
    void TearDown() override
    {
        EXPECT_FALSE(driver.TimedOut());
        EXPECT_TRUE(driver.AllStepsRan());
        EXPECT_EQ(nullptr, FindStyleDialog());
        DeleteFileA((CatalogueDir() + "style.xml").c_str());
    }
    // Runs SetKivStyle and answers the text of the error that ended it, or "".
    std::string SetKivStyleError()
    {
        CString name;
        try {
            kiv_skin::KivStyleMgr::GetInstance()->SetKivStyle(name);
        } catch (const std::out_of_range& error) {
            return error.what();
        }
        return "";
    }

    DialogDriver driver;
};

}  // namespace

// Without a catalogue the dialog opens with empty controls and can still be closed.
TEST_F(StyleDlgEdgeTest, MissingCatalogueLeavesTheControlsEmpty)
{
    DeleteFileA((CatalogueDir() + "style.xml").c_str());
    int schemes = -1, colours = -1;
    driver.Wait(200).Then([&] {
        HWND hwnd = FindStyleDialog();
        if (hwnd == nullptr) return false;
        schemes = static_cast<int>(SendDlgItemMessageA(hwnd, 1005, CB_GETCOUNT, 0, 0));
        colours = static_cast<int>(SendDlgItemMessageA(hwnd, 1006, LB_GETCOUNT, 0, 0));
        return true;
    });
    driver.Then(Press(IDCANCEL));
    CStyleDlg dialog;
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(0, schemes);
    EXPECT_EQ(0, colours);
    EXPECT_EQ(0, dialog.m_bInited);
}

TEST_F(StyleDlgEdgeTest, EmptyCatalogueEndsTheDialogWithAnOutOfRangeError)
{
    WriteCatalogue({});
    EXPECT_EQ(kOutOfRange, SetKivStyleError());
}

// The second scheme has one font: its index, 1, has no font key.
TEST_F(StyleDlgEdgeTest, SchemeWithFewerFontsThanItsIndexEndsTheDialogWithAnOutOfRangeError)
{
    WriteCatalogue({{"first", kThreeColours, 2}, {"second", kThreeColours, 1}});
    driver.Wait(200).Then(SelectScheme(1));
    EXPECT_EQ(kOutOfRange, SetKivStyleError());
}

// The third scheme has one colour: the colour being edited is number 2, which it lacks.
TEST_F(StyleDlgEdgeTest, ColourIndexBeyondTheColourListEndsTheDialogWithAnOutOfRangeError)
{
    WriteCatalogue({{"first", kThreeColours, 3}, {"second", kThreeColours, 3}, {"third", {{"DEFCOLOR", "0x00C0C0C0"}}, 3}});
    driver.Wait(200).Then(SelectScheme(2)).Then(Press(1008)).Then(KeepColor());
    EXPECT_EQ(kOutOfRange, SetKivStyleError());
}

// A row whose key is blank keeps the colour shown from the row before; choosing that colour
// again does not modify the scheme but writes it into the blank-keyed entry.
TEST_F(StyleDlgEdgeTest, ColourChosenAgainIsWrittenIntoTheWorkingTable)
{
    WriteCatalogue({{"first", {{"PLUG_FRAME", "0x00ABCDEF"}, {"   ", "0x00000001"}, {"DEFCOLOR", "0x00C0C0C0"}}, 1}});
    driver.Then(PickListRow(1006, 1)).Then(Press(1008)).Then(KeepColor()).Then(Press(IDCANCEL));
    CStyleDlg dialog;
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(0, dialog.m_bColorModified);
    EXPECT_TRUE(dialog.m_strColorKey.IsEmpty());
    ASSERT_EQ(3u, dialog.m_styleWork.colors.entries.size());
    EXPECT_EQ("", std::string(dialog.m_styleWork.colors.entries[1].name));
    EXPECT_EQ(0x00ABCDEFu, dialog.m_styleWork.colors.entries[1].color);
    EXPECT_EQ(0x00000001u, dialog.m_vecColors[1].color);  // the list's copy is left alone
}
