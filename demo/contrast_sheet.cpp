#include "demo/contrast_sheet.h"
#include "demo/contrast_figures.h"
#include "demo/contrast_samples.h"
#include "demo/report_style.h"
#include <cstdio>
#include <iterator>
#include <string>

using kiv_skin::KivDraw;
using kivlint::InkKind;

namespace {

const int kMargin = 16;
const int kTitle = 30;
const int kIntro = 38;
const int kHeader = 26;
const int kGroup = 28;
const int kRow = 40;
const int kSectionGap = 24;
const int kGap = 12;

// The table's columns, left to right, and their widths.
enum Column { kSample, kPair, kColours, kRatio, kNeeds, kResult, kNearest, kColumnCount };
const int kWidths[kColumnCount] = {250, 480, 96, 62, 56, 76, 230};

CRect Cell(int column, int top, int height)
{
    int left = kMargin;
    for (int i = 0; i < column; ++i) left += kWidths[i] + kGap;
    return CRect(left, top, left + kWidths[column], top + height);
}

// The two halves of a cell, one line each.
CRect Upper(const CRect& cell) { return CRect(cell.left, cell.top + 2, cell.right, cell.top + cell.Height() / 2); }
CRect Lower(const CRect& cell) { return CRect(cell.left, cell.top + cell.Height() / 2, cell.right, cell.bottom - 2); }

// As the scheme files write it, 0x00BBGGRR.
std::string Hex(COLORREF colour)
{
    char text[16];
    std::snprintf(text, sizeof(text), "0x%08lX", static_cast<unsigned long>(colour));
    return text;
}

void Headings(CDC* dc, int top, const char* const* names)
{
    for (int column = 0; column < kColumnCount; ++column) {
        UINT align = column == kRatio || column == kNeeds ? DT_RIGHT : DT_LEFT;
        ReportText(dc, names[column], Cell(column, top, kHeader), ReportFont::Bold, kReportQuiet, align | kReportLine);
    }
}

// --- Drawn pairs ---------------------------------------------------------------------------

int PairsHeight()
{
    return kHeader + 2 * kGroup + static_cast<int>(kivlint::DrawnPairs().size()) * kRow;
}

void GroupHeading(CDC* dc, InkKind kind, int top)
{
    std::string text = kind == InkKind::Text ? "Text: needs " : "Lines, marks and icons: need ";
    text += Plain(kivlint::RequiredRatio(kind)) + ":1";
    CRect box(kMargin, top, Cell(kNearest, 0, 0).right, top + kGroup);
    ReportText(dc, text.c_str(), box, ReportFont::Bold, kReportInk, DT_LEFT | DT_BOTTOM | DT_SINGLELINE);
}

void NearestCell(CDC* dc, const PairFigure& figure, const CRect& cell)
{
    if (!figure.judged || figure.passes) {
        ReportText(dc, "-", cell, ReportFont::Body, kReportQuiet, DT_LEFT | kReportLine);
        return;
    }
    CRect swatch(cell.left, cell.top + 6, cell.left + 64, cell.bottom - 6);
    PaintNearestSample(dc, figure, swatch);
    FrameSwatch(dc, swatch);
    CRect text(swatch.right + 8, cell.top, cell.right, cell.bottom);
    double ratio = kivlint::ContrastRatio(figure.nearest, figure.ground);
    std::string value = Hex(figure.nearest) + "  " + Cut(ratio, 2) + ":1";
    ReportText(dc, value.c_str(), text, ReportFont::Body, kReportInk, DT_LEFT | kReportLine);
}

void PairRow(CDC* dc, KivDraw& kit, const PairFigure& figure, int top)
{
    DrawRule(dc, CRect(kMargin, top, Cell(kNearest, 0, 0).right, top + 1));
    CRect sample = Cell(kSample, top + 5, kRow - 10);
    PaintPairSample(dc, kit, figure, sample);
    FrameSwatch(dc, sample);
    CRect pair = Cell(kPair, top, kRow);
    std::string keys = std::string(figure.pair->ink) + "  on  " + figure.pair->ground;
    ReportText(dc, keys.c_str(), Upper(pair), ReportFont::Bold, kReportInk, DT_LEFT | kReportLine);
    ReportText(dc, figure.pair->what, Lower(pair), ReportFont::Body, kReportQuiet,
               DT_LEFT | kReportLine | DT_END_ELLIPSIS);
    CRect colours = Cell(kColours, top, kRow);
    ReportText(dc, Hex(figure.ink).c_str(), Upper(colours), ReportFont::Body, kReportInk, DT_LEFT | kReportLine);
    ReportText(dc, Hex(figure.ground).c_str(), Lower(colours), ReportFont::Body, kReportInk, DT_LEFT | kReportLine);
    std::string ratio = figure.judged ? Cut(figure.ratio, 2) + ":1" : "-";
    ReportText(dc, ratio.c_str(), Cell(kRatio, top, kRow), ReportFont::Bold, kReportInk, DT_RIGHT | kReportLine);
    std::string needed = Plain(figure.needed) + ":1";
    ReportText(dc, needed.c_str(), Cell(kNeeds, top, kRow), ReportFont::Body, kReportInk, DT_RIGHT | kReportLine);
    if (figure.judged)
        DrawVerdict(dc, Cell(kResult, top, kRow), figure.passes);
    else
        ReportText(dc, "no colour", Cell(kResult, top, kRow), ReportFont::Body, kReportQuiet, DT_LEFT | kReportLine);
    NearestCell(dc, figure, Cell(kNearest, top, kRow));
}

int DrawPairs(CDC* dc, int top)
{
    const char* const names[] = {"As drawn", "Ink  on  ground: what it is", "Ink, ground", "Ratio", "Needs",
                                 "Result", "Nearest passing ink"};
    Headings(dc, top, names);
    top += kHeader;
    KivDraw kit;
    const InkKind* previous = nullptr;
    for (const PairFigure& figure : PairFigures()) {
        if (previous == nullptr || *previous != figure.pair->kind) {
            GroupHeading(dc, figure.pair->kind, top);
            top += kGroup;
        }
        previous = &figure.pair->kind;
        PairRow(dc, kit, figure, top);
        top += kRow;
    }
    return top;
}

// --- Direction colours ---------------------------------------------------------------------

int DirectionsHeight() { return kTitle + kIntro + kHeader + static_cast<int>(std::size(kVisions)) * kRow; }

// What is needed and the verdict: judged under the deficiencies only.
void DirectionVerdict(CDC* dc, const DirectionFigure& figure, int top)
{
    CRect needs = Cell(kNeeds, top, kRow), result = Cell(kResult, top, kRow);
    if (figure.closest == nullptr || !figure.vision->simulated) {
        ReportText(dc, "-", needs, ReportFont::Body, kReportQuiet, DT_RIGHT | kReportLine);
        const char* why = figure.closest == nullptr ? "no colours" : "reference";
        ReportText(dc, why, result, ReportFont::Body, kReportQuiet, DT_LEFT | kReportLine);
        return;
    }
    std::string needed = Plain(kivlint::kDirectionDistance);
    ReportText(dc, needed.c_str(), needs, ReportFont::Body, kReportInk, DT_RIGHT | kReportLine);
    DrawVerdict(dc, result, figure.passes);
}

void DirectionRow(CDC* dc, KivDraw& kit, const DirectionFigure& figure, int top)
{
    DrawRule(dc, CRect(kMargin, top, Cell(kNearest, 0, 0).right, top + 1));
    CRect sample = Cell(kSample, top + 5, kRow - 10);
    PaintDirectionSample(dc, kit, *figure.vision, sample);
    FrameSwatch(dc, sample);
    CRect vision = Cell(kPair, top, kRow);
    ReportText(dc, figure.vision->name, Upper(vision), ReportFont::Bold, kReportInk, DT_LEFT | kReportLine);
    ReportText(dc, figure.vision->gloss, Lower(vision), ReportFont::Body, kReportQuiet, DT_LEFT | kReportLine);
    bool measured = figure.closest != nullptr;
    std::string distance = measured ? Cut(figure.distance, 1) : "-";
    ReportText(dc, distance.c_str(), Cell(kRatio, top, kRow), ReportFont::Bold, kReportInk, DT_RIGHT | kReportLine);
    DirectionVerdict(dc, figure, top);
    std::string closest = measured ? std::string(figure.closest->first) + "  and  " + figure.closest->second : "-";
    ReportText(dc, closest.c_str(), Cell(kNearest, top, kRow), ReportFont::Body, kReportInk, DT_LEFT | kReportLine);
}

void DrawDirections(CDC* dc, int top)
{
    CRect heading(kMargin, top, Cell(kNearest, 0, 0).right, top + kTitle);
    ReportText(dc, "Rise, flat and fall with each colour-vision deficiency", heading, ReportFont::Heading, kReportInk,
               DT_LEFT | kReportLine);
    CRect intro(kMargin, heading.bottom, heading.right, heading.bottom + kIntro);
    ReportText(dc,
               "The smallest CIEDE2000 distance between any two of UPTEXT, EQUTEXT and DOWNTEXT as seen (model of "
               "Machado et al., 2009); 10 is needed under each deficiency. The marks before +12.50 and -1.84 tell "
               "rise from fall without colour.",
               intro, ReportFont::Body, kReportQuiet, DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
    const char* const names[] = {"As seen", "Vision", "", "Distance", "Needs", "Result", "Closest two"};
    Headings(dc, intro.bottom, names);
    KivDraw kit;
    int row = intro.bottom + kHeader;
    for (const DirectionFigure& figure : DirectionFigures()) {
        DirectionRow(dc, kit, figure, row);
        row += kRow;
    }
}

}  // namespace

CSize ContrastSheetSize()
{
    int width = Cell(kNearest, 0, 0).right + kMargin;
    return CSize(width, kTitle + kIntro + PairsHeight() + kSectionGap + DirectionsHeight() + kMargin);
}

void DrawContrastSheet(CDC* dc, const char* title)
{
    CSize size = ContrastSheetSize();
    KivDraw::FillRect(dc, 0, 0, size.cx, size.cy, kReportPage);
    CRect heading(kMargin, 0, size.cx - kMargin, kTitle);
    ReportText(dc, title, heading, ReportFont::Heading, kReportInk, DT_LEFT | DT_BOTTOM | DT_SINGLELINE);
    CRect intro(kMargin, heading.bottom, size.cx - kMargin, heading.bottom + kIntro);
    ReportText(dc,
               "The contrast ratio of WCAG 2.x between each ink and the ground the library draws it on, as kivlint "
               "computes it. Where a pair fails, the last column gives the colour of the same hue, its lightness "
               "moved the least, that passes.",
               intro, ReportFont::Body, kReportQuiet, DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
    int bottom = DrawPairs(dc, intro.bottom);
    DrawDirections(dc, bottom + kSectionGap);
}
