// The Universal CRT's <stdlib.h> has MB_CUR_MAX (the current locale's longest multi-byte
// character, through the CRT's ___mb_cur_max_func) and the locale forms of strtof and strtod,
// which libc++'s Windows locale support uses; Wine's msvcrt one, which the MSVC-flavoured syntax
// check compiles against, lacks them.
#pragma once
#include_next <stdlib.h>

#ifndef MB_CUR_MAX
#define MB_CUR_MAX __mb_cur_max
#endif

extern "C" {
float _strtof_l(const char* strSource, char** endptr, _locale_t locale);
double _strtod_l(const char* strSource, char** endptr, _locale_t locale);
}
