// A 32-bit top-down DIB section selected into a memory DC: the surface pixel tests draw on.
#pragma once
#include <afxwin.h>
#include <cstdint>

class DibCanvas {
public:
    DibCanvas(int width, int height, COLORREF fill = RGB(255, 255, 255));
    ~DibCanvas();
    DibCanvas(const DibCanvas&) = delete;
    DibCanvas& operator=(const DibCanvas&) = delete;

    CDC* dc() { return &m_dc; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    // The colour at (x, y) as a COLORREF, read from the bits after flushing GDI.
    COLORREF Pixel(int x, int y) const;
    // Number of pixels of exactly this colour in the rectangle.
    int Count(COLORREF color, const RECT& area) const;
    int Count(COLORREF color) const { return Count(color, {0, 0, m_width, m_height}); }
    void Fill(COLORREF color);

private:
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    uint32_t* m_bits = nullptr;
    int m_width;
    int m_height;
};
