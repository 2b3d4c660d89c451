// The scroll bar's page of the gallery: the scrolled quote panel in several states (top of the
// list, scrolled with the thumb held in a drag, the end with the up arrow held down) and the
// scheme's button faces the bars are cut from.
#pragma once
#include <afxwin.h>

CSize ScrollSheetSize();
// Paints the page at (0, 0) under a heading (UTF-8).
void DrawScrollSheet(CDC* dc, const char* title);
