// The rich-text markup of DrawRichText, parsed into runs: "<*" opens a tag and the next "*>"
// closes it; the bytes between tags are text. Pure byte handling, free of GDI and the framework.
#pragma once
#include <string>
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

// Splits zero-terminated markup (not null) into its runs, in string order, in time linear in its length.
// There are no closing tags. A tag's body is split at its first "=" into name and value, both
// kept byte for byte (no trimming, no change of case). An unterminated "<*" and everything after
// it are dropped; a "*>" outside a tag is text. The scan is byte-wise: '<', '*', '>' and '='
// never occur as the second byte of a GBK, Big5 or Shift-JIS character, so double-byte text is
// safe.
std::vector<MarkupRun> ParseRichTextMarkup(const char* markup);

}  // namespace kiv_skin
