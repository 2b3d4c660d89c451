// Run-time class information, the module state's resource handle, and the drawing members the
// kit relies on, as MFC gives them.
#include "support/dib_canvas.h"
#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

class CProbeDC : public CDC {
    DECLARE_DYNAMIC(CProbeDC)
};
IMPLEMENT_DYNAMIC(CProbeDC, CDC)

}  // namespace

TEST(RuntimeClass, DerivedClassNamesItsBaseChain)
{
    CProbeDC probe;
    CDC plain;
    EXPECT_STREQ("CProbeDC", probe.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(RUNTIME_CLASS(CProbeDC), probe.GetRuntimeClass());
    EXPECT_EQ(RUNTIME_CLASS(CDC), RUNTIME_CLASS(CProbeDC)->m_pfnGetBaseClass());
    EXPECT_EQ(RUNTIME_CLASS(CObject), RUNTIME_CLASS(CDC)->m_pfnGetBaseClass());
    EXPECT_TRUE(probe.IsKindOf(RUNTIME_CLASS(CDC)));
    EXPECT_TRUE(probe.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(plain.IsKindOf(RUNTIME_CLASS(CProbeDC)));
    EXPECT_EQ(static_cast<int>(sizeof(CProbeDC)), RUNTIME_CLASS(CProbeDC)->m_nObjectSize);
}

TEST(ResourceHandle, StartsAsTheProgramAndSwitches)
{
    HINSTANCE program = ::GetModuleHandleA(nullptr);
    EXPECT_EQ(program, AfxGetResourceHandle());
    HINSTANCE other = ::GetModuleHandleA("kernel32.dll");
    AfxSetResourceHandle(other);
    EXPECT_EQ(other, AfxGetResourceHandle());
    // The current module's resources are found there; one nobody has answers the current module.
    ASSERT_NE(nullptr, ::FindResourceA(other, MAKEINTRESOURCEA(1), RT_VERSION));
    EXPECT_EQ(other, AfxFindResourceHandle(MAKEINTRESOURCEA(1), RT_VERSION));
    EXPECT_EQ(other, AfxFindResourceHandle(MAKEINTRESOURCEA(4242), RT_BITMAP));
    AfxSetResourceHandle(program);
    EXPECT_EQ(program, AfxFindResourceHandle(MAKEINTRESOURCEA(1), RT_VERSION)) << "the program lacks it too";
}

TEST(DrawingMembers, RoundRectCharWidthsAndPrinting)
{
    DibCanvas canvas(30, 30, RGB(255, 255, 255));
    CDC* dc = canvas.dc();
    HGDIOBJ brush = ::SelectObject(dc->m_hDC, ::GetStockObject(BLACK_BRUSH));
    EXPECT_TRUE(dc->RoundRect(CRect(2, 2, 28, 28), CPoint(12, 12)));
    ::SelectObject(dc->m_hDC, brush);
    EXPECT_EQ(RGB(0, 0, 0), canvas.Pixel(15, 15));
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(2, 2)) << "the corner is rounded";
    int widths[3] = {};
    ASSERT_TRUE(dc->GetCharWidth('a', 'c', widths));
    int single = 0;
    ::GetCharWidthA(dc->m_hDC, 'b', 'b', &single);
    EXPECT_EQ(single, widths[1]);
    EXPECT_FALSE(dc->IsPrinting());
    dc->m_bPrinting = TRUE;
    EXPECT_TRUE(dc->IsPrinting());
}

TEST(DrawingMembers, PointFontsAreTenthsOfAPointInTheContextsUnits)
{
    DibCanvas canvas(4, 4);
    ASSERT_EQ(96, canvas.dc()->GetDeviceCaps(LOGPIXELSY)) << "the test reads 96 pixels an inch";
    CFont screen, onCanvas;
    ASSERT_TRUE(screen.CreatePointFont(120, "Arial"));
    ASSERT_TRUE(onCanvas.CreatePointFont(90, "Arial", canvas.dc()));
    LOGFONTA a, b;
    screen.GetLogFont(&a);
    onCanvas.GetLogFont(&b);
    EXPECT_EQ(-16, a.lfHeight) << "12 points at 96 pixels an inch";
    EXPECT_EQ(-12, b.lfHeight);
    EXPECT_STREQ("Arial", a.lfFaceName);
    EXPECT_EQ(DEFAULT_CHARSET, a.lfCharSet);
    ::SetMapMode(canvas.dc()->m_hDC, MM_TWIPS);  // 1440 logical units an inch
    CFont twips;
    ASSERT_TRUE(twips.CreatePointFont(120, "Arial", canvas.dc()));
    LOGFONTA c;
    twips.GetLogFont(&c);
    EXPECT_EQ(-240, c.lfHeight) << "12 points are 240 twips";
    ::SetMapMode(canvas.dc()->m_hDC, MM_TEXT);
}
