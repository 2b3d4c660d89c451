// GDI object wrappers: ownership of handles and the handle map behind FromHandle.
#include "support/dc_state.h"
#include <afxwin.h>
#include <gtest/gtest.h>

TEST(CGdiObject, DestructorDeletesTheHandle)
{
    int before = GdiProbeSlot();
    for (int i = 0; i < 200; ++i) {
        CPen pen(PS_SOLID, 1, RGB(i, 0, 0));
        CBrush brush(RGB(0, i, 0));
        CFont font;
        LOGFONTA lf = {};
        lf.lfHeight = -12;
        ASSERT_TRUE(font.CreateFontIndirect(&lf));
    }
    EXPECT_EQ(before, GdiProbeSlot());
}

TEST(CGdiObject, DetachKeepsTheHandleAlive)
{
    HGDIOBJ handle;
    {
        CBrush brush(RGB(1, 2, 3));
        handle = brush.Detach();
        EXPECT_EQ(nullptr, brush.m_hObject);
    }
    LOGBRUSH lb;
    EXPECT_EQ(static_cast<int>(sizeof(lb)), GetObjectA(handle, sizeof(lb), &lb));
    EXPECT_EQ(RGB(1, 2, 3), lb.lbColor);
    EXPECT_TRUE(DeleteObject(handle));
}

TEST(CGdiObject, FromHandleAnswersTheOwningObject)
{
    CBrush brush(RGB(4, 5, 6));
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
}

TEST(CGdiObject, TemporaryWrapperNeverDeletesTheHandle)
{
    HGDIOBJ stock = GetStockObject(BLACK_PEN);
    CGdiObject* temp = CGdiObject::FromHandle(stock);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(stock, temp->m_hObject);
    EXPECT_EQ(temp, CGdiObject::FromHandle(stock));
    HBRUSH raw = CreateSolidBrush(RGB(7, 8, 9));
    CBrush::FromHandle(raw);
    LOGBRUSH lb;
    EXPECT_NE(0, GetObjectA(raw, sizeof(lb), &lb));  // still alive
    DeleteObject(raw);
}

TEST(CFont, GetLogFontReturnsTheDescription)
{
    LOGFONTA lf = {};
    lf.lfHeight = -15;
    lf.lfWeight = 700;
    lf.lfItalic = 1;
    lf.lfCharSet = 134;
    strcpy(lf.lfFaceName, "\xCB\xCE\xCC\xE5");  // 宋体 in GB2312
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&lf));
    LOGFONTA back = {};
    EXPECT_EQ(static_cast<int>(sizeof(LOGFONTA)), font.GetLogFont(&back));
    EXPECT_EQ(-15, back.lfHeight);
    EXPECT_EQ(700, back.lfWeight);
    EXPECT_EQ(1, back.lfItalic);
    EXPECT_EQ(134, back.lfCharSet);
    EXPECT_STREQ("\xCB\xCE\xCC\xE5", back.lfFaceName);
}

TEST(CBitmap, CreateCompatibleBitmapHasTheSize)
{
    CClientDC screen(nullptr);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 21, 13));
    BITMAP info;
    ASSERT_NE(0, bitmap.GetBitmap(&info));
    EXPECT_EQ(21, info.bmWidth);
    EXPECT_EQ(13, info.bmHeight);
}

TEST(CBitmap, AnAbsurdSizeFailsAndLeavesNoHandle)
{
    CClientDC screen(nullptr);
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.CreateCompatibleBitmap(&screen, 1 << 30, 1 << 30));
    EXPECT_EQ(nullptr, bitmap.m_hObject);
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
}

// A window handle that names no window gets no device context: the constructor throws the
// framework's resource exception, by pointer.
TEST(CResourceException, ThrownByPointerWhenAClientDCCannotBeMade)
{
    CWnd stale;
    stale.m_hWnd = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFF0));
    bool thrown = false;
    try {
        CClientDC dc(&stale);
    } catch (CResourceException* e) {
        thrown = true;
        e->Delete();
    }
    stale.m_hWnd = nullptr;  // nothing to destroy
    EXPECT_TRUE(thrown);
    EXPECT_NO_THROW(CClientDC(nullptr));
}
