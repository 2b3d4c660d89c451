// The panel repaint's profile: each piece of the panel against its raw-GDI counterpart.
#pragma once
#include "support/dib_canvas.h"

// Prints it; kit and hand are canvases as high as a panel, with the rows' font selected.
void PrintPanelProfile(DibCanvas& kit, DibCanvas& hand);
