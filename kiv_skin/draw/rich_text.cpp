// Rich text: one line of markup drawn in two passes, one that measures the runs in the fonts the
// tags select and one that places them by the context's text alignment.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/rich_text_markup.h"
#include "kiv_skin/draw/rich_text_tags.h"
#include <cstring>
#include <string_view>
#include <vector>

namespace kiv_skin {
namespace {

// A run with its handler, looked up once for both passes (null for an unknown name).
struct Run {
    DrawFormatText format;
    RichTextTag tag;
};

// Room for the wide text of a call's text runs: a short caption's fits on the stack.
class WideText {
public:
    explicit WideText(size_t bytes)
    {
        if (bytes > kLocal) m_heap.resize(bytes);
        m_next = bytes > kLocal ? m_heap.data() : m_local;
    }
    // The ANSI text in wide characters; never more characters than bytes.
    std::wstring_view Convert(std::string_view ansi)
    {
        int n = ansi.empty() ? 0 : ::MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), m_next,
                                                          static_cast<int>(ansi.size()));
        std::wstring_view wide(m_next, n > 0 ? n : 0);
        m_next += wide.size();
        return wide;
    }

private:
    static const size_t kLocal = 256;
    wchar_t m_local[kLocal];
    std::vector<wchar_t> m_heap;
    wchar_t* m_next;
};

// The runs of text, each with its handler; text runs also in wide characters, which the
// drawing pass's cut-text walk is told to expect.
std::vector<Run> Runs(const char* text, WideText& wide, WalkWidths& walk)
{
    const auto& tags = RichTextTags();
    RichTextTag plain = RichTextTextTag();
    std::vector<Run> runs;
    runs.reserve(8);  // a typical caption's runs, without growing
    ForEachMarkupRun(text, [&](std::string_view name, std::string_view value) {
        runs.emplace_back();
        Run& run = runs.back();
        run.format.name.assign(name);
        run.format.value.assign(value);
        auto tag = tags.find(run.format.name);
        run.tag = tag == tags.end() ? nullptr : tag->second;
        if (run.tag == plain) {
            run.format.wide = wide.Convert(value);
            walk.Expect(run.format.wide.data(), static_cast<int>(run.format.wide.size()));
        }
    });
    return runs;
}

void Prepare(sDCStats& state, int percent, int rowHeight)
{
    state.mixPercent = percent < 0 ? 0 : (percent > 100 ? 100 : percent);
    state.rowHeight = rowHeight;
}

void Apply(sDCStats& state, Run& run)
{
    if (run.tag) run.tag(state, run.format);
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

// The drawing pass starts from the defaults the measuring pass found, which it put back, and
// draws in the fonts the measuring pass measured in.
DWORD KivDraw::DrawRichText(CDC* dc, const RECT* rect, int rows, const char* text, CRect margins, UINT, int percent)
{
    CRect inner(rect->left + margins.left, rect->top + margins.top, rect->right - margins.right,
                rect->bottom - margins.bottom);
    int rowHeight = (rect->bottom - rect->top) / (rows < 1 ? 1 : rows);

    int total = 0;
    ContextDefaults defaults;
    WalkWidths expected(dc);
    WideText wide(std::strlen(text));
    std::vector<Run> runs = Runs(text, wide, expected);
    {
        sDCStats measuring(dc);
        Prepare(measuring, percent, rowHeight);
        for (Run& run : runs) {
            run.format.draw = 0;
            Apply(measuring, run);
            total += run.format.width;
        }
        defaults = measuring.Defaults();
    }
    sDCStats drawing(dc, defaults);
    drawing.walk = expected;
    Prepare(drawing, percent, rowHeight);
    int x = StartX(dc->GetTextAlign(), inner, total);
    for (Run& run : runs) {
        DrawFormatText& format = run.format;
        format.rect = {x, inner.top, x + format.width, inner.bottom};
        format.draw = 1;
        Apply(drawing, run);
        x += format.width;
    }
    return 0;
}

DWORD KivDraw::DrawRichText(CDC* dc, const RECT* rect, const char* text, CRect margins, UINT flags, int percent)
{
    return DrawRichText(dc, rect, -1, text, margins, flags, percent);
}

}  // namespace kiv_skin
