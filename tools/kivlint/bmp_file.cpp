#include "bmp_file.h"
#include <cstdlib>

namespace kivlint {
namespace {

uint32_t Little(const std::string& b, size_t at, int size)
{
    uint32_t v = 0;
    for (int i = size - 1; i >= 0; --i) v = v << 8 | static_cast<unsigned char>(b[at + i]);
    return v;
}

// Pixel x of a bottom-up or top-down row starting at offset; palette entries are 0xRRGGBB.
uint32_t PixelAt(const std::string& b, size_t row, int x, int bits, const std::vector<uint32_t>& palette)
{
    if (bits >= 24) {
        size_t at = row + size_t(x) * size_t(bits / 8);
        return Little(b, at, 3);
    }
    const int perByte = 8 / bits;
    const unsigned char byte = static_cast<unsigned char>(b[row + size_t(x / perByte)]);
    const int shift = 8 - bits * (x % perByte + 1);
    const size_t index = (byte >> shift) & ((1u << bits) - 1);
    return index < palette.size() ? palette[index] : 0;
}

}  // namespace

bool ReadBmp(const std::string& bytes, BmpFile& bmp, std::string& why)
{
    if (bytes.size() < 26 || bytes.compare(0, 2, "BM") != 0) return why = "not a bitmap file", false;
    const uint32_t dataAt = Little(bytes, 10, 4), headerSize = Little(bytes, 14, 4);
    if (headerSize == 12) {
        bmp.width = int(Little(bytes, 18, 2)), bmp.height = int(Little(bytes, 20, 2)), bmp.bits = int(Little(bytes, 24, 2));
        return true;  // an OS/2 header: size and depth only
    }
    if (headerSize < 40 || bytes.size() < 14 + size_t(headerSize)) return why = "bitmap header cut short", false;
    const int32_t height = int32_t(Little(bytes, 22, 4));
    bmp.width = int32_t(Little(bytes, 18, 4));
    bmp.height = height < 0 ? -height : height;
    bmp.bits = int(Little(bytes, 28, 2));
    bmp.compression = Little(bytes, 30, 4);
    const bool decodable = bmp.compression == 0 && (bmp.bits == 1 || bmp.bits == 4 || bmp.bits == 8 || bmp.bits == 24 || bmp.bits == 32);
    if (!decodable || bmp.width <= 0 || bmp.height == 0 || size_t(bmp.width) * size_t(bmp.height) > (size_t(1) << 24)) return true;
    const uint32_t used = Little(bytes, 46, 4);
    const size_t colours = bmp.bits <= 8 ? (used ? used : 1u << bmp.bits) : 0;
    const size_t paletteAt = 14 + size_t(headerSize), stride = (size_t(bmp.width) * size_t(bmp.bits) + 31) / 32 * 4;
    if (colours > 256 || paletteAt + colours * 4 > bytes.size() || size_t(dataAt) + stride * size_t(bmp.height) > bytes.size())
        return why = "bitmap pixels cut short", false;
    std::vector<uint32_t> palette;
    for (size_t i = 0; i < colours; ++i) palette.push_back(Little(bytes, paletteAt + 4 * i, 3));
    for (int y = 0; y < bmp.height; ++y) {
        const size_t row = dataAt + stride * size_t(height < 0 ? y : bmp.height - 1 - y);
        for (int x = 0; x < bmp.width; ++x) bmp.pixels.push_back(PixelAt(bytes, row, x, bmp.bits, palette));
    }
    return true;
}

}  // namespace kivlint
