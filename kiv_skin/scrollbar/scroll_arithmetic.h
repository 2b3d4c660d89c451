// The scroll bar's arithmetic without GDI: where the bar sits, how position, page and total
// follow from it, the geometry of arrows, track and thumb, which part lies under a point, and
// the steps of the wheel, a press, a repeat tick and a drag. All values are in lines or pixels
// as 32-bit signed integers; sums and products wrap as 32-bit arithmetic does, so hostile
// inputs give a defined (if meaningless) answer instead of undefined behaviour.
#pragma once
#include <cstdint>

namespace kiv_skin {
namespace scroll_arithmetic {

// A rectangle as the platform lays it out: right and bottom exclusive.
struct Box {
    int left, top, right, bottom;
};

// Position, page and total in lines, with the flag word.
struct Model {
    int pos, page, total;
    uint32_t flags;
};

const uint32_t kFlagNeedsBar = 0x40;   // the content is longer than the page
const uint32_t kFlagScrolled = 0x80;   // the position was set by scrolling
const int kBarThickness = 16;          // for the owner's layout
const int kMinThumb = 8;               // pixels

// Parts of the bar, numbered as the scroll bar's TRACKTYPE.
enum Part { PART_NONE = 0, PART_LINEDOWN = 1, PART_LINEUP = 2, PART_PAGEDOWN = 3, PART_PAGEUP = 4, PART_THUMB = 5 };

// Track start, thumb start, thumb end, track end, along the bar's axis.
struct Geometry {
    int trackStart, thumbStart, thumbEnd, trackEnd;
};

// 32-bit wrapping sum, difference and product; a quotient whose divisor 0 counts as 1.
int Add(int a, int b);
int Subtract(int a, int b);
int Multiply(int a, int b);
int Divide(int a, int b);

// The bar's strip of the owner's area: 16 pixels plus one of overlap on each side.
Box PlaceBar(Box area, int vertical);
// The position that keeps the end in view after the total grows to newTotal, when the view was
// showing the end (or had no content); otherwise the old position.
int KeepAtEnd(const Model& old, int newTotal, int areaHeight, int lineHeight);
// min(pos, total - page), then at least 0.
int ClampPos(int pos, int page, int total);
// The owner's main call with a total of at least 1 (the bar already placed). A line height of 0
// is the caller's error; it counts as 1 pixel rather than dividing by zero.
void ApplyScrollInfo(Model& model, int areaHeight, int lineHeight, int total, int keepAtEnd);
// Recomputes page and total from the bar's own height with one line less; a negative nPos
// keeps the position.
void Recompute(Model& model, int barHeight, int lineHeight, int nTotal, int nPos);
// Absolute move; answers what the scroll bar's ScrollTo answers.
int ScrollTo(Model& model, int nPos, int nBar);

// The arrows are squares of the bar's thickness, smaller when the bar is shorter than two; the
// thumb is proportional and at least 8 pixels when the track has room.
Geometry Layout(const Box& box, int pos, int page, int total, int vertical);
// The part at coordinate c along the axis, for a point inside the bar.
Part Classify(const Geometry& g, int c);
bool Contains(const Box& box, int x, int y);
Part HitTest(const Box& box, int x, int y, const Model& model, int vertical);

// The position a press or repeat tick on a part asks for: pos plus the part's step, at most
// total - page when that limit is at least 1, else 0.
int StepTarget(Part part, const Model& model);
// The position a wheel delta leads to; unchanged when the bar cannot scroll.
int WheelTarget(const Model& model, int delta);
// The position of a dragged thumb whose grab point is at c.
int DragTarget(const Geometry& g, int c, int dragOffset, const Model& model);

}  // namespace scroll_arithmetic
}  // namespace kiv_skin
