// Wine's <winnt.h> defines an inline function _InterlockedCompareExchange128 for compilers other
// than MSVC; clang in MSVC mode has a builtin of that name and refuses the definition. The
// definition is renamed here, and InterlockedCompareExchange128, the name programs call, follows
// it. The Windows SDK's <winnt.h> only declares the intrinsic.
#pragma once
#define _InterlockedCompareExchange128 kiv_wine_InterlockedCompareExchange128
#include_next <winnt.h>
