#include "kiv_base/text.h"
#include <windows.h>

namespace kiv_base {
namespace text {
namespace {

std::wstring ToWide(UINT codePage, const std::string& narrow)
{
    if (narrow.empty()) return std::wstring();
    int n = MultiByteToWideChar(codePage, 0, narrow.data(), (int)narrow.size(), nullptr, 0);
    std::wstring wide(n > 0 ? n : 0, L'\0');
    if (n > 0) MultiByteToWideChar(codePage, 0, narrow.data(), (int)narrow.size(), &wide[0], n);
    return wide;
}

}  // namespace

std::wstring Utf8toUtf16(const std::string& utf8) { return ToWide(CP_UTF8, utf8); }

std::wstring AnsiToUtf(const std::string& ansi) { return ToWide(CP_ACP, ansi); }

std::string Utf16toUtf8(const std::wstring& utf16)
{
    if (utf16.empty()) return std::string();
    int n = WideCharToMultiByte(CP_UTF8, 0, utf16.data(), (int)utf16.size(), nullptr, 0, nullptr, nullptr);
    std::string utf8(n > 0 ? n : 0, '\0');
    if (n > 0) WideCharToMultiByte(CP_UTF8, 0, utf16.data(), (int)utf16.size(), &utf8[0], n, nullptr, nullptr);
    return utf8;
}

}  // namespace text
}  // namespace kiv_base
