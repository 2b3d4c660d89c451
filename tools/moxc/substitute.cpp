#include "substitute.h"
#include "charset.h"
#include <cstdio>

namespace moxc {
namespace {

// Substitutes longer than one letter, and of signs outside the letter blocks below.
struct Word {
    char32_t character;
    const char* substitute;
};
const Word kWords[] = {
    {0xA0, " "}, {0xA9, "(C)"}, {0xAE, "(R)"}, {0xC6, "AE"}, {0xD0, "D"}, {0xD8, "O"}, {0xDE, "TH"},
    {0xDF, "ss"}, {0xE6, "ae"}, {0xF0, "d"}, {0xF8, "o"}, {0xFE, "th"}, {0x110, "D"}, {0x111, "d"},
    {0x126, "H"}, {0x127, "h"}, {0x131, "i"}, {0x132, "IJ"}, {0x133, "ij"}, {0x141, "L"}, {0x142, "l"},
    {0x152, "OE"}, {0x153, "oe"}, {0x166, "T"}, {0x167, "t"}, {0x2BB, "'"}, {0x2BC, "'"},
    {0x2018, "'"}, {0x2019, "'"}, {0x201C, "\""}, {0x201D, "\""}, {0x2013, "-"}, {0x2014, "-"},
    {0x2022, "*"}, {0x2026, "..."}, {0x2122, "(TM)"},
};

// Latin letters with diacritics: one base letter per character from first on, '?' for none.
struct Letters {
    char32_t first;
    const char* bases;
};
const Letters kLetters[] = {
    {0xA0, " ??????? ?a???? ??23 ??? 1o?????"
           "AAAAAA?CEEEEIIII?NOOOOO??UUUUY??"
           "aaaaaa?ceeeeiiii?nooooo??uuuuy?y"},
    {0x100, "AaAaAaCcCcCcCcDd??EeEeEeEeEeGgGg"
            "GgGgHh??IiIiIiIiI???JjKk?LlLlLl?"
            "???NnNnNn???OoOoOo??RrRrRrSsSsSs"
            "SsTtTt??UuUuUuUuUuUuWwYyYZzZzZzs"},
    {0x1A0, "Oo?????????????Uu???????????????"
            "?????????????AaIiOoUuUuUuUuUu?Aa"
            "Aa????GgKkOoOo??j???Gg??NnAa????"
            "AaAaEeEeIiIiOoOoRrRrUuUuSsTt??Hh"
            "??????AaEeOoOoOoOoYy"},
    {0x1E00, "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFf"
             "GgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMm"
             "MmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRr"
             "SsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVv"
             "WwWwWwWwWwXxXxYyZzZzZzhtwy?s????"
             "AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEe"
             "EeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOo"
             "OoOoUuUuUuUuUuUuUuYyYyYyYy"},
};

bool IsCombiningMark(char32_t c) { return (c >= 0x300 && c <= 0x36F) || (c >= 0x1AB0 && c <= 0x1AFF); }

// The code point starting at text[at] (valid UTF-8), advancing at past it.
char32_t NextCharacter(const std::string& text, size_t& at)
{
    unsigned char lead = static_cast<unsigned char>(text[at]);
    size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t c = length == 1 ? lead : lead & (0x7F >> length);
    for (size_t i = 1; i < length && at + i < text.size(); ++i) c = c << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3F);
    at += length;
    return c;
}

}  // namespace

std::string SubstituteOf(char32_t character)
{
    for (const Word& w : kWords)
        if (w.character == character) return w.substitute;
    if (IsCombiningMark(character)) return "";
    for (const Letters& l : kLetters) {
        std::string bases = l.bases;
        if (character >= l.first && character - l.first < bases.size() && bases[character - l.first] != '?')
            return std::string(1, bases[character - l.first]);
    }
    return "?";
}

std::string EncodeWithSubstitutes(const std::string& utf8, unsigned target, std::vector<Replacement>& replaced)
{
    std::string out, one;
    size_t position = 0;
    for (size_t at = 0; at < utf8.size();) {
        size_t start = at;
        char32_t c = NextCharacter(utf8, at);
        ++position;
        if (c < 0x80) {
            out += char(c);
        } else if (Convert(utf8.substr(start, at - start), kUtf8, target, one)) {
            out += one;
        } else {
            replaced.push_back({c, position, SubstituteOf(c)});
            out += replaced.back().substitute;
        }
    }
    return out;
}

std::string Describe(const Replacement& r)
{
    char code[16];
    std::snprintf(code, sizeof code, "U+%04X", unsigned(r.character));
    std::string utf8;
    char32_t c = r.character;
    if (c < 0x800) utf8 = {char(0xC0 | c >> 6), char(0x80 | (c & 0x3F))};
    else if (c < 0x10000) utf8 = {char(0xE0 | c >> 12), char(0x80 | (c >> 6 & 0x3F)), char(0x80 | (c & 0x3F))};
    else utf8 = {char(0xF0 | c >> 18), char(0x80 | (c >> 12 & 0x3F)), char(0x80 | (c >> 6 & 0x3F)), char(0x80 | (c & 0x3F))};
    std::string as = r.substitute.empty() ? "left out" : "as \"" + r.substitute + "\"";
    return std::string(code) + " \"" + utf8 + "\" (character " + std::to_string(r.position) + ") " + as;
}

}  // namespace moxc
