// Rich text: one line of markup drawn in two passes, one that measures the runs in the fonts the
// tags select and one that places them by the context's text alignment.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/rich_text_markup.h"
#include "kiv_skin/draw/rich_text_tags.h"
#include <vector>

namespace kiv_skin {
namespace {

std::vector<DrawFormatText> Runs(const char* text)
{
    std::vector<MarkupRun> parsed = ParseRichTextMarkup(text);
    std::vector<DrawFormatText> runs;
    runs.reserve(parsed.size());
    for (MarkupRun& run : parsed) {
        runs.emplace_back();
        runs.back().name.swap(run.name);
        runs.back().value.swap(run.value);
    }
    return runs;
}

void Prepare(sDCStats& state, int percent, int rowHeight)
{
    state.mixPercent = percent < 0 ? 0 : (percent > 100 ? 100 : percent);
    state.rowHeight = rowHeight;
}

void Apply(sDCStats& state, DrawFormatText& run)
{
    const auto& tags = RichTextTags();
    auto tag = tags.find(run.name);
    if (tag != tags.end()) tag->second(state, run);
}

// Where the line starts: only exactly right (2) or centre (6) alignment moves it off the left
// edge, and only when it is narrower than the area.
int StartX(UINT align, const CRect& inner, int total)
{
    bool narrower = total < inner.Width();
    if (align == TA_RIGHT && narrower) return inner.right - total;
    if (align == TA_CENTER && narrower) return inner.left + (inner.Width() - total) / 2;
    return inner.left;
}

}  // namespace

DWORD KivDraw::DrawRichText(CDC* dc, const RECT* rect, int rows, const char* text, CRect margins, UINT, int percent)
{
    std::vector<DrawFormatText> runs = Runs(text);
    CRect inner(rect->left + margins.left, rect->top + margins.top, rect->right - margins.right,
                rect->bottom - margins.bottom);
    int rowHeight = (rect->bottom - rect->top) / (rows < 1 ? 1 : rows);

    int total = 0;
    {
        sDCStats measuring(dc);
        Prepare(measuring, percent, rowHeight);
        for (DrawFormatText& run : runs) {
            run.draw = 0;
            Apply(measuring, run);
            total += run.width;
        }
    }
    sDCStats drawing(dc);
    Prepare(drawing, percent, rowHeight);
    int x = StartX(dc->GetTextAlign(), inner, total);
    for (DrawFormatText& run : runs) {
        run.rect = {x, inner.top, x + run.width, inner.bottom};
        run.draw = 1;
        Apply(drawing, run);
        x += run.width;
    }
    return 0;
}

DWORD KivDraw::DrawRichText(CDC* dc, const RECT* rect, const char* text, CRect margins, UINT flags, int percent)
{
    return DrawRichText(dc, rect, -1, text, margins, flags, percent);
}

}  // namespace kiv_skin
