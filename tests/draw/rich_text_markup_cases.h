// Markup inputs with the runs they must give: the grammar's own examples, malformed and hostile
// inputs, high bytes and GB2312 text. Shared by the unit tests and the fuzzer's seed writer.
#pragma once
#include "kiv_skin/draw/rich_text_markup.h"
#include <string>
#include <vector>

struct MarkupCase {
    std::string title;  // letters, digits and underscores: a test name and a seed file name
    std::string markup;  // parsed up to its first zero byte, as the C string it stands for
    std::vector<kiv_skin::MarkupRun> runs;
};

const std::vector<MarkupCase>& RichTextMarkupCases();
