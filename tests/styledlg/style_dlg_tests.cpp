// The style dialog itself on the sample schemes, driven as a user would: the confirmation prompt
// and its two answers, the list of saved schemes, the colour display, the preview's clock and
// the row a click highlights, read back from the screen.
#include "support/dialog_driver.h"
#include "kiv_skin/styledlg/style_dlg.h"
#include "support/scheme_files.h"
#include "support/dib_canvas.h"
#include "support/dc_state.h"
#include <gtest/gtest.h>
#include <memory>

using kiv_skin::CStyleDlg;

namespace {

const COLORREF kEdited = RGB(0x12, 0x34, 0x56);
const COLORREF kEditedAgain = RGB(0x65, 0x43, 0x21);
const int kDark = 0, kLight = 1;
const wchar_t kPrompt[] = L"颜色或字体已经改变，要确认修改吗？";
const int kCaptionAllowance = 23;

// The dialog's client area as the screen shows it, read from its window context.
std::shared_ptr<DibCanvas> CaptureClient(HWND hwnd)
{
    RECT client = {};
    GetClientRect(hwnd, &client);
    auto canvas = std::make_shared<DibCanvas>(client.right, client.bottom);
    HDC window = GetDC(hwnd);
    BitBlt(canvas->dc()->m_hDC, 0, 0, client.right, client.bottom, window, 0, 0, SRCCOPY);
    ReleaseDC(hwnd, window);
    return canvas;
}

// Pixels that differ between two captures, and the rectangle around them.
struct Difference {
    int count = 0;
    CRect bounds;
};

Difference Compare(const DibCanvas& a, const DibCanvas& b, const RECT& area)
{
    Difference d;
    d.bounds.SetRect(area.right, area.bottom, area.left, area.top);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (a.Pixel(x, y) == b.Pixel(x, y)) continue;
            ++d.count;
            d.bounds.SetRect(std::min<int>(d.bounds.left, x), std::min<int>(d.bounds.top, y),
                             std::max<int>(d.bounds.right, x + 1), std::max<int>(d.bounds.bottom, y + 1));
        }
    }
    return d;
}

class StyleDlgTest : public ::testing::Test {
protected:
    // The resource handle stays the program's: the dialog's template comes from the library
    // through the resource chain.
    void SetUp() override
    {
        frameRow = RowInDarkAndLight(files, "PLUG_FRAME");
        ASSERT_GE(frameRow, 0);
    }
    void TearDown() override
    {
        EXPECT_FALSE(driver.TimedOut());
        EXPECT_TRUE(driver.AllStepsRan());
    }
    // The font key at index of the scheme's file, in the order the font list shows them.
    CString FontKeyAt(const char* scheme, size_t index)
    {
        kiv_skin::FontTable table;
        kiv_skin::FontNameList keys;
        if (!kiv_skin::LoadFonts(files.Path(scheme).c_str(), table) || !kiv_skin::ListFontNames(table, keys) ||
            keys.size() <= index)
            return "(no such font)";
        return keys[index];
    }
    void EditFrameColor(COLORREF color)
    {
        driver.Then(PickListRow(1006, frameRow)).Then(Press(1008)).Then(AnswerColor(color));
    }
    // Runs a check on the open dialog once it has painted.
    void Check(std::function<void(HWND)> check)
    {
        driver.Wait(300).Then([check] {
            HWND hwnd = FindStyleDialog();
            if (hwnd == nullptr) return false;
            UpdateWindow(hwnd);
            check(hwnd);
            return true;
        });
    }

    SchemeFilesKeeper files;
    int frameRow = -1;
    DialogDriver driver;
    CStyleDlg dialog;
};

}  // namespace

