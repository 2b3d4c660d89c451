// Bitmap files for tests: writing small BMP files and reading back the pixels of a bitmap.
#pragma once
#include <afxwin.h>
#include <string>
#include <vector>

// Pixels as COLORREF values, row by row from the top.
struct PixelGrid {
    int width = 0;
    int height = 0;
    std::vector<COLORREF> pixels;

    COLORREF At(int x, int y) const { return pixels[y * width + x]; }
    void Set(int x, int y, COLORREF color) { pixels[y * width + x] = color; }
};

PixelGrid SolidGrid(int width, int height, COLORREF color);
// A 24-bit BMP file holding the grid.
std::string BmpBytes(const PixelGrid& grid);
// The pixels of a bitmap that is not selected into a device context (empty when unreadable).
PixelGrid BitmapPixels(HBITMAP bitmap);
