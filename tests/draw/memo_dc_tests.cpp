// The off-screen memory context: its constructors, loads, sizes, run-time class and the bitmap it
// leaves behind.
#include "draw_fixture.h"
#include "kiv_skin/display/memo_dc.h"
#include "support/bitmap_files.h"
#include "support/test_files.h"

using kiv_skin::CMemoDC;

namespace {

const UINT kProbeBitmap = 101;  // 6 x 4, in this program's resources
const COLORREF kProbeTopLeft = RGB(0x00, 0x20, 0x30);
const COLORREF kProbeTopRight = RGB(0xF0, 0x20, 0x30);

// A 4 x 3 bitmap file with a coloured top-left pixel.
std::string WriteBitmapFile(const ScratchDir& dir)
{
    PixelGrid grid = SolidGrid(4, 3, RGB(10, 20, 30));
    grid.Set(0, 0, RGB(200, 100, 50));
    std::string path = dir.Path("four_by_three.bmp");
    WriteFileBytes(path, BmpBytes(grid));
    return path;
}

HGDIOBJ SelectedBitmap(CDC& dc) { return ::GetCurrentObject(dc.m_hDC, OBJ_BITMAP); }

}  // namespace

TEST(MemoDC, FilledContextHoldsItsColourAndSize)
{
    Sheet sheet(12, 12);
    {
        CMemoDC memo(sheet.dc(), 5, 4, RGB(1, 200, 3));
        EXPECT_EQ(CSize(5, 4), memo.GetSize());
        sheet.dc()->BitBlt(2, 2, 8, 8, &memo, 0, 0, SRCCOPY);
    }
    EXPECT_EQ(20, sheet.Count(RGB(1, 200, 3), {2, 2, 7, 6}));
    EXPECT_EQ(RGB(1, 200, 3), sheet.At(6, 5));
    EXPECT_EQ(kSentinel, sheet.At(1, 1));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST(MemoDC, EmptyFilledContextReportsSizeZero)
{
    Sheet sheet(4, 4);
    CMemoDC memo(sheet.dc(), 0, 0, RGB(1, 2, 3));
    EXPECT_NE(nullptr, memo.GetSafeHdc());
    EXPECT_EQ(CSize(0, 0), memo.GetSize());
}

TEST(MemoDC, AbsurdSizeRaisesTheResourceException)
{
    Sheet sheet(4, 4);
    CResourceException* raised = nullptr;
    try {
        CMemoDC memo(sheet.dc(), 200000, 200000, RGB(1, 2, 3));
    } catch (CResourceException* e) {
        raised = e;
    }
    ASSERT_NE(nullptr, raised);
    raised->Delete();
}

TEST(MemoDC, MissingFileLeavesABareContextThatShowsNothing)
{
    Sheet sheet(6, 6);
    CMemoDC memo(sheet.dc(), "Z:\\no\\such\\file.bmp");
    ASSERT_NE(nullptr, memo.GetSafeHdc());
    EXPECT_EQ(CSize(0, 0), memo.GetSize());
    memo.FillSolidRect(0, 0, 6, 6, RGB(1, 2, 3));
    sheet.dc()->BitBlt(0, 0, 6, 6, &memo, 0, 0, SRCCOPY);
    EXPECT_EQ(0, sheet.Count(RGB(1, 2, 3), {0, 0, 6, 6}));
}

TEST(MemoDC, FileBitmapIsSelectedWithItsSize)
{
    ScratchDir dir;
    std::string path = WriteBitmapFile(dir);
    Sheet sheet(6, 6);
    CMemoDC memo(sheet.dc(), path.c_str());
    EXPECT_EQ(CSize(4, 3), memo.GetSize());
    sheet.dc()->BitBlt(0, 0, 4, 3, &memo, 0, 0, SRCCOPY);
    EXPECT_EQ(RGB(200, 100, 50), sheet.At(0, 0));
    EXPECT_EQ(RGB(10, 20, 30), sheet.At(3, 2));
}

TEST(MemoDC, CallersBitmapStaysTheCallers)
{
    Sheet sheet(4, 4);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(sheet.dc(), 7, 5));
    {
        CMemoDC memo(sheet.dc(), &bitmap);
        EXPECT_EQ(bitmap.m_hObject, SelectedBitmap(memo));
        EXPECT_EQ(CSize(7, 5), memo.GetSize());
        memo.FillSolidRect(0, 0, 7, 5, RGB(9, 8, 7));
    }
    BITMAP info;
    ASSERT_NE(0, bitmap.GetBitmap(&info));
    EXPECT_EQ(7, info.bmWidth);
    // Free again: it can be selected elsewhere and still holds what was drawn.
    CMemoDC again(sheet.dc(), &bitmap);
    EXPECT_EQ(bitmap.m_hObject, SelectedBitmap(again));
    EXPECT_EQ(RGB(9, 8, 7), again.GetPixel(6, 4));
}

TEST(MemoDC, NullBitmapSelectsNothing)
{
    Sheet sheet(4, 4);
    CMemoDC memo(sheet.dc(), static_cast<CBitmap*>(nullptr));
    EXPECT_NE(nullptr, memo.GetSafeHdc());
    EXPECT_EQ(CSize(0, 0), memo.GetSize());
}

