// A Windows bitmap file read as far as kivlint needs: its size and depth from the header, and
// for uncompressed files of 1, 4, 8, 24 or 32 bits the colour of every pixel.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace kivlint {

struct BmpFile {
    int width = 0;
    int height = 0;  // always positive; top-down files are read the right way up
    int bits = 0;
    uint32_t compression = 0;
    std::vector<uint32_t> pixels;  // 0xRRGGBB, row by row from the top; empty when not decoded
};

// Reads bytes as a bitmap file; false with why set when they are not one.
bool ReadBmp(const std::string& bytes, BmpFile& bmp, std::string& why);

}  // namespace kivlint
