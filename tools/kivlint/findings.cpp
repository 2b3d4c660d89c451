#include "findings.h"
#include <cstdio>

namespace kivlint {

void Findings::Add(const std::string& file, int line, const char* kind, const std::string& text)
{
    if (line > 0) std::printf("%s:%d: %s: %s\n", file.c_str(), line, kind, text.c_str());
    else std::printf("%s: %s: %s\n", file.c_str(), kind, text.c_str());
}

}  // namespace kivlint
