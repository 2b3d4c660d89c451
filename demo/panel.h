// A mock quote panel of a plug-in, painted with the drawing kit in the active scheme: frame, a
// title bar, a toolbar of icon buttons, a quote table with a selected row, grooved section
// headings over a sector table, a movers list in rich text, an intraday chart and the buy/sell
// volume ratio, and a status line whose news text is cut to its width.
#pragma once
#include <afxwin.h>

// Space between the frame and the content below the title bar: only background is painted there.
const int kPanelPadding = 4;

// The panel's size; its title bar is as high as the scheme's title font needs.
CSize QuotePanelSize(CDC* dc);
// Paints the panel at (0, 0) in a QuotePanelSize area.
void DrawQuotePanel(CDC* dc);
