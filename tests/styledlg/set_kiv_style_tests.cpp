// KivStyleMgr::SetKivStyle on the sample schemes installed beside this program, the style dialog
// driven as a user would: what it answers, which files it wrote, and which scheme the manager
// then holds. Every test puts the files and the active scheme back.
#include "support/dialog_driver.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/color_table.h"
#include "kiv_skin/style/font_table.h"
#include "support/scheme_files.h"
#include <gtest/gtest.h>

using kiv_skin::KivStyleMgr;

namespace {

const COLORREF kEdited = RGB(0x12, 0x34, 0x56);
const int kDark = 0, kLight = 1, kNavy = 2;
const wchar_t kPrompt[] = L"颜色或字体已经改变，要确认修改吗？";

class SetKivStyleTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        manager = KivStyleMgr::GetInstance();
        ASSERT_EQ(1, manager->InitStyleMgr());
        ASSERT_EQ(1, manager->LoadStyle("dark"));
        frameRow = RowInDarkAndLight(files, "PLUG_FRAME");
        ASSERT_GE(frameRow, 0);
    }
    void TearDown() override
    {
        EXPECT_FALSE(driver.TimedOut());
        EXPECT_TRUE(driver.AllStepsRan());
    }
    // Selects the frame colour's row and gives it the edited colour.
    void EditFrameColor()
    {
        driver.Then(PickListRow(1006, frameRow)).Then(Press(1008)).Then(AnswerColor(kEdited));
    }
    void ExpectUnchanged(const char* scheme) { EXPECT_EQ(files.Original(scheme), files.Current(scheme)) << scheme; }

    SchemeFilesKeeper files;
    KivStyleMgr* manager = nullptr;
    int frameRow = -1;
    DialogDriver driver;
};

}  // namespace

TEST_F(SetKivStyleTest, EditedColourIsSavedAndTheSchemeReloaded)
{
    COLORREF shown = 0;
    driver.Then(SelectScheme(kLight)).Then(PickListRow(1006, frameRow)).Then(Press(1008));
    driver.Then(AnswerColor(kEdited, &shown)).Then(Press(IDOK));
    kiv_skin::ColorTable original;
    kiv_skin::LoadColors(original, files.Path("light").c_str());
    CString name("before");
    EXPECT_EQ(1, manager->SetKivStyle(name));
    EXPECT_EQ("light", std::string(name));
    EXPECT_EQ(kiv_skin::LookupColor(original, "PLUG_FRAME"), shown);  // the chooser starts from the row's colour
    kiv_skin::ColorTable light;
    ASSERT_EQ(1, kiv_skin::LoadColors(light, files.Path("light").c_str()));
    EXPECT_EQ(kEdited, kiv_skin::LookupColor(light, "PLUG_FRAME"));
    EXPECT_EQ(WithColorValue(files.Original("light"), "PLUG_FRAME", kEdited), files.Current("light"));
    ExpectUnchanged("dark");
    ExpectUnchanged("navy");
    EXPECT_EQ("light", std::string(manager->GetCurrentStyle()));
    EXPECT_EQ(kEdited, manager->GetColor("PLUG_FRAME"));
}

// The dialog opens on the catalogue's first scheme: the chooser starts from its frame colour.
TEST_F(SetKivStyleTest, CancelAnswersZeroWithAnEmptyNameAndSavesNothing)
{
    COLORREF shown = 0;
    driver.Then(PickListRow(1006, frameRow)).Then(Press(1008)).Then(AnswerColor(kEdited, &shown));
    driver.Then(Press(IDCANCEL));
    kiv_skin::ColorTable dark;
    ASSERT_EQ(1, kiv_skin::LoadColors(dark, files.Path("dark").c_str()));
    CString name("before");
    EXPECT_EQ(0, manager->SetKivStyle(name));
    EXPECT_EQ(kiv_skin::LookupColor(dark, "PLUG_FRAME"), shown);
    EXPECT_TRUE(name.IsEmpty());
    ExpectUnchanged("dark");
    EXPECT_EQ("dark", std::string(manager->GetCurrentStyle()));
    EXPECT_NE(kEdited, manager->GetColor("PLUG_FRAME"));
}

// A scheme that was only selected, not edited, is not applied.
TEST_F(SetKivStyleTest, OkOnASchemeOnlySelectedAnswersZeroAndKeepsTheActiveOne)
{
    driver.Then(SelectScheme(kNavy)).Then(Press(IDOK));
    CString name;
    EXPECT_EQ(0, manager->SetKivStyle(name));
    EXPECT_TRUE(name.IsEmpty());
    EXPECT_EQ("dark", std::string(manager->GetCurrentStyle()));
    ExpectUnchanged("navy");
}

// The edits of the scheme left behind are saved when the user agrees; the manager reloads that
// scheme and names the one selected at the end, which was not edited.
TEST_F(SetKivStyleTest, SchemeSavedWhileSwitchingIsReloadedAndTheSelectedOneNamed)
{
    EditFrameColor();
    driver.Then(SelectScheme(kLight)).Then(AnswerMessageBox(kPrompt, IDOK)).Then(Press(IDOK));
    ASSERT_EQ(1, manager->LoadStyle("navy"));
    CString name;
    EXPECT_EQ(1, manager->SetKivStyle(name));
    EXPECT_EQ("light", std::string(name));
    EXPECT_EQ(WithColorValue(files.Original("dark"), "PLUG_FRAME", kEdited), files.Current("dark"));
    ExpectUnchanged("light");
    EXPECT_EQ("dark", std::string(manager->GetCurrentStyle()));
    EXPECT_EQ(kEdited, manager->GetColor("PLUG_FRAME"));
}

// Answering Cancel to the prompt drops the edit: nothing is saved and nothing applied.
TEST_F(SetKivStyleTest, PromptAnsweredCancelDropsTheEdit)
{
    EditFrameColor();
    driver.Then(SelectScheme(kLight)).Then(AnswerMessageBox(kPrompt, IDCANCEL)).Then(Press(IDOK));
    CString name;
    EXPECT_EQ(0, manager->SetKivStyle(name));
    EXPECT_TRUE(name.IsEmpty());
    ExpectUnchanged("dark");
    ExpectUnchanged("light");
    EXPECT_EQ("dark", std::string(manager->GetCurrentStyle()));
    EXPECT_NE(kEdited, manager->GetColor("PLUG_FRAME"));
}

namespace {

std::string FaceOf(const CFont* font)
{
    LOGFONTA description = {};
    if (font != nullptr) const_cast<CFont*>(font)->GetLogFont(&description);
    return description.lfFaceName;
}

}  // namespace

// A font chosen in the font dialog is written by OK and the scheme reloaded with it.
TEST_F(SetKivStyleTest, EditedFontIsSavedAndTheSchemeReloaded)
{
    driver.Then(Press(1010)).Then(AnswerFont("DejaVu Sans", "12")).Wait(200).Then(Press(IDOK));
    CString name;
    EXPECT_EQ(1, manager->SetKivStyle(name));
    EXPECT_EQ("dark", std::string(name));
    kiv_skin::FontTable saved;
    ASSERT_TRUE(kiv_skin::LoadFonts(files.Path("dark").c_str(), saved));
    EXPECT_EQ("DejaVu Sans", FaceOf(kiv_skin::LookupFont(saved, "DEFAULT")));
    EXPECT_EQ("DejaVu Sans", FaceOf(manager->GetFont("DEFAULT")));
    ExpectUnchanged("light");
}
