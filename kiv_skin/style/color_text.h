// The two ways a scheme's files write a colour, read without any framework type so that the
// rules can be checked and fuzzed natively. Results are COLORREF bit patterns.
#pragma once
#include <cstdint>

namespace kiv_skin {

// A colour file's "value": it counts only if it holds "0x" or "0X" somewhere; then the
// hexadecimal number at its start ("%x", which takes the leading "0x") gives the low 24 bits.
// Otherwise 0xFFFFFFFF, no colour.
uint32_t ColorFromValueText(const char* text);

// An image file's "mask": up to three decimal numbers (red, green, blue), each found by skipping
// every character that is not a digit and read with atoi; missing numbers count 0. A number above
// 255 spills into the next colour's byte. An empty or null text gives 0.
uint32_t ColorFromMaskText(const char* text);

}  // namespace kiv_skin
