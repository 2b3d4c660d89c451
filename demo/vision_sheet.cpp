#include "demo/vision_sheet.h"
#include "demo/contrast_figures.h"
#include "demo/panel.h"
#include "demo/report_style.h"
#include "demo/scheme_text.h"
#include <iterator>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

const int kMargin = 16;
const int kTitle = 34;
const int kLabel = 40;
const int kGap = 16;
const int kVisionCount = static_cast<int>(std::size(kVisions));

CSize PanelSize()
{
    Picture probe(1, 1, 0);
    return QuotePanelSize(probe.dc());
}

// A pixel of the picture (0x00RRGGBB) as a COLORREF, and back.
COLORREF ColourOf(uint32_t pixel) { return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF); }
uint32_t PixelOf(COLORREF colour)
{
    return uint32_t(GetRValue(colour)) << 16 | uint32_t(GetGValue(colour)) << 8 | GetBValue(colour);
}

// Maps every pixel of area through the vision; a panel holds few colours, each computed once.
void SeeArea(Picture& picture, const CRect& area, const Vision& vision)
{
    ::GdiFlush();
    std::unordered_map<uint32_t, uint32_t> seen;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x) {
            uint32_t& pixel = picture.bits()[y * picture.width() + x];
            auto known = seen.find(pixel & 0xFFFFFF);
            if (known == seen.end())
                known = seen.emplace(pixel & 0xFFFFFF, PixelOf(SeenAs(ColourOf(pixel), vision))).first;
            pixel = known->second;
        }
}

// The vision's name, what the reader lacks, how close the direction colours come, and the
// check's verdict.
void Label(CDC* dc, const DirectionFigure& figure, int left, int width)
{
    const Vision& vision = *figure.vision;
    CRect name(left, kTitle, left + width, kTitle + kLabel / 2);
    CRect detail(left, name.bottom, left + width, kTitle + kLabel);
    std::string capitalised = vision.name;
    capitalised[0] = static_cast<char>(capitalised[0] - 'a' + 'A');
    ReportText(dc, capitalised.c_str(), name, ReportFont::Bold, kReportInk, DT_LEFT | kReportLine);
    std::string text = vision.simulated ? vision.gloss : "as the scheme is";
    if (figure.closest != nullptr)
        text += std::string(";  closest: ") + figure.closest->first + " and " + figure.closest->second + ", " +
                Cut(figure.distance, 1) + " apart";
    ReportText(dc, text.c_str(), detail, ReportFont::Body, kReportQuiet, DT_LEFT | kReportLine);
    if (vision.simulated && figure.closest != nullptr) DrawVerdict(dc, CRect(name.right - 64, name.top, name.right, name.bottom), figure.passes);
}

}  // namespace

CSize VisionSheetSize()
{
    CSize panel = PanelSize();
    int width = 2 * kMargin + kVisionCount * panel.cx + (kVisionCount - 1) * kGap;
    return CSize(width, kTitle + kLabel + panel.cy + kMargin);
}

CRect VisionPanelArea(int index)
{
    CSize panel = PanelSize();
    int left = kMargin + index * (panel.cx + kGap);
    return CRect(left, kTitle + kLabel, left + panel.cx, kTitle + kLabel + panel.cy);
}

void DrawVisionSheet(Picture& sheet, const char* title)
{
    CSize size = VisionSheetSize(), panelSize = PanelSize();
    sheet.dc()->FillSolidRect(0, 0, size.cx, size.cy, kReportPage);
    CRect heading(kMargin, 0, size.cx - kMargin, kTitle);
    ReportText(sheet.dc(), title, heading, ReportFont::Heading, kReportInk, DT_LEFT | kReportLine);
    Picture panel(panelSize.cx, panelSize.cy, SchemeColor("BACKGROUND"));
    DrawQuotePanel(panel.dc());
    std::vector<DirectionFigure> figures = DirectionFigures();
    for (int i = 0; i < kVisionCount; ++i) {
        CRect area = VisionPanelArea(i);
        Label(sheet.dc(), figures[i], area.left, area.Width());
        sheet.dc()->BitBlt(area.left, area.top, area.Width(), area.Height(), panel.dc(), 0, 0, SRCCOPY);
        if (kVisions[i].simulated) SeeArea(sheet, area, kVisions[i]);
    }
}
