// Handles and their wrappers as MFC treats them: the Safe accessors through a null pointer,
// temporary wrappers from FromHandle that do not pile up and can be used from two threads,
// Attach on an object that already holds a handle, and FromHandle of windows and DCs.
#include "support/dib_canvas.h"
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <psapi.h>
#include <atomic>
#include <deque>
#include <set>
#include <thread>

namespace {

template <class T> T* NullPointer()
{
    T* volatile pointer = nullptr;
    return pointer;
}

// Wine reports the resident set here (it leaves the private-bytes counter at 0).
SIZE_T WorkingSet()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return counters.WorkingSetSize;
}

// A repaint as a host does it around the library: the host selects a brush of its own (a raw
// handle, new each time) and the library selects its brush and puts the host's back through the
// temporary wrapper SelectObject answers. Returns false if the wrapper named another handle.
// Wine gives a handle slot 256 generations before its values repeat: thousands of host brushes
// live at once so that a million repaints see about a million different handle values.
class Repainter {
public:
    explicit Repainter(CDC* dc) : m_dc(dc), m_ours(RGB(1, 2, 3)) {}
    ~Repainter()
    {
        for (HBRUSH b : m_hostBrushes) DeleteObject(b);
    }
    HBRUSH LastHostBrush() const { return m_hostBrushes.back(); }
    bool Repaint(int i)
    {
        m_hostBrushes.push_back(CreateSolidBrush(RGB(i & 0xFF, 0, 0)));
        HGDIOBJ original = ::SelectObject(m_dc->m_hDC, m_hostBrushes.back());
        CBrush* host = m_dc->SelectObject(&m_ours);
        bool right = host != nullptr && host->m_hObject == m_hostBrushes.back();
        m_dc->SelectObject(host);
        ::SelectObject(m_dc->m_hDC, original);
        if (m_hostBrushes.size() > kLiveHostBrushes) {
            DeleteObject(m_hostBrushes.front());
            m_hostBrushes.pop_front();
        }
        return right;
    }

private:
    static const size_t kLiveHostBrushes = 4096;
    CDC* m_dc;
    CBrush m_ours;
    std::deque<HBRUSH> m_hostBrushes;
};

}  // namespace

TEST(SafeHandles, AnswerNullThroughANullPointer)
{
    EXPECT_EQ(nullptr, NullPointer<CDC>()->GetSafeHdc());
    EXPECT_EQ(nullptr, NullPointer<CWnd>()->GetSafeHwnd());
    EXPECT_EQ(nullptr, NullPointer<CGdiObject>()->GetSafeHandle());
    EXPECT_EQ(nullptr, NullPointer<CBrush>()->GetSafeHandle());
    EXPECT_EQ(nullptr, NullPointer<CImageList>()->GetSafeHandle());
    CBrush brush(RGB(1, 1, 1));
    EXPECT_EQ(brush.m_hObject, brush.GetSafeHandle());
}

TEST(TemporaryWrappers, MemoryStaysFlatOverAMillionSelections)
{
    DibCanvas canvas(4, 4);
    Repainter painter(canvas.dc());
    {
        std::set<HBRUSH> distinct;
        for (int i = 0; i < 100000; ++i) {
            ASSERT_TRUE(painter.Repaint(i));
            distinct.insert(painter.LastHostBrush());
        }
        ASSERT_GT(distinct.size(), 90000u) << "the host's handles must differ for the check to mean anything";
    }
    SIZE_T before = WorkingSet();
    ASSERT_GT(before, 0u);
    for (int i = 0; i < 1000000; ++i) {
        if (!painter.Repaint(i)) FAIL() << "wrong previous brush at " << i;
    }
    long long grown = static_cast<long long>(WorkingSet()) - static_cast<long long>(before);
    EXPECT_LT(grown, 4LL * 1024 * 1024) << "bytes grown over 1,000,000 selections";
}

TEST(TemporaryWrappers, TwoThreadsDrawingAtOnce)
{
    std::atomic<int> wrong{0};
    auto draw = [&wrong] {
        DibCanvas canvas(4, 4);
        Repainter painter(canvas.dc());
        for (int i = 0; i < 1000000; ++i) wrong += painter.Repaint(i) ? 0 : 1;
    };
    std::thread first(draw), second(draw);
    first.join();
    second.join();
    EXPECT_EQ(0, wrong.load());
}

TEST(TemporaryWrappers, SameWrapperWhileTheHandleLives)
{
    HBRUSH raw = CreateSolidBrush(RGB(7, 8, 9));
    CGdiObject* temp = CGdiObject::FromHandle(raw);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(raw, temp->m_hObject);
    for (int i = 0; i < 5000; ++i) {  // many other temporaries come and go meanwhile
        HBRUSH other = CreateSolidBrush(RGB(0, 0, i & 0xFF));
        CGdiObject::FromHandle(other);
        DeleteObject(other);
    }
    EXPECT_EQ(temp, CGdiObject::FromHandle(raw));
    EXPECT_NE(0u, GetObjectType(raw));  // a temporary never deletes its handle
    DeleteObject(raw);
}

// MFC asserts that an object holding a handle is not attached again; here that stops the
// process instead of silently losing (leaking) the old handle.
TEST(AttachDeathTest, GdiObjectThatHoldsAHandle)
{
    EXPECT_DEATH(
        {
            CBrush brush(RGB(1, 2, 3));
            brush.Attach(CreateSolidBrush(RGB(4, 5, 6)));
        },
        "Assertion failed");
}

TEST(AttachDeathTest, CreateOnAnObjectThatHoldsAHandle)
{
    EXPECT_DEATH(
        {
            CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
            pen.CreatePen(PS_SOLID, 2, RGB(1, 2, 3));
        },
        "Assertion failed");
}

