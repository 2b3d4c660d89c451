// The demo's reports on the display settings and the sample schemes.
#pragma once
#include <afxwin.h>

void ReportDpiSettings();
// Initialises the style manager from the host's configuration and switches through every
// scheme of the catalogue, printing what each one loaded; false if a scheme does not load.
bool ReportSchemes();
