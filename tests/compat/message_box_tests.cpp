// AfxMessageBox: the box a user sees, found from a timer and answered through its own button.
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

BOOL CALLBACK AnswerIfBox(HWND hwnd, LPARAM)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof(name));
    if (std::string(name) != "#32770" || !IsWindowVisible(hwnd) || GetDlgItem(hwnd, g_answer) == nullptr)
        return TRUE;
    char caption[MAX_PATH] = "";
    GetWindowTextA(hwnd, caption, MAX_PATH);
    g_seen.caption = caption;
    g_seen.hasText = FindWindowExA(hwnd, nullptr, "Static", g_text) != nullptr;
    g_seen.owner = GetWindow(hwnd, GW_OWNER);
    PostMessageA(GetDlgItem(hwnd, g_answer), BM_CLICK, 0, 0);
    return FALSE;
}

void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), &AnswerIfBox, 0); }

// Answers the next box with the given button; gives up after a few seconds.
class Answerer {
public:
    Answerer(int answer, const char* text) : m_timer(SetTimer(nullptr, 0, 20, &Answer))
    {
        g_seen = SeenBox();
        g_answer = answer;
        g_text = text;
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
