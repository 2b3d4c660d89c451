// Text in a code page that cannot hold all of it: what it can hold is kept, every other
// character is replaced by a transliteration ("(C)" for "©", "c" for "ç", "s" for "ş") or by "?".
// Both builds of moxc give the same bytes: the table is ours, only single characters go through
// the platform's conversion.
#pragma once
#include <string>
#include <vector>

namespace moxc {

struct Replacement {
    char32_t character;
    size_t position;          // 1-based, in characters of the text
    std::string substitute;   // ASCII; empty for a combining mark, which is dropped
};

// The ASCII substitute of a character: a transliteration, "" for a combining mark, else "?".
std::string SubstituteOf(char32_t character);

// utf8 in code page target, each character it cannot hold replaced by its substitute and listed
// in replaced. utf8 must be valid UTF-8.
std::string EncodeWithSubstitutes(const std::string& utf8, unsigned target, std::vector<Replacement>& replaced);

// "U+00A9 "©" (character 3) as "(C)"".
std::string Describe(const Replacement& r);

}  // namespace moxc
