#include "kiv_skin/draw/rich_text_markup.h"

namespace kiv_skin {

std::vector<MarkupRun> ParseRichTextMarkup(const char* markup)
{
    std::vector<MarkupRun> runs;
    ForEachMarkupRun(markup, [&](std::string_view name, std::string_view value) {
        runs.push_back({std::string(name), std::string(value)});
    });
    return runs;
}

}  // namespace kiv_skin
