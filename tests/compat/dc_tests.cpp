// CDC: what drawing code relies on, checked on a DIB section's pixels.
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include <afxwin.h>
#include <gtest/gtest.h>

TEST(CDC, FillSolidRectFillsAndLeavesTheBackgroundColourSet)
{
    DibCanvas canvas(20, 10);
    CDC* dc = canvas.dc();
    dc->SetBkColor(RGB(1, 1, 1));
    dc->FillSolidRect(2, 3, 5, 4, RGB(200, 10, 20));
    EXPECT_EQ(RGB(200, 10, 20), dc->GetBkColor());
    EXPECT_EQ(RGB(200, 10, 20), canvas.Pixel(2, 3));
    EXPECT_EQ(RGB(200, 10, 20), canvas.Pixel(6, 6));
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(7, 6));
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(6, 7));
    EXPECT_EQ(20, canvas.Count(RGB(200, 10, 20)));
}

TEST(CDC, SelectObjectAnswersThePreviousObject)
{
    DibCanvas canvas(4, 4);
    CDC* dc = canvas.dc();
    HGDIOBJ original = GetCurrentObject(dc->m_hDC, OBJ_PEN);
    CPen red(PS_SOLID, 1, RGB(255, 0, 0));
    CPen blue(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* old = dc->SelectObject(&red);
    ASSERT_NE(nullptr, old);
    EXPECT_EQ(original, old->m_hObject);
    EXPECT_EQ(&red, dc->SelectObject(&blue));
    EXPECT_EQ(&blue, dc->SelectObject(old));
    EXPECT_EQ(original, GetCurrentObject(dc->m_hDC, OBJ_PEN));
}

TEST(CDC, SettersAnswerThePreviousValue)
{
    DibCanvas canvas(4, 4);
    CDC* dc = canvas.dc();
    dc->SetTextColor(RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), dc->SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(RGB(4, 5, 6), dc->GetTextColor());
    dc->SetBkMode(OPAQUE);
    EXPECT_EQ(OPAQUE, dc->SetBkMode(TRANSPARENT));
    EXPECT_EQ(TRANSPARENT, dc->GetBkMode());
    dc->SetTextAlign(TA_LEFT | TA_TOP);
    EXPECT_EQ(static_cast<UINT>(TA_LEFT | TA_TOP), dc->SetTextAlign(TA_RIGHT | TA_BOTTOM));
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT | TA_BOTTOM), dc->GetTextAlign());
}

// A DC whose attribute handle differs from its output handle, each with its own font.
class SplitHandles : public ::testing::Test {
protected:
    void SetUp() override
    {
        LOGFONTA lf = {};
        lf.lfHeight = -10;
        smallFont.CreateFontIndirect(&lf);
        lf.lfHeight = -40;
        largeFont.CreateFontIndirect(&lf);
        oldOut = SelectObject(output.dc()->m_hDC, smallFont);
        oldAttrib = SelectObject(attrib.dc()->m_hDC, largeFont);
        split.m_hDC = output.dc()->m_hDC;
        split.m_hAttribDC = attrib.dc()->m_hDC;
    }
    void TearDown() override
    {
        split.m_hDC = split.m_hAttribDC = nullptr;  // the canvases own both handles
        SelectObject(output.dc()->m_hDC, oldOut);
        SelectObject(attrib.dc()->m_hDC, oldAttrib);
    }
    DibCanvas output{8, 8};
    DibCanvas attrib{8, 8};
    CFont smallFont, largeFont;
    HGDIOBJ oldOut = nullptr, oldAttrib = nullptr;
    CDC split;
};

TEST_F(SplitHandles, ExtentsComeFromTheirOwnHandle)
{
    CSize attribute = split.GetTextExtent("Hello", 5);
    CSize outputSize = split.GetOutputTextExtent("Hello", 5);
    EXPECT_GT(attribute.cy, outputSize.cy);
    EXPECT_EQ(CSize(attribute), split.GetTextExtent(CString("Hello")));
    TEXTMETRICA tm;
    split.GetTextMetrics(&tm);
    EXPECT_EQ(attribute.cy, tm.tmHeight);
}

TEST_F(SplitHandles, SettersChangeBothHandles)
{
    split.SetTextColor(RGB(9, 8, 7));
    EXPECT_EQ(RGB(9, 8, 7), GetTextColor(split.m_hDC));
    EXPECT_EQ(RGB(9, 8, 7), GetTextColor(split.m_hAttribDC));
    split.SetBkMode(TRANSPARENT);
    EXPECT_EQ(TRANSPARENT, GetBkMode(split.m_hDC));
    EXPECT_EQ(TRANSPARENT, GetBkMode(split.m_hAttribDC));
}

TEST_F(SplitHandles, WindowOriginMovesOnBothHandles)
{
    EXPECT_EQ(CPoint(0, 0), split.SetWindowOrg(-3, 2));
    POINT out, attr;
    GetWindowOrgEx(split.m_hDC, &out);
    GetWindowOrgEx(split.m_hAttribDC, &attr);
    EXPECT_EQ(CPoint(-3, 2), CPoint(out));
    EXPECT_EQ(CPoint(-3, 2), CPoint(attr));
    split.SetPixel(0, 0, RGB(1, 2, 3));  // logical (0, 0) is device (3, -2): off the bitmap
    split.SetPixel(-3, 2, RGB(4, 5, 6));  // device (0, 0)
    EXPECT_EQ(RGB(4, 5, 6), output.Pixel(0, 0));
    EXPECT_EQ(CPoint(-3, 2), split.SetWindowOrg(CPoint(0, 0)));
}

