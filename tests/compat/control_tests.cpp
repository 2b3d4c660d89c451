// CComboBox and CListBox over real controls: each member is the control's own message.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>

namespace {

// A control window of the given class, attached to the wrapper for the test's duration.
template <class Box> class Attached {
public:
    Attached(const char* windowClass, DWORD style)
    {
        HWND hwnd = CreateWindowExA(0, windowClass, "", WS_POPUP | style, 0, 0, 120, 200, nullptr, nullptr,
                                    GetModuleHandleA(nullptr), nullptr);
        box.Attach(hwnd);
    }
    Box box;
};

}  // namespace

TEST(CComboBox, AddsSelectsAndReadsItems)
{
    Attached<CComboBox> combo("COMBOBOX", CBS_DROPDOWNLIST);
    CComboBox& box = combo.box;
    ASSERT_NE(nullptr, box.m_hWnd);
    EXPECT_EQ(0, box.AddString("Alpha"));
    EXPECT_EQ(1, box.AddString("Beta"));
    EXPECT_EQ(2, box.GetCount());
    EXPECT_EQ(CB_ERR, box.GetCurSel());
    EXPECT_EQ(1, box.SetCurSel(1));
    EXPECT_EQ(1, box.GetCurSel());
    EXPECT_EQ(4, box.GetLBTextLen(1));
    CString text;
    box.GetLBText(1, text);
    EXPECT_EQ("Beta", std::string(text));
    char buffer[16] = "";
    EXPECT_EQ(5, box.GetLBText(0, buffer));
    EXPECT_EQ("Alpha", std::string(buffer));
    EXPECT_NE(CB_ERR, box.SetItemData(0, 0x12345678));
    EXPECT_EQ(0x12345678u, box.GetItemData(0));
    box.GetLBText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    box.ResetContent();
    EXPECT_EQ(0, box.GetCount());
}

TEST(CListBox, AddsSelectsAndReadsItems)
{
    Attached<CListBox> list("LISTBOX", LBS_NOTIFY);
    CListBox& box = list.box;
    ASSERT_NE(nullptr, box.m_hWnd);
    EXPECT_EQ(0, box.AddString("one"));
    EXPECT_EQ(1, box.AddString("three"));
    EXPECT_EQ(2, box.GetCount());
    EXPECT_EQ(LB_ERR, box.GetCurSel());
    EXPECT_NE(LB_ERR, box.SetCurSel(1));
    EXPECT_EQ(1, box.GetCurSel());
    EXPECT_EQ(5, box.GetTextLen(1));
    CString text;
    box.GetText(1, text);
    EXPECT_EQ("three", std::string(text));
    char buffer[16] = "";
    EXPECT_EQ(3, box.GetText(0, buffer));
    EXPECT_EQ("one", std::string(buffer));
    EXPECT_NE(LB_ERR, box.SetItemData(1, 77));
    EXPECT_EQ(77u, box.GetItemData(1));
    box.GetText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    box.ResetContent();
    EXPECT_EQ(0, box.GetCount());
}

// The window members a dialog's code uses, on a plain window with one child.
TEST(CWnd, ChildrenCoordinatesAndState)
{
    CWnd parent;
    ASSERT_TRUE(parent.Attach(CreateWindowExA(0, "STATIC", "", WS_POPUP, 100, 50, 200, 100, nullptr, nullptr,
                                              GetModuleHandleA(nullptr), nullptr)));
    HWND child = CreateWindowExA(0, "BUTTON", "b", WS_CHILD, 10, 20, 30, 40, parent.m_hWnd,
                                 reinterpret_cast<HMENU>(1234), GetModuleHandleA(nullptr), nullptr);
    CWnd* item = parent.GetDlgItem(1234);
    ASSERT_NE(nullptr, item);
    EXPECT_EQ(child, item->m_hWnd);
    EXPECT_EQ(1234, item->GetDlgCtrlID());
    EXPECT_EQ(nullptr, parent.GetDlgItem(99));

    CRect rect;
    item->GetWindowRect(rect);
    parent.ScreenToClient(rect);
    EXPECT_EQ(CRect(10, 20, 40, 60), rect);
    parent.ClientToScreen(rect);
    CPoint corner(10, 20);
    parent.ClientToScreen(&corner);
    EXPECT_EQ(corner, rect.TopLeft());
    parent.ScreenToClient(&corner);
    EXPECT_EQ(CPoint(10, 20), corner);

    EXPECT_FALSE(item->ShowWindow(SW_SHOW));  // was hidden
    EXPECT_NE(0, GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE);
    EXPECT_FALSE(item->EnableWindow(FALSE));  // was enabled
    EXPECT_FALSE(IsWindowEnabled(child));
    EXPECT_TRUE(item->EnableWindow(TRUE));    // was disabled
    EXPECT_EQ(BST_UNCHECKED, item->SendMessage(BM_GETCHECK));
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ(nullptr, parent.m_hWnd);
    EXPECT_FALSE(IsWindow(child));
}
