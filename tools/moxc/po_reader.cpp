#include "po_reader.h"
#include <algorithm>
#include <cstring>
#include <map>

namespace moxc {
namespace {

// One entry as written, before it is judged.
struct Entry {
    int line = 0;  // of its msgid
    bool fuzzy = false;
    bool hasContext = false, hasId = false, hasPlural = false, hasStr = false;
    std::string context, id, plural;
    std::map<int, std::string> strs;  // msgstr (index 0) or msgstr[n]
};

int HexDigit(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

class PoParser {
public:
    PoParser(const std::string& path, const std::string& text) : m_path(path), m_text(text) {}
    MessageSet Parse();

private:
    std::string Where(int line) const { return m_path + ":" + std::to_string(line); }
    void Fail(const std::string& what) const { throw InputError(Where(m_line), what); }
    void ParseLine(const std::string& line);
    void Keyword(const std::string& word, const std::string& rest);
    std::string Literal(const std::string& rest) const;
    char Escape(const std::string& s, size_t& i) const;
    void Finish();
    void Keep(const Entry& e);

    std::string m_path;
    const std::string& m_text;
    int m_line = 0;
    Entry m_entry;
    bool m_nextFuzzy = false;
    std::string* m_continued = nullptr;  // the string a continuation line extends
    std::map<std::string, int> m_seen;   // msgid (with context) to the line it was first defined on
    MessageSet m_set;
};

MessageSet PoParser::Parse()
{
    size_t start = 0;
    while (start < m_text.size()) {
        size_t end = m_text.find('\n', start);
        if (end == std::string::npos) end = m_text.size();
        ++m_line;
        std::string line = m_text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        ParseLine(line);
        start = end + 1;
    }
    Finish();
    return m_set;
}

void PoParser::ParseLine(const std::string& raw)
{
    size_t first = raw.find_first_not_of(" \t");
    if (first == std::string::npos) return;
    std::string line = raw.substr(first);
    if (line[0] == '#') {
        m_continued = nullptr;
        if (line.compare(0, 2, "#,") == 0 && line.find("fuzzy") != std::string::npos) m_nextFuzzy = true;
        return;  // comments, references, flags and obsolete "#~" entries
    }
    if (line[0] == '"') {
        if (m_continued == nullptr) Fail("string continuation without a keyword before it");
        *m_continued += Literal(line);
        return;
    }
    size_t space = line.find_first_of(" \t");
    size_t text = line.find_first_not_of(" \t", space);
    if (space == std::string::npos || text == std::string::npos) Fail("expected a keyword and a string: " + line);
    Keyword(line.substr(0, space), line.substr(text));
}

void PoParser::Keyword(const std::string& word, const std::string& rest)
{
    bool entryKeyword = word == "msgctxt" || word == "msgid";
    if (entryKeyword && m_entry.hasStr) Finish();
    if (word == "msgctxt" && (m_entry.hasContext || m_entry.hasId)) Fail("msgctxt inside an entry");
    if (entryKeyword && !m_entry.hasContext && !m_entry.hasId) {
        m_entry.fuzzy = m_nextFuzzy;
        m_nextFuzzy = false;
    }
    std::string value = Literal(rest);
    if (word == "msgctxt") {
        m_entry.hasContext = true;
        m_entry.context = value;
        m_continued = &m_entry.context;
    } else if (word == "msgid") {
        if (m_entry.hasId) Fail("msgid follows a msgid without msgstr");
        m_entry.hasId = true;
        m_entry.line = m_line;
        m_entry.id = value;
        m_continued = &m_entry.id;
    } else if (word == "msgid_plural") {
        if (!m_entry.hasId || m_entry.hasStr) Fail("msgid_plural without a msgid before it");
        m_entry.hasPlural = true;
        m_entry.plural = value;
        m_continued = &m_entry.plural;
    } else if (word.compare(0, 6, "msgstr") == 0) {
        if (!m_entry.hasId) Fail("msgstr without a msgid before it");
        int index = 0;
        if (word != "msgstr") {
            if (word.size() < 9 || word[6] != '[' || word.back() != ']') Fail("unknown keyword " + word);
            index = std::atoi(word.substr(7, word.size() - 8).c_str());
        }
        if ((word == "msgstr") == m_entry.hasPlural) Fail(m_entry.hasPlural ? "plural entry needs msgstr[n]" : "msgstr[n] without msgid_plural");
        m_entry.hasStr = true;
        m_continued = &(m_entry.strs[index] = value);
    } else {
        Fail("unknown keyword " + word);
    }
}

std::string PoParser::Literal(const std::string& rest) const
{
    size_t last = rest.find_last_not_of(" \t");
    if (rest.empty() || rest[0] != '"' || last == 0 || rest[last] != '"') Fail("expected a string in double quotes: " + rest);
    std::string out;
    for (size_t i = 1; i < last; ++i) {
        if (rest[i] == '"') Fail("unescaped double quote in a string");
        if (rest[i] == '\0') Fail("zero byte in a string");
        if (rest[i] == '\\' && i + 1 >= last) Fail("string not terminated: its closing quote is escaped");
        out += rest[i] == '\\' ? Escape(rest, ++i) : rest[i];
    }
    return out;
}

// The character an escape sequence stands for; i is on the character after the backslash and
// is left on the last character of the sequence.
char PoParser::Escape(const std::string& s, size_t& i) const
{
    static const char kFrom[] = "ntrabfv\\\"";
    static const char kTo[] = "\n\t\r\a\b\f\v\\\"";
    if (const char* p = std::strchr(kFrom, s[i])) {
        if (*p != '\0') return kTo[p - kFrom];
    }
    int value = 0, digits = 0;
    if (s[i] >= '0' && s[i] <= '7') {
        for (; digits < 3 && s[i + digits] >= '0' && s[i + digits] <= '7'; ++digits) value = value * 8 + s[i + digits] - '0';
    } else if (s[i] == 'x') {
        // Any number of digits: the value stops growing once it is over 255, so it cannot overflow.
        for (++i; HexDigit(s[i + digits]) >= 0; ++digits) value = std::min(value * 16 + HexDigit(s[i + digits]), 256);
    }
    if (digits == 0) Fail(std::string("invalid escape sequence \\") + s[i]);
    if (value == 0 || value > 255) Fail("escape sequence gives a zero byte or a value over 255");
    i += digits - 1;
    return char(value);
}

void PoParser::Finish()
{
    m_continued = nullptr;
    Entry e = m_entry;
    m_entry = Entry();
    if (!e.hasId && !e.hasContext) return;
    if (!e.hasId || !e.hasStr) Fail(e.hasId ? "msgid \"" + e.id + "\" has no msgstr" : "msgctxt without msgid");
    if (e.strs.count(0) == 0) throw InputError(Where(e.line), "plural message \"" + e.id + "\" has no msgstr[0]");
    std::string seenKey = (e.hasContext ? e.context + '\x04' : std::string()) + e.id;
    auto seen = m_seen.emplace(seenKey, e.line);
    if (!seen.second)
        throw InputError(Where(e.line), "duplicate message \"" + e.id + "\" (first defined on line " +
                                            std::to_string(seen.first->second) + ")");
    Keep(e);
}

void PoParser::Keep(const Entry& e)
{
    const std::string& value = e.strs.at(0);
    if (e.id.empty() && !e.hasContext) {
        ReadHeader(value, m_set);
        return;
    }
    if (e.fuzzy || value.empty()) return;  // as msgfmt: not translated yet
    if (e.hasContext) {
        Warn(Where(e.line), "message \"" + e.id + "\" in context \"" + e.context + "\" left out: catalogues have no contexts");
        return;
    }
    if (e.hasPlural) Warn(Where(e.line), "plural message \"" + e.id + "\": only its singular translation is kept");
    m_set.messages.push_back({e.id, value, Where(e.line)});
}

}  // namespace

MessageSet ReadPo(const std::string& path, const std::string& text) { return PoParser(path, text).Parse(); }

}  // namespace moxc