TEST_F(StyleDlgTest, OpensOnTheFirstSchemeWithItsColoursAndFonts)
{
    driver.Wait(200).Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(1, dialog.m_bInited);
    EXPECT_EQ("dark", std::string(dialog.m_strStyle));
    EXPECT_EQ(3u, dialog.m_vecStyles.size());
    kiv_skin::ColorTable dark;
    ASSERT_EQ(1, kiv_skin::LoadColors(dark, files.Path("dark").c_str()));
    ASSERT_FALSE(dark.entries.empty());
    EXPECT_EQ(std::string(dark.entries[0].name), std::string(dialog.m_strColorKey));
    EXPECT_EQ(dark.entries[0].color, dialog.m_clrCurrent);
    EXPECT_EQ(std::string(FontKeyAt("dark", 0)), std::string(dialog.m_strFontKey));
    EXPECT_EQ(0, dialog.m_bColorModified);
    EXPECT_EQ(0, dialog.m_bFontModified);
}

// The scheme's index picks the colour being edited while the list highlights its first row.
TEST_F(StyleDlgTest, SchemeIndexPicksTheColourAndFontBeingEdited)
{
    int listed = -1;
    driver.Then(SelectScheme(kLight));
    Check([&listed](HWND hwnd) { listed = static_cast<int>(SendDlgItemMessageA(hwnd, 1006, LB_GETCURSEL, 0, 0)); });
    driver.Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(0, listed);
    EXPECT_EQ(kLight, dialog.m_nColorSel);
    kiv_skin::ColorTable light;
    ASSERT_EQ(1, kiv_skin::LoadColors(light, files.Path("light").c_str()));
    ASSERT_GT(light.entries.size(), static_cast<size_t>(kLight));
    EXPECT_EQ(light.entries[kLight].color, dialog.m_clrCurrent);
    EXPECT_EQ(std::string(light.entries[kLight].name), std::string(dialog.m_strColorKey));
    EXPECT_EQ(std::string(FontKeyAt("light", kLight)), std::string(dialog.m_strFontKey));
}

TEST_F(StyleDlgTest, CancelledPromptDropsTheEditAndLoadsTheNewSchemeUnchanged)
{
    EditFrameColor(kEdited);
    driver.Then(SelectScheme(kLight)).Then(AnswerMessageBox(kPrompt, IDCANCEL)).Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(files.Original("dark"), files.Current("dark"));
    EXPECT_TRUE(dialog.m_vecSavedStyles.empty());
    EXPECT_EQ(0, dialog.m_bColorModified);
    EXPECT_EQ("light", std::string(dialog.m_strStyle));
    kiv_skin::ColorTable light;
    ASSERT_EQ(1, kiv_skin::LoadColors(light, files.Path("light").c_str()));
    ASSERT_EQ(light.entries.size(), dialog.m_vecColors.size());
    for (size_t i = 0; i < light.entries.size(); ++i)
        EXPECT_EQ(light.entries[i].color, kiv_skin::LookupColor(dialog.m_styleWork.colors, light.entries[i].name));
}

TEST_F(StyleDlgTest, AgreedPromptSavesTheSchemeLeftBehindExactly)
{
    EditFrameColor(kEdited);
    driver.Then(SelectScheme(kLight)).Then(AnswerMessageBox(kPrompt, IDOK)).Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(WithColorValue(files.Original("dark"), "PLUG_FRAME", kEdited), files.Current("dark"));
    EXPECT_EQ(files.Original("light"), files.Current("light"));
    EXPECT_EQ(std::vector<CString>{"dark"}, dialog.m_vecSavedStyles);
}

// Three switches, each agreed: each scheme is listed once, in the order first saved, and the
// file holds the last edit.
TEST_F(StyleDlgTest, SchemesSavedTwiceAreListedOnce)
{
    EditFrameColor(kEdited);
    driver.Then(SelectScheme(kLight)).Then(AnswerMessageBox(kPrompt, IDOK));
    EditFrameColor(kEdited);
    driver.Then(SelectScheme(kDark)).Then(AnswerMessageBox(kPrompt, IDOK));
    EditFrameColor(kEditedAgain);
    driver.Then(SelectScheme(kLight)).Then(AnswerMessageBox(kPrompt, IDOK)).Then(Press(IDOK));
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ((std::vector<CString>{"dark", "light"}), dialog.m_vecSavedStyles);
    EXPECT_EQ(WithColorValue(files.Original("dark"), "PLUG_FRAME", kEditedAgain), files.Current("dark"));
    EXPECT_EQ(WithColorValue(files.Original("light"), "PLUG_FRAME", kEdited), files.Current("light"));
}

