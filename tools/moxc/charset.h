// Code pages by number or charset name, and conversion between them: iconv on Linux,
// MultiByteToWideChar and WideCharToMultiByte on Windows.
#pragma once
#include <string>

namespace moxc {

const unsigned kUtf8 = 65001;

// The code page a charset name or number names ("GB2312", "big5", "CP1252", "936", ...);
// 0 if it names none this tool knows.
unsigned CodePageOf(const std::string& name);

// A readable name of a code page, e.g. "936 (GB2312)".
std::string CodePageName(unsigned codePage);

// Converts text from one code page to another; false if it is not valid in the first or cannot
// be represented exactly in the second.
bool Convert(const std::string& text, unsigned from, unsigned to, std::string& out);

}  // namespace moxc
