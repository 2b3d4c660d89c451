// Decoding a PNG file through the Windows Imaging Component, to check what the gallery wrote.
#pragma once
#include <windows.h>
#include <cstdint>
#include <string>
#include <vector>

struct DecodedPng {
    HRESULT result = E_FAIL;  // S_OK when the file decoded
    bool bgra = false;        // whether the frame is stored as 32bppBGRA
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;  // top row first, 0xAARRGGBB, converted to BGRA if need be

    COLORREF Color(int x, int y) const;
    int Alpha(int x, int y) const { return pixels[y * width + x] >> 24; }
};

DecodedPng ReadPng(const std::wstring& path);
