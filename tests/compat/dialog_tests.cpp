// Modal dialogs driven for real: the probe dialog's template (resources/window_tests.rc) runs
// through DoModal, its controls are pressed and notified as a user would, and the tests check
// which handlers of the message map ran, with which arguments, and how DoModal ended.
#include "resources/dialog_ids.h"
#include <afxdialogex.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <string>
#include <vector>

namespace {

bool IsDialogWindow(HWND hwnd)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof(name));
    return std::string(name) == "#32770";
}

// Ends every dialog of this thread with -1 after a few seconds, so that a modal loop nobody
// ends fails its test instead of hanging the run.
class TimeoutGuard {
public:
    TimeoutGuard() : m_timer(SetTimer(nullptr, 0, 5000, &EndAll)) {}
    ~TimeoutGuard() { KillTimer(nullptr, m_timer); }

private:
    static void CALLBACK EndAll(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), &EndOne, 0); }
    static BOOL CALLBACK EndOne(HWND hwnd, LPARAM)
    {
        if (IsDialogWindow(hwnd)) EndDialog(hwnd, -1);
        return TRUE;
    }
    UINT_PTR m_timer;
};

void Click(CWnd* dialog, int id) { dialog->GetDlgItem(id)->PostMessage(BM_CLICK); }

// Records what its handlers saw; each test says in `start` what happens once it is up.
class ProbeDialog : public CDialogEx {
public:
    ProbeDialog() : CDialogEx(IDD_PROBE) {}

    std::vector<std::string> calls;
    void (*start)(ProbeDialog& dialog) = nullptr;
    void (*onPress)(ProbeDialog& dialog) = nullptr;
    UINT_PTR timerId = 0;
    BOOL timerKilled = FALSE;
    UINT buttonFlags = 0;
    CPoint buttonPoint;
    UINT currentMessage = 0;
    CRect paintRect;
    COLORREF paintColor = RGB(0, 255, 0);
    COLORREF insidePaint = 0;
    COLORREF outsidePaint = 0;
    CComboBox combo;
    CString comboText;
    int listSelection = LB_ERR;
    CString listText;

    BOOL OnInitDialog() override
    {
        CDialogEx::OnInitDialog();
        calls.push_back("init");
        if (start != nullptr) start(*this);
        return TRUE;
    }
    void PaintThenEnd()
    {
        ::ValidateRect(m_hWnd, nullptr);
        paintColor = RGB(255, 0, 0);
        InvalidateRect(CRect(5, 6, 25, 16), FALSE);
        UpdateWindow();
        CClientDC dc(this);
        insidePaint = dc.GetPixel(10, 10);
        outsidePaint = dc.GetPixel(30, 10);
        EndDialog(IDOK);
    }

protected:
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        paintRect = dc.m_ps.rcPaint;
        CRect client;
        GetClientRect(client);
        dc.FillSolidRect(client, paintColor);
        calls.push_back("paint");
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent)
    {
        timerId = nIDEvent;
        timerKilled = KillTimer(nIDEvent);
        calls.push_back("timer");
        PaintThenEnd();
    }
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point)
    {
        buttonFlags = nFlags;
        buttonPoint = point;
        currentMessage = GetCurrentMessage()->message;
        calls.push_back("lbuttondown");
        CDialogEx::OnLButtonDown(nFlags, point);
        EndDialog(IDOK);
    }
    afx_msg void OnDestroy()
    {
        calls.push_back("destroy");
        CDialogEx::OnDestroy();
    }
    afx_msg void OnPress()
    {
        calls.push_back("press");
        if (onPress != nullptr) onPress(*this);
    }
    afx_msg void OnComboChange()
    {
        combo.GetLBText(combo.GetCurSel(), comboText);
        calls.push_back("combo");
        EndDialog(IDOK);
    }
    afx_msg void OnListChange()
    {
        auto* list = static_cast<CListBox*>(GetDlgItem(IDC_LIST));
        listSelection = list->GetCurSel();
        list->GetText(listSelection, listText);
        calls.push_back("list");
    }
    afx_msg void OnListDoubleClick()
    {
        calls.push_back("dblclk");
        EndDialog(IDOK);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ProbeDialog, CDialogEx)
    ON_WM_PAINT()
    ON_WM_TIMER()
    ON_WM_LBUTTONDOWN()
    ON_WM_DESTROY()
    ON_BN_CLICKED(IDC_PRESS, &ProbeDialog::OnPress)
    ON_CBN_SELCHANGE(IDC_COMBO, &ProbeDialog::OnComboChange)
    ON_LBN_SELCHANGE(IDC_LIST, &ProbeDialog::OnListChange)
    ON_LBN_DBLCLK(IDC_LIST, &ProbeDialog::OnListDoubleClick)
