// The demo's panels are laid out as plug-ins design theirs, in logical units (pixels at the
// design resolution), and converted to the screen's pixels through DPIScale on the way to the
// DC, as a plug-in does: at 96 DPI they are the same numbers.
#pragma once
#include "kiv_skin/display/dpi_scale.h"

inline int DpX(int logical) { return kiv_skin::DPIScale::GetInstance()->XLP2DP(logical); }
inline int DpY(int logical) { return kiv_skin::DPIScale::GetInstance()->YLP2DP(logical); }
