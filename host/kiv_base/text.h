// Text conversion between UTF-8, UTF-16 and the system's ANSI code page.
#pragma once
#include "kiv_base/kiv_base_api.h"
#include <string>

namespace kiv_base {
namespace text {

// Invalid UTF-8 sequences become U+FFFD, as MultiByteToWideChar does without MB_ERR_INVALID_CHARS.
KIV_BASE_API std::wstring Utf8toUtf16(const std::string& utf8);
KIV_BASE_API std::string Utf16toUtf8(const std::wstring& utf16);
// From the system's ANSI code page (GetACP) to UTF-16.
KIV_BASE_API std::wstring AnsiToUtf(const std::string& ansi);

}  // namespace text
}  // namespace kiv_base