TEST(AttachDeathTest, DeviceContextThatHoldsAHandle)
{
    EXPECT_DEATH(
        {
            CDC dc;
            dc.CreateCompatibleDC(nullptr);
            dc.Attach(CreateCompatibleDC(nullptr));
        },
        "Assertion failed");
}

TEST(AttachDeathTest, WindowThatHoldsAHandle)
{
    EXPECT_DEATH(
        {
            CWnd wnd;
            wnd.Attach(GetDesktopWindow());
            wnd.Attach(GetDesktopWindow());
        },
        "Assertion failed");
}

TEST(Attach, AfterDetachIsAllowed)
{
    CBrush brush(RGB(1, 2, 3));
    HGDIOBJ first = brush.Detach();
    EXPECT_TRUE(brush.Attach(first));
    EXPECT_EQ(&brush, CGdiObject::FromHandle(first));
    EXPECT_FALSE(CBrush().Attach(nullptr));
}

TEST(CDCFromHandle, AnswersTheAttachedObjectOrAWrapperThatNeverDeletes)
{
    DibCanvas canvas(2, 2);
    EXPECT_EQ(canvas.dc(), CDC::FromHandle(canvas.dc()->m_hDC));
    HDC raw = CreateCompatibleDC(nullptr);
    CDC* temp = CDC::FromHandle(raw);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(raw, temp->m_hDC);
    EXPECT_EQ(raw, temp->m_hAttribDC);
    EXPECT_EQ(temp, CDC::FromHandle(raw));
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
    EXPECT_NE(0u, GetObjectType(raw));
    EXPECT_TRUE(DeleteDC(raw));
}

TEST(CWndFromHandle, AnswersTheAttachedObjectOrAWrapperThatNeverDestroys)
{
    HWND raw = CreateWindowExA(0, "STATIC", "x", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, raw);
    CWnd* temp = CWnd::FromHandle(raw);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(raw, temp->GetSafeHwnd());
    EXPECT_EQ(temp, CWnd::FromHandle(raw));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(raw));
    {
        CWnd owner;
        ASSERT_TRUE(owner.Attach(raw));
        EXPECT_EQ(&owner, CWnd::FromHandle(raw));
        EXPECT_EQ(&owner, CWnd::FromHandlePermanent(raw));
        EXPECT_EQ(raw, owner.Detach());
    }
    EXPECT_TRUE(IsWindow(raw));
    EXPECT_TRUE(DestroyWindow(raw));
}

namespace {

struct PaintRecord {
    bool painted = false;
    HDC hdc = nullptr;
    HDC psHdc = nullptr;
    RECT rcPaint = {};
    BOOL updateLeft = TRUE;
};
PaintRecord g_paint;

LRESULT CALLBACK PaintProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_PAINT) return DefWindowProcA(hwnd, message, wParam, lParam);
    {
        CPaintDC dc(CWnd::FromHandle(hwnd));
        g_paint.hdc = dc.m_hDC;
        g_paint.psHdc = dc.m_ps.hdc;
        g_paint.rcPaint = dc.m_ps.rcPaint;
        dc.FillSolidRect(&dc.m_ps.rcPaint, RGB(255, 0, 0));
    }
    g_paint.updateLeft = GetUpdateRect(hwnd, nullptr, FALSE);
    g_paint.painted = true;
    return 0;
}

}  // namespace

TEST(CPaintDC, BeginsAndEndsThePaint)
{
    WNDCLASSA wc = {};
    wc.lpfnWndProc = PaintProc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "kiv_paint_test";
    ASSERT_NE(0, RegisterClassA(&wc));
    HWND hwnd = CreateWindowExA(0, wc.lpszClassName, "paint", WS_POPUP | WS_VISIBLE, 0, 0, 30, 20,
                                nullptr, nullptr, wc.hInstance, nullptr);
    ASSERT_NE(nullptr, hwnd);
    InvalidateRect(hwnd, nullptr, FALSE);
    UpdateWindow(hwnd);
    EXPECT_TRUE(g_paint.painted);
    EXPECT_NE(nullptr, g_paint.hdc);
    EXPECT_EQ(g_paint.psHdc, g_paint.hdc);
    EXPECT_EQ(CRect(0, 0, 30, 20), g_paint.rcPaint);
    EXPECT_FALSE(g_paint.updateLeft);  // the paint validated the window
    DestroyWindow(hwnd);
    UnregisterClassA(wc.lpszClassName, wc.hInstance);
}

TEST(CPaintDC, ThrowsTheResourceExceptionWhenNoPaintCanBegin)
{
    CWnd stale;
    stale.m_hWnd = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFF0));
    bool thrown = false;
    try {
        CPaintDC dc(&stale);
    } catch (CResourceException* e) {
        thrown = true;
        e->Delete();
    }
    stale.m_hWnd = nullptr;
    EXPECT_TRUE(thrown);
}

// MFC's simple exceptions: CResourceException is a CSimpleException and a CException, thrown by
// pointer; the thrown object is shared and Delete() leaves it alone.
TEST(Exceptions, ResourceExceptionHierarchy)
{
    CException* first = nullptr;
    CException* second = nullptr;
    try {
        AfxThrowResourceException();
    } catch (CSimpleException* e) {
        first = e;
        EXPECT_NE(nullptr, dynamic_cast<CResourceException*>(e));
        e->Delete();
    }
    try {
        AfxThrowResourceException();
    } catch (CException* e) {
        second = e;
        e->Delete();
    }
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, second);
    EXPECT_THROW(AfxThrowInvalidArgException(), CSimpleException*);
}
