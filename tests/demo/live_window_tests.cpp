// The demo's live window under the X server, driven by synthetic mouse and keyboard messages:
// holding the down arrow, dragging the thumb, the wheel, the scheme key and the editor key,
// checked on the bars' positions, the host commands that went through the reference command
// system, and the pixels of the window's screen image. Each window closes itself after a minute
// at the latest; the style editor is ended by its driver's watchdog.
#include "demo/live_window.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "support/dialog_driver.h"
#include "support/dib_canvas.h"
#include "support/message_pump.h"
#include "support/scheme_files.h"
#include <gtest/gtest.h>
#include <memory>

using kiv_skin::KivStyleMgr;

namespace {

const UINT kSafetyClose = 60000;

class LiveWindowTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_EQ(1, KivStyleMgr::GetInstance()->InitStyleMgr()); }
    void SetUp() override
    {
        ASSERT_EQ(1, KivStyleMgr::GetInstance()->LoadStyle("dark"));
        window = std::make_unique<LiveWindow>(kSafetyClose);
        Pump(100);
    }
    void TearDown() override
    {
        window.reset();
        Pump(50);
    }

    HWND Hwnd() const { return window->Handle(); }
    kiv_skin::PluginScrollBar& Rows() { return window->Panel().Rows(); }
    void Post(UINT message, WPARAM wParam, CPoint pt) { ::PostMessageA(Hwnd(), message, wParam, MAKELPARAM(pt.x, pt.y)); }

    // The window's client area as it is on the screen.
    std::unique_ptr<DibCanvas> Screenshot()
    {
        ::InvalidateRect(Hwnd(), nullptr, FALSE);
        ::UpdateWindow(Hwnd());
        Pump(50);
        RECT client;
        ::GetClientRect(Hwnd(), &client);
        auto shot = std::make_unique<DibCanvas>(client.right, client.bottom);
        HDC screen = ::GetDC(Hwnd());
        ::BitBlt(shot->dc()->m_hDC, 0, 0, client.right, client.bottom, screen, 0, 0, SRCCOPY);
        ::ReleaseDC(Hwnd(), screen);
        return shot;
    }

    std::unique_ptr<LiveWindow> window;
};

TEST_F(LiveWindowTest, HoldingTheDownArrowRepeatsThroughTheHostUntilReleased)
{
    CRect bar = Rows().GetScrollRect();
    CPoint arrow(bar.CenterPoint().x, bar.bottom - 8);
    Post(WM_LBUTTONDOWN, MK_LBUTTON, arrow);
    ASSERT_TRUE(PumpUntil([&] { return Rows().GetScrollPos() >= 4; }, 5000));
    Post(WM_LBUTTONUP, 0, arrow);
    Pump(150);
    int released = Rows().GetScrollPos();
    Pump(500);
    EXPECT_EQ(released, Rows().GetScrollPos());
    // One change command per repeat step (not for the press), and redraw requests to the window.
    EXPECT_EQ(released - 1, window->PanelObject().received);
    EXPECT_GE(window->WindowObject().received, 1);
}

TEST_F(LiveWindowTest, DraggingTheThumbToTheMiddleShowsTheMiddleOfTheList)
{
    CRect bar = Rows().GetScrollRect();
    CPoint thumb(bar.CenterPoint().x, bar.top + 20);
    Post(WM_LBUTTONDOWN, MK_LBUTTON, thumb);
    Post(WM_MOUSEMOVE, MK_LBUTTON, CPoint(thumb.x, bar.CenterPoint().y));
    Post(WM_LBUTTONUP, 0, CPoint(thumb.x, bar.CenterPoint().y));
    Pump(300);
    EXPECT_GE(Rows().GetScrollPos(), 150);
    EXPECT_LE(Rows().GetScrollPos(), 190);
}

TEST_F(LiveWindowTest, WheelMovesOneRowPerNotch)
{
    Rows().SetScrollPos(10);
    for (int i = 0; i < 3; ++i) Post(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), CPoint(100, 100));
    Post(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), CPoint(100, 100));
    Pump(200);
    EXPECT_EQ(12, Rows().GetScrollPos());
}

