// The demo's reports on the display settings and the sample schemes.
#pragma once
#include <afxwin.h>

void ReportDpiSettings();
// Loads a scheme's colour/font file and prints its colour table; false if it does not load.
bool ReportColorTable(const CString& colorFontPath);
