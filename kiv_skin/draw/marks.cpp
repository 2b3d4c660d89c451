// Arrows and sign marks.
#include "kiv_skin/draw/kiv_draw.h"

namespace kiv_skin {

// Exported for the host's sake; draws nothing.
void KivDraw::DrawXorArrow(CDC*, int, int, int, int) {}

}  // namespace kiv_skin
