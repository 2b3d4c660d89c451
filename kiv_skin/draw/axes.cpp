// Value axes with an arrow head, a title at the tip and labelled ticks.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kiv_skin {
namespace {

// The "SMALL" font's cell height on the screen, or 12 when it cannot be read.
int SmallFontHeight()
{
    CClientDC screen(nullptr);
    CFont* font = SchemeFont("SMALL");
    CFont* previous = font ? screen.SelectObject(font) : nullptr;
    TEXTMETRICA metrics;
    int height = screen.GetTextMetrics(&metrics) ? metrics.tmHeight : 12;
    if (previous) screen.SelectObject(previous);
    return height;
}

void DrawHead(CDC* dc, int horizontal, POINT to)
{
    if (horizontal) {
        dc->LineTo(to.x - 4, to.y - 4);
        dc->MoveTo(to);
        dc->LineTo(to.x - 4, to.y + 4);
    } else {
        dc->LineTo(to.x - 4, to.y + 4);
        dc->MoveTo(to);
        dc->LineTo(to.x + 4, to.y + 4);
    }
}

// Where the ticks go and what they say: single precision, as the labels are computed.
struct TickScale {
    POINT from, to;
    float minValue, range;
    int ticks;
    bool integerLabels;

    float Value(int i) const
    {
        float value = i * range / ticks + minValue;
        return integerLabels ? std::trunc(value) : value;
    }
    POINT At(float value) const
    {
        float t = value - minValue;
        return {from.x + static_cast<int>(t * (to.x - from.x) / range),
                from.y + static_cast<int>((to.y - from.y) * t / range)};
    }
};

// Ticks from "from" toward "to", each with its label at the offset; a tick within gap of the
// last one drawn on both axes is skipped, and on a horizontal axis the ticks stop short of the
// title.
void DrawTicks(CDC* dc, const TickScale& scale, bool horizontal, SIZE offset, int gap, int titleLeft,
               const RECT* clip)
{
    POINT last = {-10000, -10000};
    for (int i = 0; i < scale.ticks; ++i) {
        float value = scale.Value(i);
        POINT p = scale.At(value);
        if (horizontal && p.x > titleLeft - 10) break;
        if (std::abs(p.x - last.x) < gap && std::abs(p.y - last.y) < gap) continue;
        dc->MoveTo(p);
        dc->LineTo(p.x + offset.cx, p.y + offset.cy);
        char label[64];
        std::snprintf(label, sizeof(label), scale.integerLabels ? "%.0f" : "%.2f", value);
        ::ExtTextOutA(dc->m_hDC, p.x + offset.cx, p.y + offset.cy, clip ? ETO_CLIPPED : 0, clip, label,
                      static_cast<UINT>(std::strlen(label)), nullptr);
        last = p;
    }
}

}  // namespace

void KivDraw::DrawAxis(CDC* dc, int horizontal, POINT from, POINT to, float minValue, float maxValue, int ticks,
                       const char* title, COLORREF color, const RECT* clip, int integerLabels, int textHeight)
{
    if (maxValue == minValue) maxValue = minValue + 0.01f;
    if (color == kNoColor) color = SchemeColor("AXIS");
    if (textHeight < 1) textHeight = SmallFontHeight();

    CPen pen;
    pen.CreatePen(PS_SOLID, 1, color);
    CPen* previousPen = dc->SelectObject(&pen);
    CFont* font = SchemeFont("SMALL");  // without it, labels use the context's font
    CFont* previousFont = font ? dc->SelectObject(font) : nullptr;
    COLORREF previousInk = dc->SetTextColor(color);
    int previousMode = dc->SetBkMode(TRANSPARENT);
    UINT previousAlign = dc->SetTextAlign(TA_LEFT | TA_TOP);
    CPoint previousPosition = dc->MoveTo(from);
    SIZE offset = horizontal ? SIZE{0, 3} : SIZE{-3, 0};

    int titleWidth = dc->GetTextExtent(title, static_cast<int>(std::strlen(title))).cx;
    dc->ExtTextOut(to.x - titleWidth + offset.cx, to.y + offset.cy, clip ? ETO_CLIPPED : 0, clip, title,
                   static_cast<UINT>(std::strlen(title)), nullptr);
    dc->SetTextAlign(horizontal ? TA_CENTER | TA_TOP : TA_RIGHT | TA_BASELINE);
    dc->LineTo(to);
    DrawHead(dc, horizontal, to);
    if (ticks > 0) {
        TickScale scale = {from, to, minValue, maxValue - minValue, ticks, integerLabels != 0};
        DrawTicks(dc, scale, horizontal != 0, offset, 3 * textHeight, to.x - titleWidth, clip);
    }

    dc->MoveTo(previousPosition);
    dc->SetTextAlign(previousAlign);
    dc->SetBkMode(previousMode);
    dc->SetTextColor(previousInk);
    if (previousFont) dc->SelectObject(previousFont);
    dc->SelectObject(previousPen);
}

}  // namespace kiv_skin
