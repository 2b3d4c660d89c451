// MFC's device context wrapper. As in MFC, output goes to m_hDC and attribute queries to
// m_hAttribDC; setters of colours, modes, clipping and selected pens, brushes and fonts change
// both handles when they differ, a bitmap is selected into the output handle only, and
// SelectObject answers the previously selected object through FromHandle.
#pragma once
#include "afxgdi.h"
#include "afxstr.h"
#include "afxtypes.h"

class CWnd;
class CRgn;
class CPalette;

class CDC;
inline CHandleMap<CDC, HDC>* afxMapHDC();

class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)

public:
    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;  // set by the framework while the context prints

    CDC() = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    virtual ~CDC() { if (m_hDC != nullptr) ::DeleteDC(Detach()); }

    operator HDC() const { return m_hDC; }
    // Safe through a null pointer, as in MFC.
    HDC GetSafeHdc() const { return this == nullptr ? nullptr : m_hDC; }
    // Attaching to a context that already holds a handle is a programming error.
    BOOL Attach(HDC hDC)
    {
        if (m_hDC != nullptr || m_hAttribDC != nullptr) AfxAssertFailedLine(__FILE__, __LINE__);
        if (hDC == nullptr) return FALSE;
        m_hDC = hDC;
        afxMapHDC()->SetPermanent(hDC, this);
        SetAttribDC(hDC);
        return TRUE;
    }
    HDC Detach()
    {
        HDC h = m_hDC;
        if (h != nullptr) afxMapHDC()->RemoveHandle(h);
        ReleaseAttribDC();
        m_hDC = nullptr;
        return h;
    }
    static CDC* FromHandle(HDC hDC) { return afxMapHDC()->FromHandle(hDC); }
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC) { m_hDC = hDC; }
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC() { m_hDC = nullptr; }

    BOOL CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr)); }
    BOOL DeleteDC() { return m_hDC ? ::DeleteDC(Detach()) : FALSE; }
    virtual int SaveDC()
    {
        int saved = m_hAttribDC ? ::SaveDC(m_hAttribDC) : 0;
        if (m_hDC != m_hAttribDC && ::SaveDC(m_hDC) != 0) saved = -1;
        return saved;
    }
    virtual BOOL RestoreDC(int nSavedDC)
    {
        BOOL ok = TRUE;
        if (m_hDC != m_hAttribDC) ok = ::RestoreDC(m_hDC, nSavedDC);
        if (m_hAttribDC != nullptr) ok = ok && ::RestoreDC(m_hAttribDC, nSavedDC);
        return ok;
    }
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    BOOL IsPrinting() const { return m_bPrinting; }

    // Selected objects
    // The handle and CGdiObject forms and bitmaps go to the output handle only, as in MFC.
    HGDIOBJ SelectObject(HGDIOBJ hObject) { return hObject != nullptr ? ::SelectObject(m_hDC, hObject) : nullptr; }
    CGdiObject* SelectObject(CGdiObject* p) { return CGdiObject::FromHandle(::SelectObject(m_hDC, p->GetSafeHandle())); }
    CPen* SelectObject(CPen* p) { return static_cast<CPen*>(CGdiObject::FromHandle(SelectBoth(p->GetSafeHandle()))); }
    CBrush* SelectObject(CBrush* p) { return static_cast<CBrush*>(CGdiObject::FromHandle(SelectBoth(p->GetSafeHandle()))); }
    virtual CFont* SelectObject(CFont* p) { return static_cast<CFont*>(CGdiObject::FromHandle(SelectBoth(p->GetSafeHandle()))); }
    CBitmap* SelectObject(CBitmap* p) { return static_cast<CBitmap*>(SelectObject(static_cast<CGdiObject*>(p))); }
    virtual CGdiObject* SelectStockObject(int nIndex) { return CGdiObject::FromHandle(SelectBoth(::GetStockObject(nIndex))); }
    CPen* GetCurrentPen() const { return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN))); }
    CBrush* GetCurrentBrush() const { return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH))); }
    CFont* GetCurrentFont() const { return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT))); }
    CBitmap* GetCurrentBitmap() const { return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP))); }

    // Colours, modes and alignment
    virtual COLORREF SetTextColor(COLORREF c) { return SetBoth(::SetTextColor, c, COLORREF(CLR_INVALID)); }
    virtual COLORREF SetBkColor(COLORREF c) { return SetBoth(::SetBkColor, c, COLORREF(CLR_INVALID)); }
    int SetBkMode(int nBkMode) { return SetBoth(::SetBkMode, nBkMode, 0); }
    UINT SetTextAlign(UINT nFlags) { return SetBoth(::SetTextAlign, nFlags, UINT(GDI_ERROR)); }
    int SetROP2(int nDrawMode) { return SetBoth(::SetROP2, nDrawMode, 0); }
    int SetStretchBltMode(int nMode) { return SetBoth(::SetStretchBltMode, nMode, 0); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    COLORREF GetNearestColor(COLORREF c) const { return ::GetNearestColor(m_hAttribDC, c); }

    // Text metrics: attribute handle, or output handle for the Output forms
    CSize GetTextExtent(LPCSTR lpszString, int nCount) const { return Extent(m_hAttribDC, lpszString, nCount); }
    CSize GetTextExtent(const CString& str) const { return Extent(m_hAttribDC, str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCSTR lpszString, int nCount) const { return Extent(m_hDC, lpszString, nCount); }
    CSize GetOutputTextExtent(const CString& str) const { return Extent(m_hDC, str, str.GetLength()); }
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
    {
        return ::GetCharWidthA(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }
    BOOL GetTextMetrics(LPTEXTMETRICA lpMetrics) const { return ::GetTextMetricsA(m_hAttribDC, lpMetrics); }
    BOOL GetOutputTextMetrics(LPTEXTMETRICA lpMetrics) const { return ::GetTextMetricsA(m_hDC, lpMetrics); }

    // Output
    COLORREF SetPixel(int x, int y, COLORREF c) { return ::SetPixel(m_hDC, x, y, c); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
    {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop)
    {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc,
                            nSrcWidth, nSrcHeight, dwRop);
    }
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) { return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop); }
    // Leaves the background colour set to the fill colour, as MFC does.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr)
    {
        ::SetBkColor(m_hDC, clr);
        ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    }
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
    {
        CRect rect(x, y, x + cx, y + cy);
        FillSolidRect(&rect, clr);
    }
    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, *pBrush); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, *pBrush); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT r) { return ::Rectangle(m_hDC, r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) { return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3); }
    BOOL RoundRect(LPCRECT r, POINT point) { return RoundRect(r->left, r->top, r->right, r->bottom, point.x, point.y); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    // Both handles, as MFC does; answers the previous origin.
    CPoint SetWindowOrg(int x, int y)
    {
        POINT old = {0, 0};
        if (m_hDC != m_hAttribDC) ::SetWindowOrgEx(m_hDC, x, y, &old);
        if (m_hAttribDC != nullptr) ::SetWindowOrgEx(m_hAttribDC, x, y, &old);
        return CPoint(old);
    }
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint MoveTo(int x, int y)
    {
        POINT old = {0, 0};
        if (m_hDC != m_hAttribDC) ::MoveToEx(m_hDC, x, y, &old);
        if (m_hAttribDC != nullptr) ::MoveToEx(m_hAttribDC, x, y, &old);
        return CPoint(old);
    }
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y)
    {
        if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) ::MoveToEx(m_hAttribDC, x, y, nullptr);
        return ::LineTo(m_hDC, x, y);
    }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    virtual BOOL TextOut(int x, int y, LPCSTR lpszString, int nCount) { return ::TextOutA(m_hDC, x, y, lpszString, nCount); }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCSTR lpszString, UINT nCount, LPINT lpDxWidths)
    {
        return ::ExtTextOutA(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    virtual int DrawText(LPCSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
    {
        return ::DrawTextA(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) { return DrawText(str, str.GetLength(), lpRect, nFormat); }
    int IntersectClipRect(int x1, int y1, int x2, int y2)
    {
        int result = ERROR;
        if (m_hDC != nullptr && m_hDC != m_hAttribDC) result = ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
        if (m_hAttribDC != nullptr) result = ::IntersectClipRect(m_hAttribDC, x1, y1, x2, y2);
        return result;
    }
    int IntersectClipRect(LPCRECT r) { return IntersectClipRect(r->left, r->top, r->right, r->bottom); }

    // Mapping modes and origins, on both handles; each answers the previous value.
    virtual int SetMapMode(int nMapMode) { return SetBoth(::SetMapMode, nMapMode, 0); }
    virtual CPoint SetViewportOrg(int x, int y) { return PointOnBoth(::SetViewportOrgEx, x, y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight) { return PointOnBoth(::OffsetViewportOrgEx, nWidth, nHeight); }
    virtual CSize SetViewportExt(int cx, int cy) { return SizeOnBoth(::SetViewportExtEx, cx, cy); }
    virtual CSize SetWindowExt(int cx, int cy) { return SizeOnBoth(::SetWindowExtEx, cx, cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
    {
        return ScaleOnBoth(::ScaleViewportExtEx, xNum, xDenom, yNum, yDenom);
    }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
    {
        return ScaleOnBoth(::ScaleWindowExtEx, xNum, xDenom, yNum, yDenom);
    }
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
    virtual CSize TabbedTextOut(int x, int y, LPCSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin)
    {
        LONG extent = ::TabbedTextOutA(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin);
        return CSize(LOWORD(extent), HIWORD(extent));
    }
    virtual int DrawTextEx(LPSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
    {
        return ::DrawTextExA(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
    }
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount,
                            int x, int y, int nWidth, int nHeight)
    {
        HBRUSH brush = pBrush ? static_cast<HBRUSH>(pBrush->GetSafeHandle()) : nullptr;
        return ::GrayStringA(m_hDC, brush, lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
    }
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
    {
        return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
    }

#include "afxdc_members_.h"

private:
    template <class Fn> CPoint PointOnBoth(Fn fn, int x, int y)
    {
        POINT old = {0, 0};
        if (m_hDC != nullptr && m_hDC != m_hAttribDC) fn(m_hDC, x, y, &old);
        if (m_hAttribDC != nullptr) fn(m_hAttribDC, x, y, &old);
        return CPoint(old);
    }
    template <class Fn> CSize SizeOnBoth(Fn fn, int cx, int cy)
    {
        SIZE old = {0, 0};
        if (m_hDC != nullptr && m_hDC != m_hAttribDC) fn(m_hDC, cx, cy, &old);
        if (m_hAttribDC != nullptr) fn(m_hAttribDC, cx, cy, &old);
        return CSize(old);
    }
    template <class Fn> CSize ScaleOnBoth(Fn fn, int xNum, int xDenom, int yNum, int yDenom)
    {
        SIZE old = {0, 0};
        if (m_hDC != nullptr && m_hDC != m_hAttribDC) fn(m_hDC, xNum, xDenom, yNum, yDenom, &old);
        if (m_hAttribDC != nullptr) fn(m_hAttribDC, xNum, xDenom, yNum, yDenom, &old);
        return CSize(old);
    }
    HGDIOBJ SelectBoth(HGDIOBJ h)
    {
        HGDIOBJ old = nullptr;
        if (m_hDC != m_hAttribDC) old = ::SelectObject(m_hDC, h);
        if (m_hAttribDC != nullptr) old = ::SelectObject(m_hAttribDC, h);
        return old;
    }
    template <class Fn, class T> T SetBoth(Fn fn, T value, T failed)
    {
        T old = failed;
        if (m_hDC != nullptr && m_hDC != m_hAttribDC) old = fn(m_hDC, value);
        if (m_hAttribDC != nullptr) old = fn(m_hAttribDC, value);
        return old;
    }
    static CSize Extent(HDC hdc, LPCSTR s, int n)
    {
        SIZE size = {0, 0};
        ::GetTextExtentPoint32A(hdc, s, n, &size);
        return CSize(size);
    }
};

inline const CRuntimeClass CDC::classCDC = {"CDC", sizeof(CDC), 0xFFFF, nullptr, &CDC::_GetBaseClass,
                                             nullptr, nullptr};
inline CRuntimeClass* PASCAL CDC::_GetBaseClass() { return RUNTIME_CLASS(CObject); }
inline CRuntimeClass* PASCAL CDC::GetThisClass() { return _RUNTIME_CLASS(CDC); }
inline CRuntimeClass* CDC::GetRuntimeClass() const { return _RUNTIME_CLASS(CDC); }

inline CHandleMap<CDC, HDC>* afxMapHDC()
{
    static auto* map = new CHandleMap<CDC, HDC>(
        [](CDC& wrapper, HDC h) { wrapper.m_hDC = wrapper.m_hAttribDC = h; },
        [](HDC h) { return ::GetObjectType(h) != 0; });
    return map;
}

inline BOOL CFont::CreatePointFontIndirect(const LOGFONTA* lpLogFont, CDC* pDC)
{
    HDC hDC = pDC ? pDC->m_hAttribDC : ::GetDC(nullptr);
    LOGFONTA logFont = *lpLogFont;
    POINT pt = {0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), logFont.lfHeight, 720)};  // 720 decipoints an inch
    POINT origin = {0, 0};
    ::DPtoLP(hDC, &pt, 1);
    ::DPtoLP(hDC, &origin, 1);
    logFont.lfHeight = -abs(pt.y - origin.y);
    if (pDC == nullptr) ::ReleaseDC(nullptr, hDC);
    return CreateFontIndirect(&logFont);
}

inline BOOL CFont::CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC)
{
    LOGFONTA logFont = {};
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfHeight = nPointSize;
    ::lstrcpynA(logFont.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&logFont, pDC);
}

inline BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}
