// The contrast sheet of the active scheme: every pair of colours the library draws one on the
// other, painted as the library paints it, with its contrast ratio, the ratio it needs and a
// verdict; then rise, flat and fall under each colour-vision deficiency with their smallest
// distance. The figures are kivlint's own.
#pragma once
#include <afxwin.h>

CSize ContrastSheetSize();
// Paints the sheet at (0, 0) in a ContrastSheetSize area, headed by title (UTF-8).
void DrawContrastSheet(CDC* dc, const char* title);
