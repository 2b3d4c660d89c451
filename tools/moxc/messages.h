// What moxc reads from a .po or .mo file: the translated messages in file order, the charset
// they are written in and the language the header names, plus the errors and warnings it gives.
#pragma once
#include <stdexcept>
#include <string>
#include <vector>

namespace moxc {

struct Message {
    std::string key;
    std::string value;
    std::string where;  // "file:line" (or "file: message n") for diagnostics
};

struct MessageSet {
    std::vector<Message> messages;
    std::string charset;   // from the header's Content-Type; empty if none
    std::string language;  // from the header's "Language:" field; empty if none
};

// Bad input: what went wrong, prefixed by where.
class InputError : public std::runtime_error {
public:
    InputError(const std::string& where, const std::string& what) : std::runtime_error(where + ": " + what) {}
};

// Prints "where: warning: what" on the standard error.
void Warn(const std::string& where, const std::string& what);

// Reads the charset and the language from a header entry's text into set.
void ReadHeader(const std::string& header, MessageSet& set);

}  // namespace moxc
