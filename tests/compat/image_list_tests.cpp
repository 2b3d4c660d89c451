// CImageList: ownership of the list handle, and how a 16-colour list cuts and draws a strip.
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include <afxcmn.h>
#include <gtest/gtest.h>
#include <algorithm>

namespace {

const COLORREF kNavy = RGB(0, 0, 128);
const COLORREF kTeal = RGB(0, 128, 128);
const COLORREF kRed = RGB(255, 0, 0);

// A strip of two 4-by-4 cells: navy with a red centre pixel, then teal.
HBITMAP Strip()
{
    DibCanvas canvas(8, 4);
    canvas.dc()->FillSolidRect(0, 0, 4, 4, kNavy);
    canvas.dc()->FillSolidRect(4, 0, 4, 4, kTeal);
    canvas.dc()->SetPixel(1, 1, kRed);
    CClientDC screen(nullptr);
    HBITMAP strip = CreateCompatibleBitmap(screen, 8, 4);
    HDC memory = CreateCompatibleDC(nullptr);
    HGDIOBJ previous = SelectObject(memory, strip);
    BitBlt(memory, 0, 0, 8, 4, canvas.dc()->m_hDC, 0, 0, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
    return strip;
}

}  // namespace

TEST(CImageList, CreateOwnsTheHandleAndDeleteReleasesIt)
{
    CImageList list;
    EXPECT_EQ(nullptr, list.GetSafeHandle());
    EXPECT_FALSE(list.DeleteImageList());
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR, 4, 4));
    EXPECT_NE(nullptr, list.m_hImageList);
    EXPECT_EQ(list.m_hImageList, list.GetSafeHandle());
    EXPECT_EQ(list.m_hImageList, static_cast<HIMAGELIST>(list));
    EXPECT_EQ(0, list.GetImageCount());
    EXPECT_TRUE(list.DeleteImageList());
    EXPECT_EQ(nullptr, list.m_hImageList);
}

TEST(CImageList, AddMaskedCutsAStripIntoCells)
{
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR, 4, 4));
    HBITMAP strip = Strip();
    EXPECT_EQ(0, ImageList_AddMasked(list, strip, kRed));
    DeleteObject(strip);
    EXPECT_EQ(2, list.GetImageCount());
}

TEST(CImageList, DrawPutsACellAtThePointAndMaskedPixelsTurnBlack)
{
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR, 4, 4));
    HBITMAP strip = Strip();
    ImageList_AddMasked(list, strip, kRed);
    DeleteObject(strip);
    DibCanvas canvas(10, 10, RGB(255, 255, 255));
    DcStateCheck check(canvas.dc());
    EXPECT_TRUE(list.Draw(canvas.dc(), 0, CPoint(2, 3), ILD_NORMAL));
    EXPECT_TRUE(list.Draw(canvas.dc(), 1, CPoint(6, 3), ILD_NORMAL));
    EXPECT_TRUE(check.Unchanged());
    EXPECT_EQ(kNavy, canvas.Pixel(2, 3));
    EXPECT_EQ(RGB(0, 0, 0), canvas.Pixel(3, 4));  // the red centre pixel
    EXPECT_EQ(kNavy, canvas.Pixel(5, 6));
    EXPECT_EQ(kTeal, canvas.Pixel(6, 3));
    EXPECT_EQ(kTeal, canvas.Pixel(9, 6));
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(1, 3));
    EXPECT_EQ(RGB(255, 255, 255), canvas.Pixel(2, 7));
    EXPECT_FALSE(list.Draw(canvas.dc(), 2, CPoint(0, 0), ILD_NORMAL));
}

TEST(CImageList, SixteenColourListsKeepOnlyPaletteColours)
{
    CImageList list;
    ASSERT_TRUE(list.Create(2, 2, ILC_COLOR, 1, 1));
    CClientDC screen(nullptr);
    CBitmap cell;
    ASSERT_TRUE(cell.CreateCompatibleBitmap(&screen, 2, 2));
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap* previous = memory.SelectObject(&cell);
    memory.FillSolidRect(0, 0, 2, 2, RGB(200, 100, 50));
    memory.SelectObject(previous);
    ImageList_AddMasked(list, cell, RGB(255, 0, 0));
    DibCanvas canvas(2, 2);
    list.Draw(canvas.dc(), 0, CPoint(0, 0), ILD_NORMAL);
    const COLORREF vga[] = {RGB(0, 0, 0),       RGB(128, 0, 0),   RGB(0, 128, 0),   RGB(128, 128, 0),
                            RGB(0, 0, 128),     RGB(128, 0, 128), RGB(0, 128, 128), RGB(192, 192, 192),
                            RGB(128, 128, 128), RGB(255, 0, 0),   RGB(0, 255, 0),   RGB(255, 255, 0),
                            RGB(0, 0, 255),     RGB(255, 0, 255), RGB(0, 255, 255), RGB(255, 255, 255)};
    COLORREF drawn = canvas.Pixel(0, 0);
    EXPECT_NE(RGB(200, 100, 50), drawn);
    EXPECT_NE(std::end(vga), std::find(std::begin(vga), std::end(vga), drawn)) << std::hex << drawn;
}

TEST(CImageList, DestructorReleasesTheListsBitmaps)
{
    HBITMAP strip = Strip();
    int before = GdiProbeSlot();
    for (int i = 0; i < 200; ++i) {
        CImageList list;
        ASSERT_TRUE(list.Create(4, 4, ILC_COLOR, 4, 4));
        ImageList_AddMasked(list, strip, kRed);
    }
    EXPECT_EQ(before, GdiProbeSlot());
    DeleteObject(strip);
}
