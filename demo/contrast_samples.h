// The samples of the contrast sheet: each drawn pair painted as the library paints it, its ink on
// a swatch of its ground, and the direction colours as a reader with some vision sees them.
#pragma once
#include "demo/contrast_figures.h"
#include "kiv_skin/draw/kiv_draw.h"
#include <afxwin.h>

// Text in the font that ink is written in; lines, marks, frames and glyphs by the kit.
void PaintPairSample(CDC* dc, kiv_skin::KivDraw& kit, const PairFigure& figure, const CRect& swatch);
// The nearest passing ink on the pair's ground: a price for text, a filled arrow and a line otherwise.
void PaintNearestSample(CDC* dc, const PairFigure& figure, const CRect& swatch);
// Rise, flat and fall side by side as prices with their marks, on the panel's ground, as seen.
void PaintDirectionSample(CDC* dc, kiv_skin::KivDraw& kit, const Vision& vision, const CRect& swatch);
