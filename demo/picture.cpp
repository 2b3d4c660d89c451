#include "demo/picture.h"
#include "demo/png_writer.h"
#include <vector>

Picture::Picture(int width, int height, COLORREF color) : m_width(width), m_height(height)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // negative: the first row is the top one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (m_bitmap == nullptr || !m_dc.CreateCompatibleDC(nullptr)) {
        if (m_bitmap) ::DeleteObject(m_bitmap);
        AfxThrowResourceException();
    }
    m_bits = static_cast<uint32_t*>(bits);
    m_previous = ::SelectObject(m_dc.m_hDC, m_bitmap);
    m_dc.FillSolidRect(0, 0, width, height, color);
}

Picture::~Picture()
{
    ::SelectObject(m_dc.m_hDC, m_previous);
    ::DeleteObject(m_bitmap);
}

HRESULT Picture::SaveAsPng(const std::wstring& path) const
{
    ::GdiFlush();
    // GDI leaves the fourth byte of each pixel at 0, which a BGRA image reads as transparent.
    std::vector<uint32_t> opaque(m_bits, m_bits + m_width * m_height);
    for (uint32_t& pixel : opaque) pixel |= 0xFF000000u;
    return WritePng(path, m_width, m_height, opaque.data());
}
