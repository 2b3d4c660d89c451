#include "demo/contrast_samples.h"
#include "demo/scheme_text.h"
#include <cstring>

using kiv_skin::KivDraw;

namespace {

const COLORREF kNoBackground = 0xFFFFFFFF;
// 1688.00 +12.50 贵州茅台 Moutai: a price and a few Chinese and Latin characters.
const char kTextSample[] = "1688.00 +12.50 \xE8\xB4\xB5\xE5\xB7\x9E\xE8\x8C\x85\xE5\x8F\xB0 Moutai";

bool Is(const char* key, const char* name) { return std::strcmp(key, name) == 0; }

// The font each ink is written in where the library writes it.
const char* FontOf(const char* ink)
{
    if (Is(ink, "PLUG_TITLE_TEXT")) return "PLUG_TITLE";
    if (Is(ink, "AXIS")) return "SMALL";
    return "PLUG_STDFONT";
}

void WithPen(CDC* dc, COLORREF colour, void (*draw)(CDC*, const CRect&), const CRect& area)
{
    CPen pen(PS_SOLID, 1, colour);
    CPen* previous = dc->SelectObject(&pen);
    draw(dc, area);
    dc->SelectObject(previous);
}

// --- Lines and frames, in the selected pen ----------------------------------------------------

// The scroll bar's separators: a line along the track and short ones across it.
void Separators(CDC* dc, const CRect& area)
{
    int middle = area.top + area.Height() / 2;
    dc->MoveTo(area.left + 8, middle);
    dc->LineTo(area.right - 8, middle);
    for (int x = area.left + 24; x < area.right - 8; x += 36) {
        dc->MoveTo(x, area.top + 5);
        dc->LineTo(x, area.bottom - 5);
    }
}

// The frame of the scroll bar's pieces: an arrow's square, the track and the thumb.
void PieceFrames(CDC* dc, const CRect& area)
{
    const int widths[] = {20, 120, 48, 20};
    int x = area.left + 8;
    for (int width : widths) {
        CRect box(x, area.top + 6, x + width - 1, area.bottom - 7);
        KivDraw::RectangleLine(dc, &box);
        x += width + 6;
    }
}

// --- Graphic samples -------------------------------------------------------------------------

KivDraw::BUTTON_STATE StateOf(const char* ground)
{
    if (Is(ground, "PLUG_BTN_BGCOLOR_HOVER")) return KivDraw::BUTTON_HOVER;
    if (Is(ground, "PLUG_BTN_BGCOLOR_PRESSED")) return KivDraw::BUTTON_PRESSED;
    return KivDraw::BUTTON_NORMAL;
}

// Four icons of the tool strip on the state's face, framed unless at rest, as the toolbar has them.
void ButtonGlyphs(CDC* dc, KivDraw& kit, const PairFigure& figure, const CRect& area)
{
    const int icons[] = {4, 5, 8, 0};  // settings, refresh, search, close
    KivDraw::BUTTON_STATE state = StateOf(figure.pair->ground);
    for (int i = 0; i < 4; ++i) {
        CRect button(area.left + 8 + i * 28, area.top + 4, area.left + 30 + i * 28, area.bottom - 4);
        kit.DrawButton(dc, &button, state, icons[i], 0, state != KivDraw::BUTTON_NORMAL);
    }
}

void SelectionFrame(CDC* dc, KivDraw&, const PairFigure&, const CRect& area)
{
    CRect row(area.left + 8, area.top + 5, area.right - 8, area.bottom - 5);
    KivDraw::DrawPluginSelect(dc, &row, 1, PS_SOLID, 0);
}

void DisabledArrows(CDC* dc, KivDraw& kit, const PairFigure& figure, const CRect& area)
{
    for (int direction = 0; direction < 4; ++direction) {
        CRect face(area.left + 8 + direction * 26, area.top + 4, area.left + 30 + direction * 26, area.bottom - 4);
        kit.DrawArrowButton(dc, &face, figure.ink, kNoBackground, direction, 0);
    }
}

void SeparatorLines(CDC* dc, KivDraw&, const PairFigure& figure, const CRect& area)
{
    WithPen(dc, figure.ink, Separators, area);
}

void FrameLines(CDC* dc, KivDraw&, const PairFigure& figure, const CRect& area)
{
    WithPen(dc, figure.ink, PieceFrames, area);
}

// Any other graphic ink: the kit's rise and fall marks and a one-pixel line.
void MarksAndLine(CDC* dc, KivDraw& kit, const PairFigure& figure, const CRect& area)
{
    for (int mark = 0; mark < 4; ++mark)
        kit.DrawArrow(dc, area.left + 18 + mark * 20, area.top + area.Height() / 2, mark, figure.ink, 0, 1, false);
    CRect line(area.left + 100, area.top + area.Height() / 2, area.right - 8, area.top + area.Height() / 2 + 1);
    KivDraw::FillRect(dc, &line, figure.ink);
}

struct GraphicSample {
    const char* ink;
    void (*paint)(CDC* dc, KivDraw& kit, const PairFigure& figure, const CRect& area);
};

const GraphicSample kGraphicSamples[] = {
    {"PLUG_BTN_TEXTCOLOR", ButtonGlyphs}, {"PLUG_SELCOLOR", SelectionFrame}, {"SCROLLBARTEXT", DisabledArrows},
    {"AXIS", SeparatorLines},             {"SCROLLBARLINE", FrameLines},
};

void PaintGraphic(CDC* dc, KivDraw& kit, const PairFigure& figure, const CRect& area)
{
    for (const GraphicSample& sample : kGraphicSamples)
        if (Is(sample.ink, figure.pair->ink)) return sample.paint(dc, kit, figure, area);
    MarksAndLine(dc, kit, figure, area);
}

}  // namespace

