// Prices as quote panels show them: the fraction underlined in place of the decimal point, and a
// rise or fall mark in place of a leading sign.
#include "kiv_skin/draw/kiv_draw.h"
#include <cstring>
#include <string>

namespace kiv_skin {
namespace {

const int kMarkPad = 11;     // room the sign mark takes before the number
const int kRiseMark = 3;     // marks of the "KIV_MARK" strip for "+" and "-"
const int kFallMark = 2;

CSize Extent(CDC* dc, const std::string& text) { return dc->GetTextExtent(text.c_str(), static_cast<int>(text.size())); }

// Where a price of width w starts for the alignment: right and centre place it ending at x.
int StartFor(UINT align, int x, int width)
{
    if (align & TA_RIGHT) return x - width;
    if (align & TA_CENTER) return x - width / 2;
    return x;
}

}  // namespace

void KivDraw::DrawUL(CDC* dc, int x, int y, UINT options, const RECT* clip, const char* text, int, int*, int signArrow)
{
    const char* point = std::strrchr(text, '.');
    if (point == nullptr) {
        dc->ExtTextOut(x, y, options, clip, text, static_cast<UINT>(std::strlen(text)), nullptr);
        return;
    }
    int mark = -1, pad = 0;
    if (signArrow && (text[0] == '+' || text[0] == '-')) {
        mark = text[0] == '+' ? kRiseMark : kFallMark;
        pad = kMarkPad;
    }
    std::string integral(text + (mark >= 0 ? 1 : 0), point), fraction(point + 1);
    CSize whole = Extent(dc, integral), part = Extent(dc, fraction);
    UINT align = dc->GetTextAlign();
    dc->SetTextAlign(align & ~(TA_RIGHT | TA_CENTER));
    int x0 = StartFor(align, x, whole.cx + part.cx + pad);
    dc->ExtTextOut(x0 + pad, y, options, clip, integral.c_str(), static_cast<UINT>(integral.size()), nullptr);
    dc->ExtTextOut(x0 + pad + whole.cx, y, options & ~ETO_OPAQUE, clip, fraction.c_str(),
                   static_cast<UINT>(fraction.size()), nullptr);
    if (mark >= 0) DrawArrow(dc, x0 + 5, y + whole.cy - 8, mark, dc->GetTextColor(), 0, 1, false);

    CPen pen;
    pen.CreatePen(PS_SOLID, 1, dc->GetTextColor());
    CPen* previousPen = dc->SelectObject(&pen);
    int line = y + whole.cy - 1;
    CPoint position = dc->MoveTo(x0 + pad + whole.cx, line);
    dc->LineTo(x0 + pad + whole.cx + part.cx, line);
    dc->MoveTo(position);
    dc->SelectObject(previousPen);
    dc->SetTextAlign(align);
}

void KivDraw::DrawUL(CDC* dc, int x, int y, const char* text, int signArrow)
{
    DrawUL(dc, x, y, 0, nullptr, text, static_cast<int>(std::strlen(text)), nullptr, signArrow);
}

}  // namespace kiv_skin
