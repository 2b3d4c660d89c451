// Fuzz target of the scroll bar's arithmetic. Each input is a sequence of the owner's calls and
// mouse steps with numbers taken from the input, hostile ones included, run under the
// sanitizers. Within the ranges in which the thumb's 32-bit products cannot overflow (areas up
// to 20,000 pixels, lines of 1 to 200 pixels, totals up to 100,000 lines) every step must keep
// its promises: the position within 0 and total - page, arrows, track and thumb in order inside
// the bar, a thumb of at least 8 pixels when the track has room, and the pixels at every edge
// on the right side of it. Beyond those ranges only the sanitizers judge.
#include "fuzz_check.h"
#include "kiv_skin/scrollbar/scroll_arithmetic.h"
#include <fuzzer/FuzzedDataProvider.h>
#include <algorithm>

using namespace kiv_skin::scroll_arithmetic;

namespace {

void Check(bool holds, const char* what) { CheckProperty(holds, "scroll arithmetic", what); }

// A number: mostly within what a panel meets, sometimes anything at all.
int Number(FuzzedDataProvider& in, int low, int high)
{
    return in.ConsumeBool() ? in.ConsumeIntegral<int>() : in.ConsumeIntegralInRange(low, high);
}

bool Sane(const Box& area, int lineHeight, const Model& model)
{
    auto within = [](int v, int low, int high) { return v >= low && v <= high; };
    return within(area.left, 0, 20000) && within(area.top, 0, 20000) && within(area.right, area.left, 20000) &&
           within(area.bottom, area.top, 20000) && within(lineHeight, 1, 200) && within(model.total, 0, 100000) &&
           within(model.page, 0, 20000) && within(model.pos, 0, 100000);
}

// A page of 0 (a bar shorter than two lines, recomputed with one line less) is left out: the
// recomputation then keeps a position at or past the new total, as the terminal's bar does.
void CheckModel(const Model& m)
{
    if (m.page >= 1) Check(m.pos >= 0 && m.pos <= std::max(m.total - m.page, 0), "position outside 0 .. total - page");
}

void CheckGeometry(const Box& bar, const Model& m, int vertical)
{
    const Geometry g = Layout(bar, m.pos, m.page, m.total, vertical);
    if (m.total <= 0 || m.page <= 0) return Check(g.trackStart == 0 && g.trackEnd == 0, "geometry without content");
    const int start = vertical ? bar.top : bar.left, end = vertical ? bar.bottom : bar.right;
    Check(start <= g.trackStart && g.trackStart <= g.thumbStart && g.thumbStart <= g.thumbEnd &&
              g.thumbEnd <= g.trackEnd && g.trackEnd <= end,
          "arrows, track and thumb out of order");
    if (g.trackEnd - g.trackStart >= kMinThumb)
        Check(g.thumbEnd - g.thumbStart >= kMinThumb, "a thumb under 8 pixels in a track with room");
    // The pixels on both sides of every edge.
    for (int c : {start, g.trackStart - 1, g.trackStart, g.thumbStart - 1, g.thumbStart, g.thumbEnd, g.thumbEnd + 1,
                  g.trackEnd, g.trackEnd + 1, end - 1}) {
        if (c < start || c >= end) continue;
        const Part part = Classify(g, c);
        const bool arrow = c < g.trackStart || c > g.trackEnd;
        Check(arrow == (part == PART_LINEUP || part == PART_LINEDOWN), "an arrow pixel classified otherwise");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzedDataProvider in(data, size);
    const int vertical = in.ConsumeBool();
    Model model = {0, 1, 1, 0};
    Box area = {0, 0, 0, 0};
    int lineHeight = 1;
    while (in.remaining_bytes() > 0) {
        switch (in.ConsumeIntegralInRange(0, 5)) {
        case 0:
            area = {Number(in, 0, 400), Number(in, 0, 400), Number(in, 0, 20000), Number(in, 0, 20000)};
            lineHeight = Number(in, 1, 200);
            ApplyScrollInfo(model, Subtract(area.bottom, area.top), lineHeight, std::max(Number(in, 0, 100000), 1), in.ConsumeBool());
            break;
        case 1: Recompute(model, Subtract(area.bottom, area.top), lineHeight, Number(in, 0, 100000), Number(in, -1, 100000)); break;
        case 2: ScrollTo(model, Number(in, 0, 100000), in.ConsumeIntegralInRange(-1, 2)); break;
        case 3: model.pos = ClampPos(StepTarget(Part(in.ConsumeIntegralInRange(0, 5)), model), model.page, model.total); break;
        case 4: model.pos = WheelTarget(model, Number(in, -240, 240)); break;
        case 5: {
            const Box bar = PlaceBar(area, vertical);
            const Geometry g = Layout(bar, model.pos, model.page, model.total, vertical);
            model.pos = DragTarget(g, Number(in, 0, 20000), Number(in, 0, 50), model);
            HitTest(bar, Number(in, 0, 20000), Number(in, 0, 20000), model, vertical);
            break;
        }
        }
        if (!Sane(area, lineHeight, model)) continue;
        CheckModel(model);
        CheckGeometry(PlaceBar(area, vertical), model, vertical);
    }
    return 0;
}
