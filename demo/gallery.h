// The gallery: pictures of the drawing kit in every sample scheme, written as PNG files.
#pragma once
#include <afxwin.h>
#include <string>

// Writes <scheme>_panel.png (a mock quote panel), <scheme>_pieces.png (every piece on its
// own, named), <scheme>_markup.png, <scheme>_scroll.png (the scrolled quote panel),
// <scheme>_contrast.png (each drawn colour pair with its contrast ratio) and <scheme>_vision.png
// (the panel as seen with each colour-vision deficiency) for one scheme into folder, creating the folder if needed, and prints each path.
// The style manager must be initialised. False when the scheme does not load or a file cannot
// be written.
bool RenderSchemeGallery(const CString& scheme, const std::string& folder);
// The same for every scheme of the catalogue, in its order, then contrast.md: the contrast
// sheets' figures of every scheme as Markdown tables. False if any of them fails.
bool RenderGallery(const std::string& folder);
// The panel and the scroll sheet of every scheme at the screen's DPI, <scheme>_panel_<dpi>dpi.png
// and <scheme>_scroll_<dpi>dpi.png, their layouts converted through DPIScale. Initialises the
// style manager; false if a scheme does not load or a file cannot be written.
bool RenderDpiGallery(const std::string& folder);
