// Sections of the quote panel that chart the selected stock and list the movers: a watch list in
// rich text with an underlined change column, an intraday chart on two axes, and the ratio of
// buying to selling volume as a percentage bar.
#pragma once
#include "kiv_skin/draw/kiv_draw.h"
#include <afxwin.h>

const int kMoverRows = 5;

void DrawMoverList(CDC* dc, kiv_skin::KivDraw& kit, const CRect& band);
void DrawIntradayChart(CDC* dc, kiv_skin::KivDraw& kit, const CRect& band);
void DrawVolumeRatio(CDC* dc, kiv_skin::KivDraw& kit, const CRect& band);
// Where the volume ratio's bar lies in its band, and where its split falls.
CRect VolumeRatioBar(const CRect& band);
int VolumeRatioSplit(const CRect& bar);
