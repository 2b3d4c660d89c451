#include "kiv_skin/draw/rich_text_markup.h"
#include <string_view>

namespace kiv_skin {

namespace {

const std::string_view kTagOpen = "<*";
const std::string_view kTagClose = "*>";

MarkupRun TagRun(std::string_view body)
{
    const size_t equals = body.find('=');
    if (equals == std::string_view::npos)
        return {std::string(body), std::string()};
    return {std::string(body.substr(0, equals)), std::string(body.substr(equals + 1))};
}

}  // namespace

std::vector<MarkupRun> ParseRichTextMarkup(const char* markup)
{
    const std::string_view text(markup);
    std::vector<MarkupRun> runs;
    runs.reserve(8);  // a typical caption's runs, without growing
    size_t pos = 0;
    while (pos < text.size()) {
        const size_t open = text.find(kTagOpen, pos);
        const size_t textEnd = open == std::string_view::npos ? text.size() : open;
        if (textEnd > pos)
            runs.push_back({"text", std::string(text.substr(pos, textEnd - pos))});
        if (open == std::string_view::npos)
            break;
        // The "*" of "<*" does not count towards the closing "*>": "<*>" alone stays open.
        const size_t bodyStart = open + kTagOpen.size();
        const size_t close = text.find(kTagClose, bodyStart);
        if (close == std::string_view::npos)
            break;
        runs.push_back(TagRun(text.substr(bodyStart, close - bodyStart)));
        pos = close + kTagClose.size();
    }
    return runs;
}

}  // namespace kiv_skin
