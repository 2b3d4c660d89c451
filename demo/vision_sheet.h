// The quote panel as readers with each colour-vision deficiency see it: the panel painted as the
// gallery paints it, then copies of it with every pixel mapped through kivlint's model of
// protanopia, deuteranopia and tritanopia, side by side and labelled.
#pragma once
#include "demo/picture.h"
#include <afxwin.h>

CSize VisionSheetSize();
// Where the sheet shows the panel as seen with kVisions[index].
CRect VisionPanelArea(int index);
// Paints the sheet into a picture of VisionSheetSize, headed by title (UTF-8).
void DrawVisionSheet(Picture& sheet, const char* title);
