// Gauges.
#include "kiv_skin/draw/kiv_draw.h"

namespace kiv_skin {

// Exported for the host's sake; draws nothing.
void KivDraw::Draw3DProgress(CDC*, int, const RECT*, int, int) {}

}  // namespace kiv_skin
