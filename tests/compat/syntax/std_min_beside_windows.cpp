// std::min beside the Windows headers without NOMINMAX: the headers' min macro breaks the call.
// With KIV_CORRECTED the call is written (std::min), out of the macro's reach, and the file compiles.
#include <afxwin.h>
#include <algorithm>

#ifdef KIV_CORRECTED
int Smaller(int a, int b) { return (std::min)(a, b); }
#else
int Smaller(int a, int b) { return std::min(a, b); }
#endif
