// MFC's GDI object wrappers: CGdiObject, CPen, CBrush, CFont, CBitmap.
// Objects own their handle and delete it on destruction; FromHandle answers the object that
// owns a handle, or a temporary wrapper that never deletes it, as MFC's handle map does.
#pragma once
#include "afx.h"
#include "afxexcept.h"
#include "winhand_.h"

class CDC;
class CGdiObject;

inline CHandleMap<CGdiObject, HGDIOBJ>* afxMapHGDIOBJ();

class CGdiObject : public CObject {
public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject() { DeleteObject(); }

    operator HGDIOBJ() const { return m_hObject; }
    // Safe through a null pointer, as in MFC.
    HGDIOBJ GetSafeHandle() const { return this == nullptr ? nullptr : m_hObject; }

    // Attaching to an object that already holds a handle is a programming error.
    BOOL Attach(HGDIOBJ hObject)
    {
        if (m_hObject != nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
        if (hObject == nullptr) return FALSE;
        m_hObject = hObject;
        afxMapHGDIOBJ()->SetPermanent(hObject, this);
        return TRUE;
    }
    HGDIOBJ Detach()
    {
        HGDIOBJ h = m_hObject;
        if (h != nullptr) afxMapHGDIOBJ()->RemoveHandle(h);
        m_hObject = nullptr;
        return h;
    }
    BOOL DeleteObject() { return m_hObject ? ::DeleteObject(Detach()) : FALSE; }
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectA(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return (m_hObject = ::GetStockObject(nIndex)) != nullptr; }

    static CGdiObject* FromHandle(HGDIOBJ hObject) { return afxMapHGDIOBJ()->FromHandle(hObject); }
};

inline CHandleMap<CGdiObject, HGDIOBJ>* afxMapHGDIOBJ()
{
    static auto* map = new CHandleMap<CGdiObject, HGDIOBJ>(
        [](CGdiObject& wrapper, HGDIOBJ h) { wrapper.m_hObject = h; },
        [](HGDIOBJ h) { return ::GetObjectType(h) != 0; });
    return map;
}

class CPen : public CGdiObject {
public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        if (!CreatePen(nPenStyle, nWidth, crColor)) AfxThrowResourceException();
    }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
};

class CBitmap : public CGdiObject {
public:
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
    {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    inline BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return GetObject(sizeof(BITMAP), pBitMap); }
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* FromHandle(HBITMAP hBitmap) { return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap)); }
};

class CFont : public CGdiObject {
public:
    BOOL CreateFontIndirect(const LOGFONTA* lpLogFont) { return Attach(::CreateFontIndirectA(lpLogFont)); }
    // Heights in tenths of a point, converted to logical units of pDC (or of the screen).
    inline BOOL CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC = nullptr);
    inline BOOL CreatePointFontIndirect(const LOGFONTA* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONTA* pLogFont) { return GetObject(sizeof(LOGFONTA), pLogFont); }
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* FromHandle(HFONT hFont) { return static_cast<CFont*>(CGdiObject::FromHandle(hFont)); }
};

class CBrush : public CGdiObject {
public:
    CBrush() = default;
    explicit CBrush(COLORREF crColor)
    {
        if (!CreateSolidBrush(crColor)) AfxThrowResourceException();
    }
    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreatePatternBrush(CBitmap* pBitmap) { return Attach(::CreatePatternBrush(*pBitmap)); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* FromHandle(HBRUSH hBrush) { return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush)); }
};
