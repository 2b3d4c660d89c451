#include "kiv_skin/draw/rich_text_state.h"
#include "kiv_skin/draw/kiv_draw.h"

namespace kiv_skin {

sDCStats::sDCStats(CDC* pDC)
    : dc(pDC), textColor(pDC->GetTextColor()), bkColor(pDC->GetBkColor()), bkMode(pDC->GetBkMode()),
      logFont(), walk(pDC)
{
    ::GetObjectA(::GetCurrentObject(pDC->m_hAttribDC, OBJ_FONT), sizeof(LOGFONTA), &logFont);
}

sDCStats::sDCStats(CDC* pDC, const ContextDefaults& defaults)
    : dc(pDC), textColor(defaults.textColor), bkColor(defaults.bkColor), bkMode(defaults.bkMode),
      logFont(defaults.logFont), walk(pDC)
{
}

// Puts back the font, then the colours and mode; what no tag set is still as it was.
sDCStats::~sDCStats()
{
    if (oldFont) dc->SelectObject(oldFont);
    bool same = OneContext();
    if (inkSet || !same) dc->SetTextColor(textColor);
    if (backSet || !same) {
        dc->SetBkColor(bkColor);
        dc->SetBkMode(bkMode);
    }
    delete font;
}

COLORREF sDCStats::Mixed(COLORREF color) const
{
    return mixPercent == 100 ? color : KivDraw::MakeMixColor(dc, color, bkColor, mixPercent);
}

void sDCStats::Select(CFont* selected)
{
    CFont* previous = dc->SelectObject(selected);
    if (oldFont == nullptr) oldFont = previous;
    walk.Forget();
}

}  // namespace kiv_skin
