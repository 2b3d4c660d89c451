// The rich-text markup of DrawRichText, parsed into runs: "<*" opens a tag and the next "*>"
// closes it; the bytes between tags are text. Pure byte handling, free of GDI and the framework.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace kiv_skin {

// One run of markup: a tag's name and its argument (empty when the tag has none), or the name
// "text" with the plain text between two tags as its value.
struct MarkupRun {
    std::string name;
    std::string value;
};

inline bool operator==(const MarkupRun& a, const MarkupRun& b)
{
    return a.name == b.name && a.value == b.value;
}

// Calls visit(name, value) for each run of zero-terminated markup (not null), in string order,
// in time linear in its length; the views point into markup. There are no closing tags. A tag's
// body is split at its first "=" into name and value, both kept byte for byte (no trimming, no
// change of case). An unterminated "<*" and everything after it are dropped; a "*>" outside a
// tag is text. The scan is byte-wise: '<', '*', '>' and '=' never occur as the second byte of a
// GBK, Big5 or Shift-JIS character, so double-byte text is safe.
template <class Visit> void ForEachMarkupRun(const char* markup, Visit visit)
{
    const std::string_view text(markup), open = "<*", close = "*>";
    size_t pos = 0;
    while (pos < text.size()) {
        const size_t tag = text.find(open, pos);
        const size_t textEnd = tag == std::string_view::npos ? text.size() : tag;
        if (textEnd > pos) visit(std::string_view("text"), text.substr(pos, textEnd - pos));
        if (tag == std::string_view::npos) break;
        // The "*" of "<*" does not count towards the closing "*>": "<*>" alone stays open.
        const size_t bodyStart = tag + open.size();
        const size_t end = text.find(close, bodyStart);
        if (end == std::string_view::npos) break;
        const std::string_view body = text.substr(bodyStart, end - bodyStart);
        const size_t equals = body.find('=');
        if (equals == std::string_view::npos)
            visit(body, std::string_view());
        else
            visit(body.substr(0, equals), body.substr(equals + 1));
        pos = end + close.size();
    }
}

// The runs of markup as ForEachMarkupRun finds them.
std::vector<MarkupRun> ParseRichTextMarkup(const char* markup);

}  // namespace kiv_skin
