// A picture to draw on with GDI: a 32-bit top-down DIB section selected into a memory context,
// which can be saved as a PNG file.
#pragma once
#include <afxwin.h>
#include <cstdint>
#include <string>

class Picture {
public:
    // Filled with color; raises the framework's resource exception when GDI refuses the bitmap.
    Picture(int width, int height, COLORREF color);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    CDC* dc() { return &m_dc; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    // The pixels, rows from the top, each 0x00RRGGBB (a COLORREF's channels the other way round);
    // call GdiFlush before reading what GDI drew.
    uint32_t* bits() { return m_bits; }
    // Writes the picture, fully opaque, as a PNG file; the error of the imaging component, or S_OK.
    HRESULT SaveAsPng(const std::wstring& path) const;

private:
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    uint32_t* m_bits = nullptr;
    int m_width;
    int m_height;
};
