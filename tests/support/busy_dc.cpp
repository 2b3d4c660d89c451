#include "support/busy_dc.h"

BusyDc::BusyDc(CDC* dc, int width, int height, Modes modes)
    : m_hdc(dc->m_hDC), m_pen(::CreatePen(PS_DASH, 1, RGB(7, 8, 9))),
      m_brush(::CreateHatchBrush(HS_DIAGCROSS, RGB(10, 11, 12))),
      m_font(::CreateFontA(11, 0, 0, 0, FW_BOLD, TRUE, 0, 0, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0,
                           "DejaVu Serif"))
{
    m_oldPen = ::SelectObject(m_hdc, m_pen);
    m_oldBrush = ::SelectObject(m_hdc, m_brush);
    m_oldFont = ::SelectObject(m_hdc, m_font);
    ::SetTextColor(m_hdc, kInk);
    ::SetBkColor(m_hdc, kPaper);
    ::SetBkMode(m_hdc, TRANSPARENT);
    if (modes == Modes::Own) {
        ::SetTextAlign(m_hdc, TA_BASELINE);
        ::SetROP2(m_hdc, kRop2);
        ::SetStretchBltMode(m_hdc, HALFTONE);
    }
    ::SetPolyFillMode(m_hdc, WINDING);
    ::SetBrushOrgEx(m_hdc, 3, 5, nullptr);
    ::MoveToEx(m_hdc, 7, 9, nullptr);
    ::SetTextCharacterExtra(m_hdc, 1);
    HRGN clip = ::CreateRectRgn(-3, -2, width + 4, height + 5);
    ::SelectClipRgn(m_hdc, clip);
    ::DeleteObject(clip);
}

BusyDc::~BusyDc()
{
    ::SelectClipRgn(m_hdc, nullptr);
    ::SelectObject(m_hdc, m_oldPen);
    ::SelectObject(m_hdc, m_oldBrush);
    ::SelectObject(m_hdc, m_oldFont);
    ::DeleteObject(m_pen);
    ::DeleteObject(m_brush);
    ::DeleteObject(m_font);
}
