// The rich-text tags: what each name does to the drawing state and its run.
#pragma once
#include "kiv_skin/draw/rich_text_state.h"
#include <map>
#include <string>

namespace kiv_skin {

typedef void (*RichTextTag)(sDCStats& state, DrawFormatText& run);

// The 26 tag names (a long and a short one for each of 13 tags), ordered byte by byte; made
// once, on first use, and kept until the library unloads.
const std::map<std::string, RichTextTag>& RichTextTags();

// The handler of plain text ("text", "t"), whose runs need their value in wide characters.
RichTextTag RichTextTextTag();

}  // namespace kiv_skin
