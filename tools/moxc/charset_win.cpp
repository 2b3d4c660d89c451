// Conversion through UTF-16 with the platform's code page tables; characters without an exact
// equivalent (no best-fit substitutes) make it fail.
#include "charset.h"
#include <windows.h>

namespace moxc {

bool Convert(const std::string& text, unsigned from, unsigned to, std::string& out)
{
    out.clear();
    if (text.empty()) return true;
    int n = MultiByteToWideChar(from, MB_ERR_INVALID_CHARS, text.data(), int(text.size()), nullptr, 0);
    if (n <= 0) return false;
    std::wstring wide(size_t(n), L'\0');
    MultiByteToWideChar(from, MB_ERR_INVALID_CHARS, text.data(), int(text.size()), &wide[0], n);
    // UTF-8 and GB18030 hold every character and take neither flags nor a default character.
    bool everything = to == kUtf8 || to == 54936;
    BOOL usedDefault = FALSE;
    BOOL* check = everything ? nullptr : &usedDefault;
    DWORD flags = everything ? 0 : WC_NO_BEST_FIT_CHARS;
    int m = WideCharToMultiByte(to, flags, wide.data(), n, nullptr, 0, nullptr, check);
    if (m <= 0 || usedDefault) return false;
    out.assign(size_t(m), '\0');
    WideCharToMultiByte(to, flags, wide.data(), n, &out[0], m, nullptr, check);
    // Read back: anything not represented exactly comes back different.
    std::wstring back(size_t(n) + 1, L'\0');
    int k = MultiByteToWideChar(to, 0, out.data(), m, &back[0], n + 1);
    return !usedDefault && k == n && back.compare(0, size_t(n), wide) == 0;
}

}  // namespace moxc
