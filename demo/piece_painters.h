// The painters of the piece sheet's pieces, each drawing one piece of the kit alone in an area.
#pragma once
#include "kiv_skin/draw/kiv_draw.h"
#include <afxwin.h>

// A width x height rectangle centred in area.
inline CRect Centred(const CRect& area, int width, int height)
{
    int left = area.left + (area.Width() - width) / 2;
    int top = area.top + (area.Height() - height) / 2;
    return CRect(left, top, left + width, top + height);
}

// Shapes, frames, lines, text and the title bar.
void FillRectPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void RectangleLinePiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void FillRoundRectPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void TitleLinePiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void PluginFramePiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void PluginSelectPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void DottedSelectPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void DotLinesPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void FrameLinesPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void LimitedTextPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void PluginTitlePiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);

// Buttons and colours.
void NormalButtonsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void HoverButtonsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void PressedButtonsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void ToolIconsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void ButtonBackgroundPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void MixColorPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void Lit3DColorPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void ButtonColorsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void DarkBackgroundPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);

// Rich text, prices, gauges, axes, marks and icons.
void RichTextPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void PricesPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void FlatBarsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void ShadedBarsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void HorizontalAxisPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void VerticalAxisPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void ArrowButtonsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void MarksPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void FramedMarksPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void ScaledMarksPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void LightIconsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
void AutoDarkIconsPiece(CDC* dc, kiv_skin::KivDraw& kit, const CRect& area);
