#include "demo/report_style.h"
#include "kiv_skin/intl/kiv_text_out.h"
#include <cstring>

namespace {

const int kDisc = 16;

// Tahoma where the machine has it, else DejaVu Sans (a Wine prefix without Wine's own fonts has
// the system's): the first face GDI really gives, found once.
const char* FaceName(CDC* dc)
{
    static const char* chosen = nullptr;
    const char* const faces[] = {"Tahoma", "DejaVu Sans"};
    for (int i = 0; chosen == nullptr && i < 2; ++i) {
        CFont font;
        LOGFONTA log = {};
        log.lfHeight = -13;
        log.lfCharSet = ANSI_CHARSET;  // under a Chinese code page the default would pick a Chinese face
        std::strcpy(log.lfFaceName, faces[i]);
        if (!font.CreateFontIndirect(&log)) AfxThrowResourceException();
        CFont* previous = dc->SelectObject(&font);
        char given[LF_FACESIZE] = {};
        ::GetTextFaceA(dc->m_hDC, LF_FACESIZE, given);
        dc->SelectObject(previous);
        if (_stricmp(given, faces[i]) == 0 || i == 1) chosen = faces[i];
    }
    return chosen;
}

void MakeFont(CDC* dc, CFont& font, ReportFont kind)
{
    LOGFONTA log = {};
    log.lfHeight = kind == ReportFont::Heading ? -17 : -13;
    log.lfWeight = kind == ReportFont::Body ? FW_NORMAL : FW_BOLD;
    log.lfCharSet = ANSI_CHARSET;
    std::strcpy(log.lfFaceName, FaceName(dc));
    if (!font.CreateFontIndirect(&log)) AfxThrowResourceException();
}

// A tick or a cross in white, two pixels thick, inside a disc of side kDisc at (x, y).
void DrawSign(CDC* dc, int x, int y, bool tick)
{
    CPen pen(PS_SOLID, 2, RGB(255, 255, 255));
    CPen* previous = dc->SelectObject(&pen);
    if (tick) {
        const POINT stroke[] = {{x + 4, y + 8}, {x + 7, y + 11}, {x + 12, y + 5}};
        dc->Polyline(stroke, 3);
    } else {
        const POINT down[] = {{x + 5, y + 5}, {x + 11, y + 11}}, up[] = {{x + 11, y + 5}, {x + 5, y + 11}};
        dc->Polyline(down, 2);
        dc->Polyline(up, 2);
    }
    dc->SelectObject(previous);
}

}  // namespace

void ReportText(CDC* dc, const char* text, const CRect& box, ReportFont font, COLORREF color, UINT format)
{
    CFont face;
    MakeFont(dc, face, font);
    CFont* previousFont = dc->SelectObject(&face);
    COLORREF previousColor = dc->SetTextColor(color);
    int previousMode = dc->SetBkMode(TRANSPARENT);
    CRect area = box;
    kiv_skin::KivTextOut::DrawString(dc, text, &area, format | DT_NOPREFIX);
    dc->SetBkMode(previousMode);
    dc->SetTextColor(previousColor);
    dc->SelectObject(previousFont);
}

void DrawVerdict(CDC* dc, const CRect& box, bool passes)
{
    COLORREF colour = passes ? kReportPass : kReportFail;
    int top = box.top + (box.Height() - kDisc) / 2;
    CBrush fill(colour);
    CPen edge(PS_SOLID, 1, colour);
    CBrush* previousBrush = dc->SelectObject(&fill);
    CPen* previousPen = dc->SelectObject(&edge);
    ::Ellipse(dc->m_hDC, box.left, top, box.left + kDisc, top + kDisc);
    dc->SelectObject(previousPen);
    dc->SelectObject(previousBrush);
    DrawSign(dc, box.left, top, passes);
    CRect word(box.left + kDisc + 6, box.top, box.right, box.bottom);
    ReportText(dc, passes ? "pass" : "FAIL", word, ReportFont::Bold, colour, DT_LEFT | kReportLine);
}

void FrameSwatch(CDC* dc, const CRect& swatch)
{
    CBrush rule(kReportRule);
    CRect frame = swatch;
    frame.InflateRect(1, 1);
    dc->FrameRect(&frame, &rule);
}

void DrawRule(CDC* dc, const CRect& box)
{
    dc->FillSolidRect(box.left, box.top, box.Width(), 1, kReportRule);
}
