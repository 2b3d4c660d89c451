#include "support/busy_dc.h"

BusyDc::BusyDc(CDC* dc, int width, int height, Modes modes)
    : m_pen(::CreatePen(PS_DASH, 1, RGB(7, 8, 9))), m_brush(::CreateHatchBrush(HS_DIAGCROSS, RGB(10, 11, 12))),
      m_font(::CreateFontA(11, 0, 0, 0, FW_BOLD, TRUE, 0, 0, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0,
                           "DejaVu Serif"))
{
    m_handles.push_back({dc->m_hDC});
    if (dc->m_hAttribDC != nullptr && dc->m_hAttribDC != dc->m_hDC) m_handles.push_back({dc->m_hAttribDC});
    for (Handle& h : m_handles) MakeBusy(h, width, height, modes);
}

void BusyDc::MakeBusy(Handle& h, int width, int height, Modes modes)
{
    h.oldPen = ::SelectObject(h.hdc, m_pen);
    h.oldBrush = ::SelectObject(h.hdc, m_brush);
    h.oldFont = ::SelectObject(h.hdc, m_font);
    ::SetTextColor(h.hdc, kInk);
    ::SetBkColor(h.hdc, kPaper);
    ::SetBkMode(h.hdc, TRANSPARENT);
    if (modes == Modes::Own) {
        ::SetTextAlign(h.hdc, TA_BASELINE);
        ::SetROP2(h.hdc, kRop2);
        ::SetStretchBltMode(h.hdc, HALFTONE);
    }
    ::SetPolyFillMode(h.hdc, WINDING);
    ::SetBrushOrgEx(h.hdc, 3, 5, nullptr);
    ::MoveToEx(h.hdc, 7, 9, nullptr);
    ::SetTextCharacterExtra(h.hdc, 1);
    HRGN clip = ::CreateRectRgn(-3, -2, width + 4, height + 5);
    ::SelectClipRgn(h.hdc, clip);
    ::DeleteObject(clip);
}

BusyDc::~BusyDc()
{
    for (const Handle& h : m_handles) {
        ::SelectClipRgn(h.hdc, nullptr);
        ::SelectObject(h.hdc, h.oldPen);
        ::SelectObject(h.hdc, h.oldBrush);
        ::SelectObject(h.hdc, h.oldFont);
    }
    ::DeleteObject(m_pen);
    ::DeleteObject(m_brush);
    ::DeleteObject(m_font);
}