TEST(MemoDC, EachLoadSelectsTheNewBitmapAndTakesItsSize)
{
    Sheet sheet(4, 4);
    CBitmap first, second;
    ASSERT_TRUE(first.CreateCompatibleBitmap(sheet.dc(), 3, 2));
    ASSERT_TRUE(second.CreateCompatibleBitmap(sheet.dc(), 9, 8));
    {
        CMemoDC memo(sheet.dc());
        EXPECT_EQ(CSize(0, 0), memo.GetSize());
        memo.LoadBmp(&first);
        EXPECT_EQ(first.m_hObject, SelectedBitmap(memo));
        memo.LoadBmp(&second);
        EXPECT_EQ(second.m_hObject, SelectedBitmap(memo));
        EXPECT_EQ(CSize(9, 8), memo.GetSize());
    }
    EXPECT_TRUE(first.DeleteObject());
    EXPECT_TRUE(second.DeleteObject());
}

TEST(MemoDC, SetSizeReadsWithoutSelecting)
{
    Sheet sheet(4, 4);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(sheet.dc(), 11, 13));
    CMemoDC memo(sheet.dc());
    HGDIOBJ before = SelectedBitmap(memo);
    memo.SetSize(bitmap);
    EXPECT_EQ(CSize(11, 13), memo.GetSize());
    EXPECT_EQ(before, SelectedBitmap(memo));
    memo.SetSize(nullptr);
    EXPECT_EQ(CSize(11, 13), memo.GetSize()) << "an unreadable bitmap leaves the size";
}

TEST(MemoDC, ResourceBitmapFromTheModuleThatHoldsIt)
{
    Sheet sheet(8, 8);
    CMemoDC memo(sheet.dc(), kProbeBitmap);
    EXPECT_EQ(CSize(6, 4), memo.GetSize());
    sheet.dc()->BitBlt(0, 0, 6, 4, &memo, 0, 0, SRCCOPY);
    EXPECT_EQ(kProbeTopLeft, sheet.At(0, 0));
    EXPECT_EQ(kProbeTopRight, sheet.At(5, 0));
}

TEST(MemoDC, MissingResourceRaisesTheResourceException)
{
    Sheet sheet(4, 4);
    EXPECT_THROW(CMemoDC(sheet.dc(), 999u), CResourceException*);
    CMemoDC memo(sheet.dc());
    EXPECT_THROW(memo.LoadBmp(999u), CResourceException*);
}

TEST(MemoDC, SecondOwnedResourceIsRefused)
{
    Sheet sheet(4, 4);
    CMemoDC memo(sheet.dc());
    memo.LoadBmp(kProbeBitmap);
    EXPECT_EQ(CSize(6, 4), memo.GetSize());
    HGDIOBJ owned = SelectedBitmap(memo);
    EXPECT_THROW(memo.LoadBmp(kProbeBitmap), CResourceException*);
    EXPECT_EQ(owned, SelectedBitmap(memo));
    EXPECT_EQ(0, memo.LoadBmp(::GetModuleHandleA(nullptr), kProbeBitmap));
}

TEST(MemoDC, ModuleResourceLoadAnswersWhetherItLoaded)
{
    Sheet sheet(8, 8);
    HINSTANCE program = ::GetModuleHandleA(nullptr);
    CMemoDC bare(sheet.dc());
    EXPECT_EQ(0, bare.LoadBmp(nullptr, kProbeBitmap));
    EXPECT_EQ(0, bare.LoadBmp(program, 999));
    EXPECT_EQ(CSize(0, 0), bare.GetSize());
    EXPECT_EQ(1, bare.LoadBmp(program, kProbeBitmap));
    EXPECT_EQ(CSize(6, 4), bare.GetSize());

    CMemoDC loaded(sheet.dc(), program, kProbeBitmap);
    EXPECT_EQ(CSize(6, 4), loaded.GetSize());
    CMemoDC missing(sheet.dc(), program, 999);
    EXPECT_EQ(CSize(0, 0), missing.GetSize());
}

TEST(MemoDC, RunTimeClassNamesItselfAndItsBase)
{
    Sheet sheet(4, 4);
    CMemoDC memo(sheet.dc());
    CRuntimeClass* type = memo.GetRuntimeClass();
    EXPECT_STREQ("CMemoDC", type->m_lpszClassName);
    EXPECT_EQ(RUNTIME_CLASS(CMemoDC), type);
    EXPECT_STREQ("CDC", type->m_pfnGetBaseClass()->m_lpszClassName);
    EXPECT_TRUE(memo.IsKindOf(RUNTIME_CLASS(CDC)));
    EXPECT_FALSE(sheet.dc()->IsKindOf(RUNTIME_CLASS(CMemoDC)));
}

TEST(MemoDC, ScreenCompatibleWhenNoContextIsGiven)
{
    CMemoDC memo(nullptr);
    EXPECT_NE(nullptr, memo.GetSafeHdc());
    CClientDC screen(nullptr);
    EXPECT_EQ(screen.GetDeviceCaps(BITSPIXEL), memo.GetDeviceCaps(BITSPIXEL));
}
