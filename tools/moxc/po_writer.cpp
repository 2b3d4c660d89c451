#include "po_writer.h"
#include <cstdio>

namespace moxc {
namespace {

std::string Escaped(const std::string& text)
{
    std::string out;
    for (char c : text) {
        switch (c) {
        case '\\': out += "\\\\"; break;
        case '"': out += "\\\""; break;
        case '\n': out += "\\n"; break;
        case '\t': out += "\\t"; break;
        case '\r': out += "\\r"; break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                char octal[8];
                std::snprintf(octal, sizeof octal, "\\%03o", static_cast<unsigned char>(c));
                out += octal;
            } else {
                out += c;
            }
        }
    }
    return out;
}

// keyword "text", or keyword "" and one quoted line per line when text holds line feeds.
std::string Field(const char* keyword, const std::string& text)
{
    size_t feed = text.find('\n');
    if (feed == std::string::npos || feed + 1 == text.size()) return std::string(keyword) + " \"" + Escaped(text) + "\"\n";
    std::string out = std::string(keyword) + " \"\"\n";
    for (size_t start = 0; start < text.size();) {
        size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        out += "\"" + Escaped(text.substr(start, end - start)) + "\"\n";
        start = end;
    }
    return out;
}

}  // namespace

std::string WritePo(const std::map<std::string, std::string>& messages, const std::string& language)
{
    std::string header = "MIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\nContent-Transfer-Encoding: 8bit\n";
    if (!language.empty()) header += "Language: " + language + "\n";
    std::string out = "msgid \"\"\n" + Field("msgstr", header);
    for (const auto& message : messages) out += "\n" + Field("msgid", message.first) + Field("msgstr", message.second);
    return out;
}

}  // namespace moxc
