#include "mo_files.h"
#include <cstdint>
#include <vector>

namespace {

void Word(std::string& out, uint32_t v, bool bigEndian)
{
    for (int i = 0; i < 4; ++i) {
        const int shift = bigEndian ? 24 - 8 * i : 8 * i;
        out.push_back(static_cast<char>((v >> shift) & 0xFF));
    }
}

}  // namespace

std::string MoFile(const std::map<std::string, std::string>& messages, const std::string& charset,
                   const std::string& language, bool bigEndian)
{
    std::string header = "Content-Type: text/plain; charset=" + charset + "\n";
    if (!language.empty())
        header += "Language: " + language + "\n";
    std::map<std::string, std::string> entries = messages;
    entries[""] = header;  // the empty key sorts first

    const uint32_t count = static_cast<uint32_t>(entries.size());
    const uint32_t originals = 28, translations = originals + 8 * count;
    uint32_t text = translations + 8 * count;
    std::string tables, strings;
    std::vector<const std::string*> keys, values;
    for (const auto& entry : entries) keys.push_back(&entry.first), values.push_back(&entry.second);
    for (const auto* column : {&keys, &values}) {
        for (const std::string* s : *column) {
            Word(tables, static_cast<uint32_t>(s->size()), bigEndian);
            Word(tables, text, bigEndian);
            strings += *s + '\0';
            text += static_cast<uint32_t>(s->size()) + 1;
        }
    }
    std::string file;
    for (uint32_t v : {0x950412DEu, 0u, count, originals, translations, 0u, text})
        Word(file, v, bigEndian);
    return file + tables + strings;
}
