// Encoding pixels as a PNG file through the Windows Imaging Component.
#pragma once
#include <windows.h>
#include <cstdint>
#include <string>

// Writes width x height pixels, top row first, each 32-bit value 0xAARRGGBB (blue in the lowest
// byte, as a DIB section holds them), as a 32bppBGRA PNG file, replacing any file of that name.
// Answers S_OK or the first failure.
HRESULT WritePng(const std::wstring& path, int width, int height, const uint32_t* pixels);