END_MESSAGE_MAP()

// A dialog derived from the probe: its own map handles Cancel and nothing else, so the probe's
// entries and CDialog's OK still apply.
class DerivedProbe : public ProbeDialog {
protected:
    afx_msg void OnCancelPressed()
    {
        calls.push_back("derived cancel");
        EndDialog(IDABORT);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedProbe, ProbeDialog)
    ON_BN_CLICKED(IDCANCEL, &DerivedProbe::OnCancelPressed)
END_MESSAGE_MAP()

// A dialog that overrides CDialog's virtual OnOK, which CDialog's own map calls.
class OverridingOk : public ProbeDialog {
protected:
    void OnOK() override { EndDialog(IDRETRY); }
};

using Calls = std::vector<std::string>;

bool Ran(const ProbeDialog& dialog, const std::string& call)
{
    return std::find(dialog.calls.begin(), dialog.calls.end(), call) != dialog.calls.end();
}

}  // namespace

TEST(Dialog, ClickedButtonRunsItsHandlerAndOkEndsWithIdok)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) { Click(&d, IDC_PRESS); };
    dialog.onPress = [](ProbeDialog& d) { Click(&d, IDOK); };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    Calls ran(dialog.calls.begin(), dialog.calls.end());
    ran.erase(std::remove(ran.begin(), ran.end(), "paint"), ran.end());
    EXPECT_EQ((Calls{"init", "press", "destroy"}), ran);
}

TEST(Dialog, CancelButtonAndClosingEndWithIdcancel)
{
    TimeoutGuard guard;
    ProbeDialog pressed;
    pressed.start = [](ProbeDialog& d) { Click(&d, IDCANCEL); };
    EXPECT_EQ(IDCANCEL, pressed.DoModal());
    ProbeDialog closed;
    closed.start = [](ProbeDialog& d) { d.PostMessage(WM_CLOSE); };
    EXPECT_EQ(IDCANCEL, closed.DoModal());
    EXPECT_EQ("destroy", closed.calls.back());
}

TEST(Dialog, EndDialogResultIsWhatDoModalAnswers)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) { Click(&d, IDC_PRESS); };
    dialog.onPress = [](ProbeDialog& d) { d.EndDialog(42); };
    EXPECT_EQ(42, dialog.DoModal());
}

TEST(Dialog, MissingTemplateAnswersMinusOne)
{
    CDialog dialog(4242);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(Dialog, TimerReachesOnTimerWithItsId)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) { d.SetTimer(7, 10, nullptr); };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(7u, dialog.timerId);
    EXPECT_TRUE(dialog.timerKilled);
}

// UpdateWindow paints at once, through OnPaint, and only the invalidated rectangle: the paint
// context clips the fill of the whole client area to it.
TEST(Dialog, InvalidatedRectangleIsPaintedThroughOnPaint)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) { d.SetTimer(1, 10, nullptr); };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(CRect(5, 6, 25, 16), dialog.paintRect);
    EXPECT_EQ(RGB(255, 0, 0), dialog.insidePaint);
    EXPECT_EQ(RGB(0, 255, 0), dialog.outsidePaint);  // painted before, clipped out now
}

