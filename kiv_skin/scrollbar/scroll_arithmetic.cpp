#include "kiv_skin/scrollbar/scroll_arithmetic.h"
#include <algorithm>

namespace kiv_skin {
namespace scroll_arithmetic {

namespace {
int Wrap(int64_t value) { return static_cast<int>(static_cast<uint32_t>(value)); }
}  // namespace

int Add(int a, int b) { return Wrap(int64_t{a} + b); }
int Subtract(int a, int b) { return Wrap(int64_t{a} - b); }
int Multiply(int a, int b) { return Wrap(int64_t{a} * b); }
int Divide(int a, int b) { return b == 0 ? a : Wrap(int64_t{a} / b); }

Box PlaceBar(Box area, int vertical)
{
    Box bar = area;
    if (vertical) {
        bar.top = Subtract(bar.top, 1);
        bar.left = Subtract(bar.right, kBarThickness);
    } else {
        bar.left = Subtract(bar.left, 1);
        bar.top = Subtract(bar.bottom, kBarThickness);
    }
    bar.right = Add(bar.right, 1);
    bar.bottom = Add(bar.bottom, 1);
    return bar;
}

int KeepAtEnd(const Model& old, int newTotal, int areaHeight, int lineHeight)
{
    bool showingEnd = old.total <= 1 || old.pos == Subtract(old.total, old.page);
    if (!showingEnd || lineHeight < 1) return old.pos;
    return std::max(Subtract(newTotal, areaHeight / lineHeight), 0);
}

int ClampPos(int pos, int page, int total) { return std::max(std::min(pos, Subtract(total, page)), 0); }

void ApplyScrollInfo(Model& model, int areaHeight, int lineHeight, int total, int keepAtEnd)
{
    if (keepAtEnd == 1) model.pos = KeepAtEnd(model, total, areaHeight, lineHeight);
    model.total = total;
    model.page = Divide(areaHeight, lineHeight);
    model.pos = ClampPos(model.pos, model.page, model.total);
}

void Recompute(Model& model, int barHeight, int lineHeight, int nTotal, int nPos)
{
    int page = std::max(Subtract(Divide(barHeight, lineHeight), 1), 0);
    model.page = page;
    int total = std::max(nTotal, 0);
    int room = Subtract(total, page);
    if (nPos < 0) {
        if ((model.flags & kFlagScrolled) && model.total >= 1) nPos = model.pos;
        if (nPos < 0) nPos = std::max(room, 0);
    }
    if (nPos > room) nPos = std::max(room, 0);
    if (total <= page) {
        model.flags &= ~kFlagNeedsBar;
        model.total = 0;
        model.pos = 0;
        return;
    }
    if (total != model.total || nPos != model.pos) {
        model.total = total;
        if (nPos >= 0 && nPos < total) {
            model.pos = std::min(nPos, std::max(room, 0));
            model.flags |= kFlagScrolled;
        }
    }
    model.flags |= kFlagNeedsBar;
}

int ScrollTo(Model& model, int nPos, int nBar)
{
    if (nBar != 0) return nBar < 2 ? 1 : 0;
    if (nPos < 0 || nPos >= model.total) return 0;
    int room = Subtract(model.total, model.page);
    model.pos = nPos > room ? std::max(room, 0) : nPos;
    model.flags |= kFlagScrolled;
    return 1;
}

namespace {

// Grows a thumb shorter than the minimum: forward while the track has room after it, then
// backward, never before the track start.
void WidenThumb(Geometry& g)
{
    int size = Subtract(g.thumbEnd, g.thumbStart);
    int after = Subtract(g.trackEnd, g.thumbEnd);
    int room = Add(after, Subtract(g.thumbStart, g.trackStart));
    if (size >= kMinThumb) return;
    int need = std::min(Subtract(kMinThumb, size), room);
    if (need < 1) return;
    if (after >= need) {
        g.thumbEnd = Add(g.thumbEnd, need);
        return;
    }
    if (g.trackEnd > g.thumbEnd) {
        need = Subtract(need, Subtract(g.trackEnd, g.thumbEnd));
        g.thumbEnd = g.trackEnd;
    }
    if (need > 0) g.thumbStart = std::max(Subtract(g.thumbStart, need), g.trackStart);
}

}  // namespace

Geometry Layout(const Box& box, int pos, int page, int total, int vertical)
{
    if (total <= 0 || page <= 0) return {0, 0, 0, 0};
    int visible = std::min(total, page);
    int width = Subtract(box.right, box.left);
    int height = Subtract(box.bottom, box.top);
    int arrow = vertical ? std::min(width, height / 2) : std::min(height, width / 2);
    Geometry g;
    g.trackStart = Add(vertical ? box.top : box.left, arrow);
    g.trackEnd = Subtract(vertical ? box.bottom : box.right, arrow);
    int length = Subtract(g.trackEnd, g.trackStart);
    g.thumbStart = Add(g.trackStart, Multiply(length, pos) / total);
    g.thumbEnd = Add(g.trackStart, Multiply(length, std::min(total, Add(visible, pos))) / total);
    WidenThumb(g);
    return g;
}

Part Classify(const Geometry& g, int c)
{
    if (c < g.trackStart) return PART_LINEUP;
    if (c < g.thumbStart) return PART_PAGEUP;
    if (c > g.trackEnd) return PART_LINEDOWN;
    if (c > g.thumbEnd) return PART_PAGEDOWN;
    return PART_THUMB;
}

bool Contains(const Box& box, int x, int y) { return x >= box.left && x < box.right && y >= box.top && y < box.bottom; }

Part HitTest(const Box& box, int x, int y, const Model& model, int vertical)
{
    if (!Contains(box, x, y)) return PART_NONE;
    return Classify(Layout(box, model.pos, model.page, model.total, vertical), vertical ? y : x);
}

int StepTarget(Part part, const Model& model)
{
    int target = model.pos;
    switch (part) {
    case PART_LINEUP: target = Subtract(model.pos, 1); break;
    case PART_LINEDOWN: target = Add(model.pos, 1); break;
    case PART_PAGEUP: target = Subtract(model.pos, model.page); break;
    case PART_PAGEDOWN: target = Add(model.pos, model.page); break;
    default: break;
    }
    int limited = std::min(target, Subtract(model.total, model.page));
    return limited >= 1 ? limited : 0;
}

int WheelTarget(const Model& model, int delta)
{
    if (model.total < 2 || model.total <= model.page) return model.pos;
    int room = Subtract(model.total, model.page);
    if (delta <= 0 && model.pos > room) return model.pos;
    int target = delta > 0 ? Subtract(model.pos, 1) : Add(model.pos, 1);
    return std::min(std::max(target, 0), room);
}

int DragTarget(const Geometry& g, int c, int dragOffset, const Model& model)
{
    int span = std::max(Subtract(g.trackEnd, g.trackStart), 1);
    int target = Multiply(Subtract(Subtract(c, dragOffset), g.trackStart), model.total) / span;
    return std::min(std::max(target, 0), Subtract(model.total, model.page));
}

}  // namespace scroll_arithmetic
}  // namespace kiv_skin
