// The triangle arrow button that the drawing kit and the scroll bar both draw.
#pragma once
#include <afxwin.h>

namespace kiv_skin {

// A filled triangle in arrowColor pointing left (0), right (1), down (2), up (3) or to the top
// left corner (other), in the middle third of rect (first made square around its centre unless
// keepShape); rect is filled with background and outlined in arrowColor unless background is
// 0xFFFFFFFF.
void DrawTriangleButton(CDC* dc, const RECT* rect, COLORREF arrowColor, COLORREF background, int direction,
                        int keepShape);

}  // namespace kiv_skin
