// Fuzz target of the two colour rules of scheme files. Each input, up to its first zero byte, is
// read both as a colour file's "value" and as an image file's "mask". The value rule is checked
// against its guarantees (no colour without "0x"; never more than 24 bits; the plain "0x"-and-hex
// shape read exactly), the mask rule against a model that reads the digits itself.
#include "fuzz_check.h"
#include "kiv_skin/style/color_text.h"
#include <climits>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

using kiv_skin::ColorFromMaskText;
using kiv_skin::ColorFromValueText;

namespace {

const uint32_t kNoColor = 0xFFFFFFFF;

void Check(bool holds, const char* what) { CheckProperty(holds, "colour texts", what); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int HexDigit(char c)
{
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

void CheckValueRule(const std::string& text)
{
    const uint32_t color = ColorFromValueText(text.c_str());
    Check(color == kNoColor || color <= 0x00FFFFFF, "a value colour above 24 bits");
    if (text.find("0x") == std::string::npos && text.find("0X") == std::string::npos)
        Check(color == kNoColor, "a value without 0x gave a colour");
    // "0x" and one to eight hexadecimal digits at the start: that number's low 24 bits.
    if (text.size() < 3 || text[0] != '0' || (text[1] != 'x' && text[1] != 'X')) return;
    uint32_t n = 0;
    size_t digits = 0;
    for (size_t i = 2; i < text.size() && HexDigit(text[i]) >= 0; ++i, ++digits)
        n = n << 4 | uint32_t(HexDigit(text[i]));
    if (digits >= 1 && digits <= 8)
        Check(color == (n & 0x00FFFFFF), "a plain 0x value read wrongly");
}

// The mask rule read digit by digit; false when a number is beyond what atoi defines.
bool ModelMask(const char* text, uint32_t& color)
{
    uint32_t numbers[3] = {0, 0, 0};
    for (uint32_t& n : numbers) {
        while (*text && !IsDigit(*text)) ++text;
        uint64_t value = 0;
        for (; IsDigit(*text); ++text) {
            value = value * 10 + uint64_t(*text - '0');
            if (value > uint64_t(INT_MAX)) return false;
        }
        n = uint32_t(value);
    }
    color = numbers[0] | numbers[1] << 8 | numbers[2] << 16;
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), strnlen(reinterpret_cast<const char*>(data), size));
    CheckValueRule(text);
    const uint32_t mask = ColorFromMaskText(text.c_str());
    uint32_t expected = 0;
    if (ModelMask(text.c_str(), expected))
        Check(mask == expected, "a mask read differently from its digits");
    return 0;
}
