#include "demo/piece_painters.h"
#include "demo/scheme_text.h"
#include "kiv_base/text.h"
#include "kiv_skin/draw/plugin_title.h"

using kiv_skin::KivDraw;

namespace {

const char kTitle[] = "\xE8\x87\xAA\xE9\x80\x89\xE8\x82\xA1 \xC2\xB7 \xE8\xA1\x8C\xE6\x83\x85";  // 自选股 · 行情
const char kLongText[] = "\xE5\xAE\x81\xE5\xBE\xB7\xE6\x97\xB6\xE4\xBB\xA3 CATL 300750 \xE6\x9C\x80\xE6\x96\xB0 218.45";  // 宁德时代 CATL 300750 最新 218.45

}  // namespace

// --- Shapes ----------------------------------------------------------------------------------

void FillRectPiece(CDC* dc, KivDraw&, const CRect& area)
{
    CRect swatch = Centred(area, 96, 28);
    KivDraw::FillRect(dc, &swatch, SchemeColor("PLUG_SELCOLOR"));
}

void RectangleLinePiece(CDC* dc, KivDraw&, const CRect& area)
{
    CPen pen(PS_SOLID, 1, SchemeColor("PLUG_TITLE_TEXT"));
    CPen* previous = dc->SelectObject(&pen);
    CRect box = Centred(area, 96, 28);
    KivDraw::RectangleLine(dc, &box);
    dc->SelectObject(previous);
}

void FillRoundRectPiece(CDC* dc, KivDraw&, const CRect& area)
{
    CRect box = Centred(area, 96, 28);
    KivDraw::FillRoundRect(dc, &box, CPoint(10, 10), SchemeColor("PLUG_BTN_BGCOLOR_HOVER"));
}

void TitleLinePiece(CDC* dc, KivDraw&, const CRect& area)
{
    CRect strip = Centred(area, area.Width() - 16, 12);
    KivDraw::DrawTitleLine(dc, &strip, SchemeColor("PLUG_FRAME"));
}

void PluginFramePiece(CDC* dc, KivDraw&, const CRect& area)
{
    CRect panel = Centred(area, 110, 36);
    KivDraw::DrawPluginFrame(dc, &panel);
}

void PluginSelectPiece(CDC* dc, KivDraw&, const CRect& area)
{
    CRect box = Centred(area, 110, 36);
    KivDraw::DrawPluginSelect(dc, &box, 2, PS_SOLID, 0);
}

void DottedSelectPiece(CDC* dc, KivDraw&, const CRect& area)
{
    CRect box = Centred(area, 110, 36);
    KivDraw::DrawPluginSelect(dc, &box, 0, PS_DOT, 0);
}

// --- Lines -----------------------------------------------------------------------------------

void DotLinesPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    CRect box = Centred(area, 120, 36);
    for (int y = box.top; y < box.bottom; y += 12) kit.HoriDotLine(dc, box.left, box.right, y);
    kit.VertDotLine(dc, box.CenterPoint().x, box.top, box.bottom);
}

void FrameLinesPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    CRect box = Centred(area, 120, 36);
    kit.HoriFrameLine(dc, box.left, box.right, box.top);
    kit.HoriFrameLine(dc, box.left, box.right, box.bottom - 1);
    kit.VertFrameLine(dc, box.left + 40, box.top, box.bottom);
    kit.VertFrameLine(dc, box.left + 80, box.top, box.bottom);
}

// --- Text and title --------------------------------------------------------------------------

// The text cut to a box 100 wide, with the box outlined by dotted lines.
void LimitedTextPiece(CDC* dc, KivDraw& kit, const CRect& area)
{
    CRect box = Centred(area, 100, 18);
    kit.VertDotLine(dc, box.left - 1, box.top - 4, box.bottom + 4);
    kit.VertDotLine(dc, box.right, box.top - 4, box.bottom + 4);
    SchemeTextStyle style(dc, "PLUG_STDFONT", SchemeColor("EQUTEXT"));
    int count = 0;
    KivDraw::TextOutLimitWidth(dc, &box, kiv_base::text::Utf8toUtf16(kLongText), count, CRect(0, 3, 0, 0), 0);
}

void PluginTitlePiece(CDC* dc, KivDraw&, const CRect& area)
{
    kiv_skin::PluginTitle title(kTitle);
    CRect band = Centred(area, area.Width() - 16, title.GetAreaHeight(dc));
    title.Draw(dc, band);
}
