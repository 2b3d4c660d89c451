#include "support/bitmap_files.h"
#include <cstdint>

namespace {

void Put(std::string& out, uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

}  // namespace

PixelGrid SolidGrid(int width, int height, COLORREF color)
{
    PixelGrid grid;
    grid.width = width;
    grid.height = height;
    grid.pixels.assign(static_cast<size_t>(width) * height, color);
    return grid;
}

std::string BmpBytes(const PixelGrid& grid)
{
    const int stride = (grid.width * 3 + 3) & ~3;
    const uint32_t dataSize = stride * grid.height;
    std::string out = "BM";
    Put(out, 14 + 40 + dataSize, 4);  // file size
    Put(out, 0, 4);
    Put(out, 14 + 40, 4);             // offset of the pixels
    Put(out, 40, 4);                  // BITMAPINFOHEADER
    Put(out, grid.width, 4);
    Put(out, grid.height, 4);         // bottom-up
    Put(out, 1, 2);
    Put(out, 24, 2);
    Put(out, BI_RGB, 4);
    Put(out, dataSize, 4);
    Put(out, 2835, 4);
    Put(out, 2835, 4);
    Put(out, 0, 4);
    Put(out, 0, 4);
    for (int y = grid.height - 1; y >= 0; --y) {
        std::string row;
        for (int x = 0; x < grid.width; ++x) {
            COLORREF c = grid.At(x, y);
            row += static_cast<char>(GetBValue(c));
            row += static_cast<char>(GetGValue(c));
            row += static_cast<char>(GetRValue(c));
        }
        row.resize(stride, '\0');
        out += row;
    }
    return out;
}

PixelGrid BitmapPixels(HBITMAP bitmap)
{
    PixelGrid grid;
    BITMAP info;
    if (!GetObjectA(bitmap, sizeof(info), &info)) return grid;
    BITMAPINFO bmi = {};
    bmi.bmiHeader.biSize = sizeof(bmi.bmiHeader);
    bmi.bmiHeader.biWidth = info.bmWidth;
    bmi.bmiHeader.biHeight = -info.bmHeight;  // top-down
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = 32;
    bmi.bmiHeader.biCompression = BI_RGB;
    std::vector<uint32_t> bits(static_cast<size_t>(info.bmWidth) * info.bmHeight);
    HDC screen = GetDC(nullptr);
    int rows = GetDIBits(screen, bitmap, 0, info.bmHeight, bits.data(), &bmi, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (rows != info.bmHeight) return grid;
    grid = SolidGrid(info.bmWidth, info.bmHeight, 0);
    for (size_t i = 0; i < bits.size(); ++i) {
        uint32_t v = bits[i];  // 0x00RRGGBB
        grid.pixels[i] = RGB((v >> 16) & 0xFF, (v >> 8) & 0xFF, v & 0xFF);
    }
    return grid;
}
