#include "kiv_skin/style/color_text.h"
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kiv_skin {

uint32_t ColorFromValueText(const char* text)
{
    const uint32_t kNone = 0xFFFFFFFF;
    if (!text || !*text || (!std::strstr(text, "0x") && !std::strstr(text, "0X"))) return kNone;
    unsigned int n = 0;
    if (std::sscanf(text, "%x", &n) != 1) return kNone;
    return n & 0x00FFFFFF;
}

uint32_t ColorFromMaskText(const char* text)
{
    if (!text) return 0;
    uint32_t numbers[3] = {0, 0, 0};
    for (uint32_t& n : numbers) {
        while (*text && !std::isdigit(static_cast<unsigned char>(*text))) ++text;
        if (!*text) break;
        n = static_cast<uint32_t>(std::atoi(text));
        while (std::isdigit(static_cast<unsigned char>(*text))) ++text;
    }
    return numbers[0] | (numbers[1] << 8) | (numbers[2] << 16);
}

}  // namespace kiv_skin