// Along the drawn bar (inset by 2 pixels), the track runs from 13 below its top to 13 above its
// bottom; the thumb of position 180 of 360 starts halfway.
TEST_F(LiveWindowTest, ScreenShowsTheBarAndItsThumbWhereThePositionPutsThem)
{
    Rows().SetScrollPos(180);
    std::unique_ptr<DibCanvas> shot = Screenshot();
    CRect bar = Rows().GetScrollRect();
    KivStyleMgr* styles = KivStyleMgr::GetInstance();
    int x = bar.left + 8;
    int trackStart = bar.top + 2 + 13, trackEnd = bar.bottom - 2 - 13;
    int thumbStart = trackStart + (trackEnd - trackStart) * Rows().GetScrollPos() / Rows().GetFullHeight();
    EXPECT_EQ(styles->GetColor("SCROLLBARLINE"), shot->Pixel(bar.left, bar.CenterPoint().y));
    EXPECT_EQ(styles->GetColor("PLUG_BGCOLOR"), shot->Pixel(x, trackStart + 10));
    EXPECT_EQ(styles->GetColor("PLUG_BGCOLOR"), shot->Pixel(x, trackEnd - 10));
    EXPECT_NE(styles->GetColor("PLUG_BGCOLOR"), shot->Pixel(x, thumbStart + 4));
}

TEST_F(LiveWindowTest, SchemeKeySwitchesTheSchemeLive)
{
    CString before = KivStyleMgr::GetInstance()->GetCurrentStyle();
    ::PostMessageA(Hwnd(), WM_KEYDOWN, 'S', 0);
    Pump(200);
    CString after = KivStyleMgr::GetInstance()->GetCurrentStyle();
    EXPECT_NE(before, after);
    std::unique_ptr<DibCanvas> shot = Screenshot();
    CRect bar = Rows().GetScrollRect();
    EXPECT_EQ(KivStyleMgr::GetInstance()->GetColor("SCROLLBARLINE"), shot->Pixel(bar.left, bar.CenterPoint().y));
    EXPECT_EQ(KivStyleMgr::GetInstance()->GetColor("PLUG_BGCOLOR"), shot->Pixel(bar.left + 8, bar.bottom - 30));  // the track below the thumb
}

TEST_F(LiveWindowTest, EditorKeyAppliesAColourEditedAndConfirmedInTheStyleEditor)
{
    SchemeFilesKeeper files;  // the editor saves into the dark scheme's file
    const int row = ColorRow(files.Path("dark"), "PLUG_BGCOLOR");
    ASSERT_GE(row, 0);
    const COLORREF edited = 0x00402818;
    DialogDriver driver;
    driver.Then(PickListRow(1006, row)).Then(Press(1008)).Then(AnswerColor(edited)).Then(Press(IDOK));
    ::PostMessageA(Hwnd(), WM_KEYDOWN, 'E', 0);
    Pump(200);  // the editor's modal loop runs inside, until the driver presses OK
    ASSERT_TRUE(driver.AllStepsRan());
    EXPECT_FALSE(driver.TimedOut());
    EXPECT_EQ("dark", std::string(KivStyleMgr::GetInstance()->GetCurrentStyle()));
    EXPECT_EQ(edited, KivStyleMgr::GetInstance()->GetColor("PLUG_BGCOLOR"));
    std::unique_ptr<DibCanvas> shot = Screenshot();
    CRect bar = Rows().GetScrollRect();
    EXPECT_EQ(edited, shot->Pixel(bar.left + 8, bar.bottom - 30));  // the track below the thumb
}

// So the bars' repeat timers run on it.
TEST_F(LiveWindowTest, IsTheApplicationsMainWindowWhileOpen)
{
    ASSERT_NE(nullptr, AfxGetMainWnd());
    EXPECT_EQ(Hwnd(), AfxGetMainWnd()->GetSafeHwnd());
    window.reset();
    EXPECT_EQ(nullptr, AfxGetMainWnd());
}

TEST_F(LiveWindowTest, ClosesItselfWhenAsked)
{
    LiveWindow shortLived(300);
    HWND hwnd = shortLived.Handle();
    EXPECT_TRUE(::IsWindow(hwnd));
    EXPECT_EQ(0, shortLived.Run());
    EXPECT_FALSE(::IsWindow(hwnd));
}

}  // namespace
