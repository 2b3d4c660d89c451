// The Universal CRT's <ctype.h> has the locale forms of islower and isupper, which libc++'s
// Windows locale support calls; Wine's msvcrt one, which the MSVC-flavoured syntax check compiles
// against, lacks them.
#pragma once
#include_next <ctype.h>

extern "C" {
int _islower_l(int c, _locale_t locale);
int _isupper_l(int c, _locale_t locale);
}
