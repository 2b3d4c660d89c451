// The markup grammar's cost grows with the length of the markup alone. For each shape of input
// and for 10,000 and 100,000 bytes, parsing is timed against the baseline of producing the same
// runs without parsing: copying the markup once and pushing copies of the runs into an empty
// vector (which allocates and moves as parsing does). A linear parser keeps that ratio about the
// same at both sizes; a quadratic one would multiply it by ten. The two are timed alternately, run
// by run, and the ratio is the median of the per-run ratios.
#include "bench/bench_timer.h"
#include "kiv_skin/draw/rich_text_markup.h"
#include <cstdio>
#include <string>
#include <vector>

using kiv_skin::MarkupRun;
using kiv_skin::ParseRichTextMarkup;

namespace {

struct Shape {
    const char* title;
    const char* piece;  // repeated up to the wanted length
};

const Shape kShapes[] = {
    {"plain text", "12.50*> "},
    {"tags and text", "<*c=FF*>12.50 "},
    {"tags only", "<*b*>"},
    {"openers, no close", "<*"},
    {"opener stripes", "<*>"},
};

// Parse time over baseline time for the shape's markup of the given length.
double ParseOverBuild(const Shape& shape, size_t length, size_t& sink)
{
    std::string markup;
    while (markup.size() < length)
        markup += shape.piece;
    markup.resize(length);
    const std::vector<MarkupRun> runs = ParseRichTextMarkup(markup.c_str());
    const Comparison c = Compare(31, 1, [&](int) {
        sink += ParseRichTextMarkup(markup.c_str()).size();
    }, [&](int) {
        const std::string bytes(markup.c_str());
        std::vector<MarkupRun> copies;
        for (const MarkupRun& run : runs)
            copies.push_back(run);
        sink += copies.size() + bytes.size();
    });
    return c.ratio;
}

}  // namespace

int main()
{
    size_t sink = 0;
    std::printf("%-20s %18s %18s %8s\n", "shape", "parse/build 10 KB", "parse/build 100 KB", "growth");
    for (const Shape& shape : kShapes) {
        const double small = ParseOverBuild(shape, 10000, sink);
        const double large = ParseOverBuild(shape, 100000, sink);
        std::printf("%-20s %18.2f %18.2f %8.2f\n", shape.title, small, large, large / small);
    }
    return sink == 0;
}
