// The Universal CRT's <time.h> has C11's timespec, which libc++'s threading support uses; Wine's
// msvcrt headers lack it.
#pragma once
#include_next <time.h>

struct timespec {
    time_t tv_sec;
    long tv_nsec;
};
