// The example plug-in's one export: paints its panel into a device context.
#pragma once
#include <afxwin.h>

#ifdef QUOTE_PANEL_BUILD
#define QUOTE_PANEL_API __declspec(dllexport)
#else
#define QUOTE_PANEL_API __declspec(dllimport)
#endif

// The panel fills area: frame, title bar, and one quote per row below it from firstRow on, with
// a scroll bar at the right.
QUOTE_PANEL_API void PaintQuotePanel(HDC dc, const RECT* area, int firstRow);
