#include "messages.h"
#include <cstdio>

namespace moxc {
namespace {

// The value of a "Name: value" line of the header, or "".
std::string HeaderField(const std::string& header, const std::string& name)
{
    size_t start = 0;
    while (start < header.size()) {
        size_t end = header.find('\n', start);
        if (end == std::string::npos) end = header.size();
        std::string line = header.substr(start, end - start);
        if (line.compare(0, name.size() + 1, name + ":") == 0) {
            size_t value = line.find_first_not_of(' ', name.size() + 1);
            return value == std::string::npos ? "" : line.substr(value);
        }
        start = end + 1;
    }
    return "";
}

std::string Trimmed(std::string text)
{
    while (!text.empty() && (text.back() == ' ' || text.back() == '\r' || text.back() == ';')) text.pop_back();
    return text;
}

}  // namespace

void Warn(const std::string& where, const std::string& what)
{
    std::fprintf(stderr, "%s: warning: %s\n", where.c_str(), what.c_str());
}

void ReadHeader(const std::string& header, MessageSet& set)
{
    std::string type = HeaderField(header, "Content-Type");
    size_t charset = type.find("charset=");
    if (charset != std::string::npos) set.charset = Trimmed(type.substr(charset + 8));
    set.language = Trimmed(HeaderField(header, "Language"));
}

}  // namespace moxc
