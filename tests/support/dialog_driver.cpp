#include "dialog_driver.h"
#include <deque>
#include <memory>

namespace {

// Identifiers of the colour chooser's red, green and blue fields.
const int kRedField = 706;
const int kGreenField = 707;
const int kBlueField = 708;
// The font chooser's lists of faces and sizes.
const int kFaceList = 0x470;
const int kSizeList = 0x472;
const UINT kTickMs = 20;

DialogDriver* g_driver = nullptr;

bool IsDialogWindow(HWND hwnd)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof(name));
    return std::string(name) == "#32770" && IsWindowVisible(hwnd);
}

struct DialogSearch {
    const std::function<bool(HWND)>* match;
    HWND found;
};

BOOL CALLBACK KeepMatchingDialog(HWND hwnd, LPARAM param)
{
    auto* search = reinterpret_cast<DialogSearch*>(param);
    if (!IsDialogWindow(hwnd) || !(*search->match)(hwnd)) return TRUE;
    search->found = hwnd;
    return FALSE;
}

// The first visible dialog of the thread that satisfies match.
HWND FindDialog(const std::function<bool(HWND)>& match)
{
    DialogSearch search = {&match, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), KeepMatchingDialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK EndDialogWindow(HWND hwnd, LPARAM)
{
    if (IsDialogWindow(hwnd)) EndDialog(hwnd, -1);
    return TRUE;
}

std::wstring TextOf(HWND hwnd)
{
    wchar_t text[512] = L"";
    GetWindowTextW(hwnd, text, 512);
    return text;
}

}  // namespace

struct DialogDriver::Steps : std::deque<Step> {};

DialogDriver::DialogDriver(DWORD timeoutMs)
    : m_steps(new Steps), m_timer(SetTimer(nullptr, 0, kTickMs, &Tick)), m_start(GetTickCount()), m_timeout(timeoutMs)
{
    g_driver = this;
}

DialogDriver::~DialogDriver()
{
    KillTimer(nullptr, m_timer);
    g_driver = nullptr;
    delete m_steps;
}

DialogDriver& DialogDriver::Then(Step step)
{
    m_steps->push_back(std::move(step));
    return *this;
}

DialogDriver& DialogDriver::Wait(DWORD ms)
{
    auto until = std::make_shared<DWORD>(0);
    return Then([until, ms] {
        if (*until == 0) *until = GetTickCount() + ms;
        return static_cast<LONG>(GetTickCount() - *until) >= 0;
    });
}

bool DialogDriver::AllStepsRan() const { return m_steps->empty(); }

void CALLBACK DialogDriver::Tick(HWND, UINT, UINT_PTR, DWORD)
{
    if (g_driver != nullptr) g_driver->RunNext();
}

// One step per tick; a step that opens a modal window only posts the message that opens it, so
// that no step runs inside another.
void DialogDriver::RunNext()
{
    if (m_busy) return;
    m_busy = true;
    if (GetTickCount() - m_start > m_timeout) {
        m_timedOut = true;
        EnumThreadWindows(GetCurrentThreadId(), &EndDialogWindow, 0);
    } else if (!m_steps->empty() && m_steps->front()()) {
        m_steps->pop_front();
    }
    m_busy = false;
}

HWND FindStyleDialog()
{
    return FindDialog([](HWND hwnd) { return GetDlgItem(hwnd, 1005) != nullptr && GetDlgItem(hwnd, 1010) != nullptr; });
}

HWND FindColorChooser()
{
    return FindDialog([](HWND hwnd) { return GetDlgItem(hwnd, kRedField) != nullptr; });
}

HWND FindFontChooser()
{
    return FindDialog([](HWND hwnd) { return GetDlgItem(hwnd, kFaceList) != nullptr; });
}

HWND FindMessageBox(const std::wstring& text)
{
    return FindDialog([&text](HWND hwnd) {
        for (HWND child = GetWindow(hwnd, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
            if (TextOf(child) == text) return true;
        return false;
    });
}

DialogDriver::Step SelectScheme(int index)
{
    return [index] {
        HWND dialog = FindStyleDialog();
        if (dialog == nullptr) return false;
        HWND combo = GetDlgItem(dialog, 1005);
        SendMessageA(combo, CB_SETCURSEL, index, 0);
        PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(1005, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
        return true;
    };
}

DialogDriver::Step PickListRow(int listId, int row)
{
    return [listId, row] {
        HWND dialog = FindStyleDialog();
        if (dialog == nullptr) return false;
        HWND list = GetDlgItem(dialog, listId);
        SendMessageA(list, LB_SETCURSEL, row, 0);
        PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(listId, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
        return true;
    };
}

DialogDriver::Step Press(int buttonId)
{
    return [buttonId] {
        HWND dialog = FindStyleDialog();
        if (dialog == nullptr) return false;
        PostMessageA(GetDlgItem(dialog, buttonId), BM_CLICK, 0, 0);
        return true;
    };
}

DialogDriver::Step AnswerColor(COLORREF color, COLORREF* seen)
{
    return [color, seen] {
        HWND chooser = FindColorChooser();
        if (chooser == nullptr) return false;
        if (seen != nullptr)
            *seen = RGB(GetDlgItemInt(chooser, kRedField, nullptr, FALSE), GetDlgItemInt(chooser, kGreenField, nullptr, FALSE),
                        GetDlgItemInt(chooser, kBlueField, nullptr, FALSE));
        SetDlgItemInt(chooser, kRedField, GetRValue(color), FALSE);
        SetDlgItemInt(chooser, kGreenField, GetGValue(color), FALSE);
        SetDlgItemInt(chooser, kBlueField, GetBValue(color), FALSE);
        PostMessageA(GetDlgItem(chooser, IDOK), BM_CLICK, 0, 0);
        return true;
    };
}

DialogDriver::Step KeepColor()
{
    return [] {
        HWND chooser = FindColorChooser();
        if (chooser == nullptr) return false;
        PostMessageA(GetDlgItem(chooser, IDOK), BM_CLICK, 0, 0);
        return true;
    };
}

// Selects text in the chooser's combo box id as a click on it would.
void ChooseInCombo(HWND chooser, int id, const std::string& text)
{
    HWND combo = GetDlgItem(chooser, id);
    SendMessageA(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
    SendMessageA(chooser, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

DialogDriver::Step AnswerFont(const std::string& face, const std::string& size)
{
    return [face, size] {
        HWND chooser = FindFontChooser();
        if (chooser == nullptr) return false;
        ChooseInCombo(chooser, kFaceList, face);
        ChooseInCombo(chooser, kSizeList, size);
        PostMessageA(GetDlgItem(chooser, IDOK), BM_CLICK, 0, 0);
        return true;
    };
}

DialogDriver::Step AnswerMessageBox(const std::wstring& text, int button)
{
    return [text, button] {
        HWND box = FindMessageBox(text);
        if (box == nullptr) return false;
        PostMessageA(GetDlgItem(box, button), BM_CLICK, 0, 0);
        return true;
    };
}
