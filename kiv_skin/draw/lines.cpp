// Dotted and textured one-unit lines, drawn with pattern brushes made from the scheme's "KIV_DOT"
// and "KIV_FRAME" bitmaps when the object is made.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

// A pattern brush of the scheme's bitmap; empty when the scheme lacks it.
void MakePatternBrush(CBrush& brush, const char* key)
{
    if (CBitmap* bitmap = SchemeBitmap(key)) brush.CreatePatternBrush(bitmap);
}

}  // namespace

KivDraw::KivDraw()
{
    MakePatternBrush(m_dotBrush, "KIV_DOT");
    MakePatternBrush(m_frameBrush, "KIV_FRAME");
    m_plugFrameBrush.CreateSolidBrush(SchemeColor("PLUG_FRAME"));
}

KivDraw::~KivDraw()
{
    m_plugFrameBrush.DeleteObject();
    m_frameBrush.DeleteObject();
    m_dotBrush.DeleteObject();
}

void KivDraw::VertDotLine(CDC* dc, int x, int y1, int y2) { FramePatternLine(dc, m_dotBrush, x, y1, x + 1, y2); }

void KivDraw::HoriDotLine(CDC* dc, int x1, int x2, int y) { FramePatternLine(dc, m_dotBrush, x1, y, x2, y + 1); }

void KivDraw::VertFrameLine(CDC* dc, int x, int y1, int y2) { FramePatternLine(dc, m_frameBrush, x, y1, x + 1, y2); }

void KivDraw::HoriFrameLine(CDC* dc, int x1, int x2, int y) { FramePatternLine(dc, m_frameBrush, x1, y, x2, y + 1); }

// A rectangle one unit across, framed with the pattern brush, so that its pattern shows as a line.
void KivDraw::FramePatternLine(CDC* dc, CBrush& brush, int left, int top, int right, int bottom)
{
    if (brush.m_hObject == nullptr) return;
    CRect line(left, top, right, bottom);
    dc->FrameRect(&line, &brush);
}

}  // namespace kiv_skin