// OK saves the edited scheme once and leaves the flag set for the caller.
TEST_F(StyleDlgTest, OkSavesTheEditedColourAndShowsItInTheColourDisplay)
{
    COLORREF swatch = 0;
    EditFrameColor(kEdited);
    Check([this, &swatch](HWND hwnd) {
        std::shared_ptr<DibCanvas> shot = CaptureClient(hwnd);
        CRect area(dialog.m_rcColor);
        swatch = shot->Pixel(area.CenterPoint().x, area.CenterPoint().y);
    });
    driver.Then(Press(IDOK));
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(kEdited, swatch);
    EXPECT_EQ(1, dialog.m_bColorModified);
    EXPECT_TRUE(dialog.m_vecSavedStyles.empty());
    EXPECT_EQ(WithColorValue(files.Original("dark"), "PLUG_FRAME", kEdited), files.Current("dark"));
}

TEST_F(StyleDlgTest, SameColourChosenAgainLeavesTheSchemeUnmodified)
{
    driver.Then(PickListRow(1006, frameRow)).Then(Press(1008)).Then(KeepColor()).Then(Press(IDOK));
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(0, dialog.m_bColorModified);
    EXPECT_EQ(files.Original("dark"), files.Current("dark"));
}

namespace {

LOGFONTA FontOf(const kiv_skin::FontTable& table, const char* key)
{
    LOGFONTA font = {};
    const CFont* found = kiv_skin::LookupFont(table, key);
    if (found != nullptr) const_cast<CFont*>(found)->GetLogFont(&font);
    return font;
}

}  // namespace

// Only face and size are taken from the font dialog; OK writes the fonts into the scheme file.
TEST_F(StyleDlgTest, ChosenFontReplacesTheEditedOneAndOkWritesIt)
{
    driver.Then(Press(1010)).Then(AnswerFont("DejaVu Sans", "12")).Wait(200).Then(Press(IDOK));
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(1, dialog.m_bFontModified);
    EXPECT_EQ(0, dialog.m_bColorModified);
    ASSERT_EQ("DEFAULT", std::string(dialog.m_strFontKey));
    LOGFONTA edited = FontOf(dialog.m_styleWork.fonts, "DEFAULT");
    EXPECT_EQ("DejaVu Sans", std::string(edited.lfFaceName));
    EXPECT_EQ(-16, edited.lfHeight);  // 12 points at 96 DPI
    kiv_skin::FontTable saved;
    ASSERT_TRUE(kiv_skin::LoadFonts(files.Path("dark").c_str(), saved));
    EXPECT_EQ("DejaVu Sans", std::string(FontOf(saved, "DEFAULT").lfFaceName));
    EXPECT_EQ(-16, FontOf(saved, "DEFAULT").lfHeight);
}

// Two captures of the preview's title two ticks of its clock apart differ, and only where the
// clock stands. (One tick apart, a tick that comes a little early can repaint the same second.)
TEST_F(StyleDlgTest, ClockInThePreviewTitleAdvances)
{
    std::shared_ptr<DibCanvas> first, second;
    Check([&first](HWND hwnd) { first = CaptureClient(hwnd); });
    driver.Wait(2100);
    Check([&second](HWND hwnd) { second = CaptureClient(hwnd); });
    driver.Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    ASSERT_TRUE(first && second);
    CRect title(dialog.m_rcTitle);
    DibCanvas measure(1, 1);
    measure.dc()->SelectObject(const_cast<CFont*>(kiv_skin::LookupFont(dialog.m_styleWork.fonts, dialog.m_strFontKey)));
    CSize a = measure.dc()->GetTextExtent("A", 1);
    CRect clock(title.right - 8 * a.cx, title.bottom - a.cy, title.right, title.bottom);
    CRect preview(dialog.m_rcPreview);
    Difference d = Compare(*first, *second, preview);
    EXPECT_GT(d.count, 0);
    EXPECT_GE(d.bounds.left, clock.left);
    EXPECT_GE(d.bounds.top, clock.top);
    EXPECT_LE(d.bounds.right, clock.right);
    EXPECT_LE(d.bounds.bottom, clock.bottom);
}

