// Pictures of the style editor for the gallery.
#pragma once
#include <string>

// Opens the style editor through KivStyleMgr::SetKivStyle, as a host does, selects each scheme of
// the catalogue in its combo box and writes the window, once painted, as <scheme>_dialog.png into
// folder; then cancels the editor. Needs a display (the demo runs under an X server). False when
// the editor did not open or a picture could not be written.
bool RenderDialogShots(const std::string& folder);
