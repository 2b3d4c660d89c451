// MSVC's <intrin.h> declares the 64-bit bit scans on x64; Wine's msvcrt one, which the
// MSVC-flavoured syntax check compiles against, does not.
#pragma once
#include_next <intrin.h>

extern "C" {
unsigned char _BitScanForward(unsigned long* Index, unsigned long Mask);
#ifdef _M_X64
unsigned char _BitScanForward64(unsigned long* Index, unsigned __int64 Mask);
#endif
}