namespace {

// The client point whose click the dialog takes for target: it adds the window's corner to the
// point, maps that back to the client area and moves it 23 pixels down.
CPoint ClickFor(HWND hwnd, CPoint target)
{
    RECT window = {};
    GetWindowRect(hwnd, &window);
    POINT client = {0, 0};
    ClientToScreen(hwnd, &client);
    return CPoint(target.x + client.x - window.left, target.y + client.y - window.top - kCaptionAllowance);
}

}  // namespace

// The dialog adds the window's corner to the click, maps it back into the client area and moves
// it 23 pixels down: the click is placed so that it lands on the middle row after that.
TEST_F(StyleDlgTest, ClickMovedByTheCaptionAllowanceHighlightsThatRow)
{
    std::shared_ptr<DibCanvas> before, after;
    CPoint click;
    Check([&](HWND hwnd) {
        before = CaptureClient(hwnd);
        click = ClickFor(hwnd, CRect(dialog.m_rcRows[1]).CenterPoint());
        PostMessageA(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(click.x, click.y));
        PostMessageA(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(click.x, click.y));
    });
    Check([&](HWND hwnd) { after = CaptureClient(hwnd); });
    driver.Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    ASSERT_TRUE(before && after);
    EXPECT_EQ(1, dialog.m_nHotRow);
    COLORREF selection = kiv_skin::LookupColor(dialog.m_styleWork.colors, "PLUG_SELCOLOR");
    CRect hot(dialog.m_rcRows[1]);
    hot.DeflateRect(4, 1);
    EXPECT_EQ(0, before->Count(selection, hot));
    EXPECT_GT(after->Count(selection, hot), hot.Width() * hot.Height() / 2);
    EXPECT_EQ(0, after->Count(selection, dialog.m_rcRows[0]));
    EXPECT_EQ(0, after->Count(selection, dialog.m_rcRows[2]));
}

// A click that lands on no row once moved highlights nothing.
TEST_F(StyleDlgTest, ClickOutsideTheRowsHighlightsNothing)
{
    Check([&](HWND hwnd) {
        CPoint click = ClickFor(hwnd, CRect(dialog.m_rcTitle).CenterPoint());
        PostMessageA(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(click.x, click.y));
    });
    driver.Wait(100).Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(-1, dialog.m_nHotRow);
}

// The dialog's own repaints (a colour and a font picked, the clock's tick), over and over: a
// round ends with as many live GDI objects as the round before it ended with, counted by the
// many-probe ceiling (one probe's slot would only show the slot last freed). Wine's own painting
// of the window, behind WM_PAINT, is left out of the rounds.
TEST_F(StyleDlgTest, RepaintsLeaveNoGdiObjectBehind)
{
    int first = 0, second = 0;
    Check([&](HWND hwnd) {
        auto repaint = [hwnd] {
            for (int i = 0; i < 100; ++i) {
                for (int list : {1006, 1004})
                    SendMessageA(hwnd, WM_COMMAND, MAKEWPARAM(list, LBN_SELCHANGE),
                                 reinterpret_cast<LPARAM>(GetDlgItem(hwnd, list)));
                SendMessageA(hwnd, WM_TIMER, 1, 0);
            }
            return GdiProbeSlot();
        };
        repaint();  // the first round makes what lives on
        first = repaint();
        second = repaint();
    });
    driver.Then(Press(IDCANCEL));
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_GT(first, 0);
    EXPECT_EQ(first, second);
}
