#include "kiv_skin/display/memo_dc.h"

namespace kiv_skin {
namespace {

HBITMAP LoadResourceBitmap(UINT id)
{
    WORD number = static_cast<WORD>(id);
    HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEA(number), RT_BITMAP);
    return ::LoadBitmapW(module, MAKEINTRESOURCEW(number));
}

}  // namespace

IMPLEMENT_DYNAMIC(CMemoDC, CDC)

CMemoDC::CMemoDC(CDC* dc, int cx, int cy, DWORD color)
{
    CreateContext(dc);
    if (!m_bitmap.CreateCompatibleBitmap(dc, cx, cy)) AfxThrowResourceException();
    SelectBitmap(m_bitmap);
    CBrush brush(color);
    CBrush* previous = SelectObject(&brush);
    PatBlt(0, 0, cx, cy, PATCOPY);
    SelectObject(previous);
    m_size = CSize(cx, cy);
}

CMemoDC::CMemoDC(CDC* dc, UINT id)
{
    CreateContext(dc);
    AttachOrThrow(LoadResourceBitmap(id));
}

CMemoDC::CMemoDC(CDC* dc, HINSTANCE module, UINT id)
{
    CreateContext(dc);
    LoadBmp(module, id);
}

CMemoDC::CMemoDC(CDC* dc, CBitmap* bitmap)
{
    CreateContext(dc);
    SelectBitmap(bitmap ? bitmap->m_hObject : nullptr);
}

CMemoDC::CMemoDC(CDC* dc, const char* path)
{
    CreateContext(dc);
    HANDLE loaded = ::LoadImageA(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE);
    if (loaded == nullptr) return;
    m_bitmap.Attach(loaded);
    SelectBitmap(loaded);
}

CMemoDC::CMemoDC(CDC* dc) { CreateContext(dc); }

CMemoDC::~CMemoDC()
{
    if (m_pPrevBitmap != nullptr) SelectObject(m_pPrevBitmap);
}

void CMemoDC::LoadBmp(CBitmap* bitmap) { SelectBitmap(bitmap ? bitmap->m_hObject : nullptr); }

void CMemoDC::LoadBmp(UINT id)
{
    m_pPrevBitmap = nullptr;
    AttachOrThrow(LoadResourceBitmap(id));
}

int CMemoDC::LoadBmp(HINSTANCE module, UINT id)
{
    if (module == nullptr) return 0;
    HBITMAP loaded = ::LoadBitmapA(module, MAKEINTRESOURCEA(id));
    if (loaded == nullptr) return 0;
    if (m_bitmap.m_hObject != nullptr) {
        ::DeleteObject(loaded);
        return 0;
    }
    m_bitmap.Attach(loaded);
    SelectBitmap(loaded);
    return 1;
}

void CMemoDC::SetSize(HGDIOBJ bitmap)
{
    BITMAP info;
    if (::GetObjectA(bitmap, sizeof(info), &info)) m_size = CSize(info.bmWidth, info.bmHeight);
}

void CMemoDC::CreateContext(CDC* dc)
{
    if (!Attach(::CreateCompatibleDC(dc ? dc->m_hDC : nullptr))) AfxThrowResourceException();
}

// Selects bitmap into the context, remembering what it replaced, and takes its size.
void CMemoDC::SelectBitmap(HGDIOBJ bitmap)
{
    m_pPrevBitmap = CGdiObject::FromHandle(::SelectObject(m_hDC, bitmap));
    SetSize(bitmap);
}

// Makes loaded the owned, selected bitmap; a bitmap that did not load, or a second one while this
// object owns one, raises the resource exception.
void CMemoDC::AttachOrThrow(HBITMAP loaded)
{
    if (loaded == nullptr) AfxThrowResourceException();
    if (m_bitmap.m_hObject != nullptr) {
        ::DeleteObject(loaded);
        AfxThrowResourceException();
    }
    m_bitmap.Attach(loaded);
    SelectBitmap(loaded);
}

}  // namespace kiv_skin
