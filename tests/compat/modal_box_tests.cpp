// AfxMessageBox, CFontDialog and CColorDialog: the box a user sees, found from a timer and answered through
// its own button.
#include <afxdlgs.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>

namespace {

// What the answering timer saw of the box.
struct SeenBox {
    std::string caption;
    bool hasText = false;
    HWND owner = nullptr;
};
SeenBox g_seen;
int g_answer = IDOK;
const char* g_text = "";
int g_ticks = 0;
const int kGiveUpTicks = 250;  // 5 s of 20 ms ticks

bool IsDialogWindow(HWND hwnd)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof(name));
    return std::string(name) == "#32770";
}

BOOL CALLBACK EndIfBox(HWND hwnd, LPARAM)
{
    if (IsDialogWindow(hwnd)) EndDialog(hwnd, -1);
    return TRUE;
}

BOOL CALLBACK AnswerIfBox(HWND hwnd, LPARAM)
{
    if (!IsDialogWindow(hwnd) || !IsWindowVisible(hwnd) || GetDlgItem(hwnd, g_answer) == nullptr) return TRUE;
    char caption[MAX_PATH] = "";
    GetWindowTextA(hwnd, caption, MAX_PATH);
    g_seen.caption = caption;
    g_seen.hasText = FindWindowExA(hwnd, nullptr, "Static", g_text) != nullptr;
    g_seen.owner = GetWindow(hwnd, GW_OWNER);
    PostMessageA(GetDlgItem(hwnd, g_answer), BM_CLICK, 0, 0);
    return FALSE;
}

void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD)
{
    EnumThreadWindows(GetCurrentThreadId(), ++g_ticks < kGiveUpTicks ? &AnswerIfBox : &EndIfBox, 0);
}

// Answers the next box with the given button; after a few seconds without one, ends every
// dialog of the thread with -1 so that the test fails instead of hanging.
class Answerer {
public:
    Answerer(int answer, const char* text) : m_timer(SetTimer(nullptr, 0, 20, &Answer))
    {
        g_seen = SeenBox();
        g_answer = answer;
        g_text = text;
        g_ticks = 0;
    }
    ~Answerer() { KillTimer(nullptr, m_timer); }

private:
    UINT_PTR m_timer;
};

}  // namespace

TEST(AfxMessageBox, AnswersTheButtonPressedAndNamesTheProgram)
{
    Answerer answerer(IDCANCEL, "Keep the changes?");
    EXPECT_EQ(IDCANCEL, AfxMessageBox("Keep the changes?", MB_OKCANCEL | MB_ICONINFORMATION));
    EXPECT_EQ("compat_window_tests", g_seen.caption);
    EXPECT_TRUE(g_seen.hasText);
}

TEST(AfxMessageBox, IsOwnedByTheActiveWindow)
{
    HWND active = CreateWindowExA(0, "STATIC", "owner", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                  GetModuleHandleA(nullptr), nullptr);
    SetActiveWindow(active);
    ASSERT_EQ(active, GetActiveWindow());
    Answerer answerer(IDOK, "Done.");
    EXPECT_EQ(IDOK, AfxMessageBox("Done."));
    EXPECT_EQ(active, g_seen.owner);
    DestroyWindow(active);
}

namespace {

LOGFONTA TwelvePoint(const char* face)
{
    LOGFONTA font = {};
    font.lfHeight = -16;  // 12 points at 96 DPI
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(font.lfFaceName, face, LF_FACESIZE);
    return font;
}

}  // namespace

TEST(CFontDialog, OkAnswersTheInitialFontWithItsPointSize)
{
    LOGFONTA initial = TwelvePoint("DejaVu Sans");
    CFontDialog dialog(&initial, CF_SCREENFONTS | CF_EFFECTS);
    EXPECT_EQ(static_cast<DWORD>(CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT), dialog.m_cf.Flags);
    Answerer answerer(IDOK, "");
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ("DejaVu Sans", std::string(dialog.GetFaceName()));
    EXPECT_EQ(120, dialog.GetSize());
    LOGFONTA chosen = {};
    dialog.GetCurrentFont(&chosen);
    EXPECT_EQ("DejaVu Sans", std::string(chosen.lfFaceName));
    EXPECT_EQ(-16, chosen.lfHeight);
    EXPECT_EQ("DejaVu Sans", std::string(initial.lfFaceName));  // the caller's copy is left alone
}

TEST(CFontDialog, CancelAnswersIdcancel)
{
    CFontDialog dialog;
    EXPECT_EQ(static_cast<DWORD>(CF_EFFECTS | CF_SCREENFONTS), dialog.m_cf.Flags);
    Answerer answerer(IDCANCEL, "");
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST(CColorDialog, OkAnswersTheInitialColour)
{
    CColorDialog dialog(RGB(10, 20, 30), CC_SOLIDCOLOR);
    EXPECT_EQ(static_cast<DWORD>(CC_SOLIDCOLOR | CC_RGBINIT), dialog.m_cc.Flags);
    EXPECT_EQ(CColorDialog::GetSavedCustomColors(), dialog.m_cc.lpCustColors);
    Answerer answerer(IDOK, "");
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(RGB(10, 20, 30), dialog.GetColor());
}

TEST(CColorDialog, CancelAnswersIdcancelAndKeepsTheColour)
{
    CColorDialog dialog;
    EXPECT_EQ(0u, dialog.m_cc.Flags);  // black is no initial colour
    Answerer answerer(IDCANCEL, "");
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(RGB(0, 0, 0), dialog.GetColor());
}
