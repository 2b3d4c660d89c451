#include "demo/dialog_shots.h"
#include "demo/console.h"
#include "demo/picture.h"
#include "kiv_base/text.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include <cstdio>

namespace {

const UINT kTickMs = 50;
const int kSettleTicks = 8;       // ticks between selecting a scheme and taking its picture
const int kGiveUpTicks = 600;     // 30 s: the editor is ended if it is still open then
const int kSchemeCombo = 1005;

struct ShotRun {
    std::string folder;
    size_t scheme = 0;
    int ticks = 0;
    int settle = 0;
    int written = 0;
};
ShotRun g_run;

bool IsStyleEditor(HWND hwnd)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof(name));
    return std::string(name) == "#32770" && IsWindowVisible(hwnd) && GetDlgItem(hwnd, kSchemeCombo) != nullptr;
}

BOOL CALLBACK KeepStyleEditor(HWND hwnd, LPARAM param)
{
    if (!IsStyleEditor(hwnd)) return TRUE;
    *reinterpret_cast<HWND*>(param) = hwnd;
    return FALSE;
}

HWND FindStyleEditor()
{
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), KeepStyleEditor, reinterpret_cast<LPARAM>(&found));
    return found;
}

// The window's client area as the screen shows it. (Under an X server without a window manager
// nobody draws the caption, so the picture leaves the frame out.)
bool SaveWindow(HWND hwnd, const CString& scheme)
{
    RECT client = {};
    GetClientRect(hwnd, &client);
    Picture picture(client.right, client.bottom, RGB(255, 255, 255));
    HDC window = GetDC(hwnd);
    BitBlt(picture.dc()->m_hDC, 0, 0, client.right, client.bottom, window, 0, 0, SRCCOPY);
    ReleaseDC(hwnd, window);
    std::string path = g_run.folder + "\\" + static_cast<const char*>(scheme) + "_dialog.png";
    HRESULT hr = picture.SaveAsPng(kiv_base::text::AnsiToUtf(path));
    std::printf(FAILED(hr) ? "  could not write %s\n" : "  %s\n", path.c_str());
    return SUCCEEDED(hr);
}

void SelectScheme(HWND editor, size_t index)
{
    HWND combo = GetDlgItem(editor, kSchemeCombo);
    SendMessageA(combo, CB_SETCURSEL, index, 0);
    PostMessageA(editor, WM_COMMAND, MAKEWPARAM(kSchemeCombo, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

// Each tick: select the next scheme, let it paint, take its picture; cancel after the last.
void CALLBACK Step(HWND, UINT, UINT_PTR, DWORD)
{
    HWND editor = FindStyleEditor();
    const auto& schemes = kiv_skin::StyleCatalogue::Instance()->m_entries;
    if (++g_run.ticks > kGiveUpTicks && editor != nullptr) EndDialog(editor, IDCANCEL);
    if (editor == nullptr || g_run.ticks > kGiveUpTicks) return;
    if (g_run.scheme >= schemes.size()) {
        PostMessageA(GetDlgItem(editor, IDCANCEL), BM_CLICK, 0, 0);
        return;
    }
    if (g_run.settle == 0) SelectScheme(editor, g_run.scheme);
    if (++g_run.settle < kSettleTicks) return;
    if (SaveWindow(editor, schemes[g_run.scheme].name)) ++g_run.written;
    ++g_run.scheme;
    g_run.settle = 0;
}

}  // namespace

bool RenderDialogShots(const std::string& folder)
{
    PrintHeading("Style editor");
    g_run = ShotRun();
    g_run.folder = folder;
    UINT_PTR timer = SetTimer(nullptr, 0, kTickMs, &Step);
    CString name;
    kiv_skin::KivStyleMgr::GetInstance()->SetKivStyle(name);
    KillTimer(nullptr, timer);
    size_t schemes = kiv_skin::StyleCatalogue::Instance()->m_entries.size();
    return schemes > 0 && g_run.written == static_cast<int>(schemes);
}
