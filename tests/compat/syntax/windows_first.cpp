// A file that includes <windows.h> before <afxwin.h>: MFC stops the build. With KIV_CORRECTED the
// framework comes first and the file compiles.
#ifndef KIV_CORRECTED
#include <windows.h>
#endif
#include <afxwin.h>

int Width(const CRect& rect) { return rect.Width(); }