TEST_F(SplitHandles, OutputGoesToTheOutputHandle)
{
    split.FillSolidRect(0, 0, 8, 8, RGB(0, 128, 0));
    EXPECT_EQ(64, output.Count(RGB(0, 128, 0)));
    EXPECT_EQ(0, attrib.Count(RGB(0, 128, 0)));
}

// A bitmap can be selected into one context only: MFC selects it into the output handle.
TEST_F(SplitHandles, BitmapGoesToTheOutputHandleOnly)
{
    HGDIOBJ outputBitmap = GetCurrentObject(split.m_hDC, OBJ_BITMAP);
    HGDIOBJ attribBitmap = GetCurrentObject(split.m_hAttribDC, OBJ_BITMAP);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 32, nullptr));
    CBitmap* previous = split.SelectObject(&bitmap);
    ASSERT_NE(nullptr, previous);
    EXPECT_EQ(outputBitmap, previous->m_hObject);
    EXPECT_EQ(bitmap.m_hObject, GetCurrentObject(split.m_hDC, OBJ_BITMAP));
    EXPECT_EQ(attribBitmap, GetCurrentObject(split.m_hAttribDC, OBJ_BITMAP));
    split.SelectObject(previous);
    EXPECT_EQ(outputBitmap, GetCurrentObject(split.m_hDC, OBJ_BITMAP));
}

TEST_F(SplitHandles, ClippingActsOnBothHandles)
{
    EXPECT_EQ(SIMPLEREGION, split.IntersectClipRect(1, 2, 5, 6));
    for (HDC hdc : {split.m_hDC, split.m_hAttribDC}) {
        RECT box;
        EXPECT_EQ(SIMPLEREGION, GetClipBox(hdc, &box));
        EXPECT_EQ(CRect(1, 2, 5, 6), box);
    }
    SelectClipRgn(split.m_hDC, nullptr);
    SelectClipRgn(split.m_hAttribDC, nullptr);
}

TEST_F(SplitHandles, CurrentObjectsComeFromTheAttributeHandle)
{
    EXPECT_EQ(&largeFont, split.GetCurrentFont());
    EXPECT_EQ(GetCurrentObject(split.m_hAttribDC, OBJ_BITMAP), split.GetCurrentBitmap()->m_hObject);
}

TEST(CDC, GetNearestColorOnATrueColourSurface)
{
    DibCanvas canvas(2, 2);
    EXPECT_EQ(RGB(12, 34, 56), canvas.dc()->GetNearestColor(RGB(12, 34, 56)));
}

TEST(CDC, BitBltAndStretchBltCopyPixels)
{
    DibCanvas source(4, 4, RGB(10, 20, 30));
    source.dc()->SetPixel(0, 0, RGB(255, 0, 0));
    DibCanvas target(8, 8);
    EXPECT_TRUE(target.dc()->BitBlt(1, 1, 4, 4, source.dc(), 0, 0, SRCCOPY));
    EXPECT_EQ(RGB(255, 0, 0), target.Pixel(1, 1));
    EXPECT_EQ(RGB(10, 20, 30), target.Pixel(4, 4));
    EXPECT_EQ(RGB(255, 255, 255), target.Pixel(5, 5));
    EXPECT_TRUE(target.dc()->StretchBlt(0, 0, 8, 8, source.dc(), 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(RGB(255, 0, 0), target.Pixel(1, 1));
    EXPECT_EQ(RGB(10, 20, 30), target.Pixel(7, 7));
}

TEST(CDC, LinesAndPixels)
{
    DibCanvas canvas(10, 10);
    CDC* dc = canvas.dc();
    CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* old = dc->SelectObject(&pen);
    dc->MoveTo(1, 5);
    dc->LineTo(8, 5);
    dc->SelectObject(old);
    EXPECT_EQ(RGB(0, 0, 255), canvas.Pixel(1, 5));
    EXPECT_EQ(RGB(0, 0, 255), canvas.Pixel(7, 5));
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(8, 5));  // the end point is not drawn
    dc->SetPixel(3, 3, RGB(5, 6, 7));
    EXPECT_EQ(RGB(5, 6, 7), dc->GetPixel(3, 3));
}

TEST(CDC, SaveAndRestore)
{
    DibCanvas canvas(2, 2);
    CDC* dc = canvas.dc();
    DcStateCheck check(dc);
    int saved = dc->SaveDC();
    ASSERT_NE(0, saved);
    dc->SetTextColor(RGB(1, 1, 1));
    dc->SetBkMode(TRANSPARENT);
    EXPECT_FALSE(check.Unchanged());
    EXPECT_TRUE(dc->RestoreDC(saved));
    EXPECT_TRUE(check.Unchanged());
}

TEST(CClientDC, ScreenContextReportsItsDpi)
{
    CClientDC screen(nullptr);
    EXPECT_NE(nullptr, screen.m_hDC);
    EXPECT_EQ(screen.m_hDC, screen.m_hAttribDC);
    EXPECT_GT(screen.GetDeviceCaps(LOGPIXELSY), 0);
}