void PaintPairSample(CDC* dc, KivDraw& kit, const PairFigure& figure, const CRect& swatch)
{
    KivDraw::FillRect(dc, &swatch, figure.ground);
    if (figure.pair->kind == kivlint::InkKind::Graphic) return PaintGraphic(dc, kit, figure, swatch);
    CRect text(swatch.left + 8, swatch.top, swatch.right - 4, swatch.bottom);
    WriteText(dc, kTextSample, text, FontOf(figure.pair->ink), figure.ink, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
}

void PaintNearestSample(CDC* dc, const PairFigure& figure, const CRect& swatch)
{
    KivDraw::FillRect(dc, &swatch, figure.ground);
    if (figure.pair->kind == kivlint::InkKind::Text) {
        const UINT centred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
        WriteText(dc, "+12.50", swatch, FontOf(figure.pair->ink), figure.nearest, centred);
        return;
    }
    KivDraw kit;
    CRect arrow(swatch.left + 4, swatch.top + 2, swatch.left + swatch.Height(), swatch.bottom - 2);
    kit.DrawArrowButton(dc, &arrow, figure.nearest, kNoBackground, 3, 0);
    int middle = swatch.top + swatch.Height() / 2;
    CRect line(arrow.right + 2, middle, swatch.right - 4, middle + 1);
    KivDraw::FillRect(dc, &line, figure.nearest);
}

void PaintDirectionSample(CDC* dc, KivDraw& kit, const Vision& vision, const CRect& swatch)
{
    KivDraw::FillRect(dc, &swatch, SeenAs(SchemeColor("PLUG_BGCOLOR"), vision));
    const char* keys[] = {"UPTEXT", "EQUTEXT", "DOWNTEXT"};
    const char* prices[] = {"+12.50", "45.60", "-1.84"};
    int pitch = swatch.Width() / 3;
    for (int i = 0; i < 3; ++i) {
        COLORREF seen = SeenAs(SchemeColor(keys[i]), vision);
        int left = swatch.left + i * pitch;
        KivDraw::FillRect(dc, left + 8, swatch.top + 8, 12, swatch.Height() - 16, seen);
        SchemeTextStyle style(dc, "PLUG_STDFONT", seen);
        UINT align = dc->SetTextAlign(TA_RIGHT | TA_TOP);
        int top = swatch.top + (swatch.Height() - LineHeight(dc, "PLUG_STDFONT")) / 2;
        kit.DrawUL(dc, left + pitch - 8, top, prices[i], 1);
        dc->SetTextAlign(align);
    }
}