TEST(Dialog, LeftButtonDownGetsFlagsAndSignedPoint)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) { d.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(-3, 40)); };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(static_cast<UINT>(MK_LBUTTON | MK_SHIFT), dialog.buttonFlags);
    EXPECT_EQ(CPoint(-3, 40), dialog.buttonPoint);
    EXPECT_EQ(static_cast<UINT>(WM_LBUTTONDOWN), dialog.currentMessage);
}

TEST(Dialog, ComboBoxSelectionChangeReachesItsHandler)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) {
        ASSERT_TRUE(d.combo.SubclassDlgItem(IDC_COMBO, &d));
        for (const char* item : {"Alpha", "Beta", "Gamma"}) d.combo.AddString(item);
        d.combo.SetCurSel(2);
        d.PostMessage(WM_COMMAND, MAKEWPARAM(IDC_COMBO, CBN_SELCHANGE), reinterpret_cast<LPARAM>(d.combo.m_hWnd));
    };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ("Gamma", std::string(dialog.comboText));
    EXPECT_EQ(nullptr, dialog.combo.m_hWnd);  // the control let go of it when destroyed
}

// A click on a list item notifies the selection change, a double click LBN_DBLCLK.
TEST(Dialog, ListBoxClickAndDoubleClickReachTheirHandlers)
{
    TimeoutGuard guard;
    ProbeDialog dialog;
    dialog.start = [](ProbeDialog& d) {
        auto* list = static_cast<CListBox*>(d.GetDlgItem(IDC_LIST));
        for (const char* item : {"one", "two", "three"}) list->AddString(item);
        RECT item = {};
        list->SendMessage(LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
        LPARAM at = MAKELPARAM(item.left + 2, item.top + 2);
        list->PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        list->PostMessage(WM_LBUTTONUP, 0, at);
        list->PostMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
        list->PostMessage(WM_LBUTTONUP, 0, at);
    };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(1, dialog.listSelection);
    EXPECT_EQ("two", std::string(dialog.listText));
    EXPECT_TRUE(Ran(dialog, "list"));
    EXPECT_TRUE(Ran(dialog, "dblclk"));
}

TEST(DialogMap, DerivedMapFallsBackToItsBasesEntries)
{
    TimeoutGuard guard;
    DerivedProbe dialog;
    dialog.start = [](ProbeDialog& d) { Click(&d, IDC_PRESS); };
    dialog.onPress = [](ProbeDialog& d) { Click(&d, IDOK); };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(Ran(dialog, "press"));
    EXPECT_TRUE(Ran(dialog, "destroy"));
}

TEST(DialogMap, DerivedEntryComesBeforeTheBasesForTheSameCommand)
{
    TimeoutGuard guard;
    DerivedProbe dialog;
    dialog.start = [](ProbeDialog& d) { Click(&d, IDCANCEL); };
    EXPECT_EQ(IDABORT, dialog.DoModal());
    EXPECT_TRUE(Ran(dialog, "derived cancel"));
}

TEST(DialogMap, OverriddenOnOkRunsFromTheBasesEntry)
{
    TimeoutGuard guard;
    OverridingOk dialog;
    dialog.start = [](ProbeDialog& d) { Click(&d, IDOK); };
    EXPECT_EQ(IDRETRY, dialog.DoModal());
}

TEST(DialogMap, OnCmdMsgNamesTheHandlerWithoutCallingIt)
{
    DerivedProbe dialog;
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(dialog.OnCmdMsg(IDC_PRESS, BN_CLICKED, nullptr, &info));
    EXPECT_EQ(&dialog, info.pTarget);
    EXPECT_NE(nullptr, info.pmf);
    EXPECT_FALSE(dialog.OnCmdMsg(IDC_PRESS, BN_DOUBLECLICKED, nullptr, &info));
    EXPECT_FALSE(dialog.OnCmdMsg(4242, BN_CLICKED, nullptr, nullptr));
    EXPECT_TRUE(dialog.calls.empty());
}
