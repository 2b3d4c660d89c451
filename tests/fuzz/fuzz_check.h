// The fuzz targets' assertion: a property that does not hold prints what and the target's name,
// then aborts, which libFuzzer reports as a crash and keeps the input.
#pragma once
#include <cstdio>
#include <cstdlib>

inline void CheckProperty(bool holds, const char* target, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "%s: %s\n", target, what);
        std::abort();
    }
}
