#include "support/dib_canvas.h"

DibCanvas::DibCanvas(int width, int height, COLORREF fill) : m_width(width), m_height(height)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_bits = static_cast<uint32_t*>(bits);
    m_dc.Attach(CreateCompatibleDC(nullptr));
    m_previous = SelectObject(m_dc.m_hDC, m_bitmap);
    Fill(fill);
}

DibCanvas::~DibCanvas()
{
    SelectObject(m_dc.m_hDC, m_previous);
    DeleteObject(m_bitmap);
}

COLORREF DibCanvas::Pixel(int x, int y) const
{
    GdiFlush();
    uint32_t p = m_bits[y * m_width + x];
    return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
}

int DibCanvas::Count(COLORREF color, const RECT& area) const
{
    int n = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x) n += Pixel(x, y) == color ? 1 : 0;
    return n;
}

void DibCanvas::Fill(COLORREF color)
{
    GdiFlush();
    uint32_t p = (GetRValue(color) << 16) | (GetGValue(color) << 8) | GetBValue(color);
    for (int i = 0; i < m_width * m_height; ++i) m_bits[i] = p;
}
