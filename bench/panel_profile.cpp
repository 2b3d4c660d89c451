// Where a panel repaint's time goes: every piece of the panel (draw_panel.h) timed alone, the
// kit's beside the raw calls that draw the same pixels, and their sum beside the whole panel
// timed in the same run, so that what no piece accounts for shows as such. Then the sign mark
// and the price taken apart into the calls they make.
#include "bench/panel_profile.h"
#include "bench/bench_timer.h"
#include "bench/draw_panel.h"
#include "kiv_skin/display/memo_dc.h"
#include <cstdio>
#include <cstring>

using namespace panel;
using kiv_skin::CMemoDC;
using kiv_skin::KivDraw;

namespace {

const int kRuns = 41;

// Median microseconds of one call of work, 20 calls a run.
template <class Work> double Cost(Work work) { return MedianMicroseconds(kRuns, 20, [&](int) { work(); }); }

struct Row {
    const char* what;
    double kit, raw;
};

// A piece drawn by the kit and by hand, timed alternately in the same runs; less is taken off
// the raw side's median.
template <class Kit, class Raw> Row Pair(const char* what, Kit kit, Raw raw, double less = 0)
{
    Comparison c = Compare(kRuns, 20, [&](int) { kit(); }, [&](int) { raw(); });
    return {what, c.subject, c.baseline - less};
}

void PrintRow(const Row& r)
{
    std::printf("  %-38s %8.1f %8.1f %8.1f\n", r.what, r.kit, r.raw, r.kit - r.raw);
}

// A memory context and bitmap as the raw panel makes them, freed after one PatBlt (white, the
// context's own brush) when painted: the first paint of a new bitmap is where its memory is
// first touched, which the raw panel pays in its frame and the kit's surface in its fill.
void RawSurface(HDC target, int height, bool painted)
{
    HDC hdc = CreateCompatibleDC(target);
    HBITMAP bitmap = CreateCompatibleBitmap(target, kWidth, height);
    HGDIOBJ previous = SelectObject(hdc, bitmap);
    if (painted) PatBlt(hdc, 0, 0, kWidth, height, PATCOPY);
    SelectObject(hdc, previous);
    DeleteObject(bitmap);
    DeleteDC(hdc);
}

// A panel's memory surface for the raw side, with the rows' font and mode as the panel sets them.
class RawSurfaceDC : public CDC {
public:
    RawSurfaceDC(CDC* target, int height)
    {
        Attach(::CreateCompatibleDC(target->m_hDC));
        m_previous = ::SelectObject(m_hDC, ::CreateCompatibleBitmap(target->m_hDC, kWidth, height));
        RawRowFont(m_hDC);
    }
    ~RawSurfaceDC() override { ::DeleteObject(::SelectObject(m_hDC, m_previous)); }

private:
    HGDIOBJ m_previous;
};

template <class Each> void Rows(Each each)
{
    for (int i = 0; i < kRows; ++i) each(i);
}

// The panel's pieces in the order it draws them, each timed in a memory surface as the panel
// draws it, with their total beside the whole panel drawn on the canvases.
void PrintPieces(CDC* kitCanvas, CDC* handCanvas)
{
    const int height = Height(kRows);
    CMemoDC kitSurface(kitCanvas, kWidth, height, 0);
    CFont* previousKitFont = kitSurface.SelectObject(const_cast<CFont*>(Scheme()->GetFont("PLUG_STDFONT")));
    kitSurface.SetBkMode(TRANSPARENT);
    RawSurfaceDC handSurface(handCanvas, height);
    CDC* dc = &kitSurface;
    HDC hdc = handSurface.m_hDC;
    KivDraw kit;
    RawTools tools = MakeRawTools(hdc);
    HGDIOBJ previousFont = RawTitle(hdc);
    RawRowFont(hdc);
    COLORREF ink = dc->GetTextColor();
    double fill = Cost([&] { PatBlt(hdc, 0, 0, kWidth, height, PATCOPY); });
    Row rows[] = {
        Pair("memory surface, made, filled, freed", [&] { CMemoDC memory(kitCanvas, kWidth, height, 0); },
             [&] { RawSurface(handCanvas->m_hDC, height, true); }, fill),
        Pair("kit object / the raw panel's tools", [&] { KivDraw made; }, [&] { FreeRawTools(hdc, MakeRawTools(hdc)); }),
        Pair("frame", [&] { KitFrame(dc, height); }, [&] { RawFrame(hdc, tools, height); }),
        Pair("title", [&] { KitTitle(dc); }, [&] { RawTitle(hdc); }),
        Pair("row font and mode", [&] {
            CFont* previous = dc->SelectObject(const_cast<CFont*>(Scheme()->GetFont("PLUG_STDFONT")));
            dc->SetBkMode(TRANSPARENT);
            dc->SelectObject(previous);
        }, [&] { RawRowFont(hdc); }),
        Pair("20 captions", [&] { Rows([&](int i) { KitCaptionRow(dc, i); }); },
             [&] { Rows([&](int i) { RawCaptionRow(hdc, i); }); }),
        Pair("20 prices with their marks", [&] { Rows([&](int i) { KitPriceRow(kit, dc, i); }); },
             [&] { Rows([&](int i) { RawPriceRow(hdc, tools, i); }); }),
        Pair("  the same 20 rows, caption and price in turn", [&] {
            Rows([&](int i) {
                KitCaptionRow(dc, i);
                KitPriceRow(kit, dc, i);
            });
        }, [&] {
            Rows([&](int i) {
                RawCaptionRow(hdc, i);
                RawPriceRow(hdc, tools, i);
            });
        }),
        Pair("axis", [&] { KitAxis(dc, height); }, [&] { RawAxis(hdc, tools, height); }),
        Pair("copy out", [&] { kitCanvas->BitBlt(0, 0, kWidth, height, dc, 0, 0, SRCCOPY); },
             [&] { BitBlt(handCanvas->m_hDC, 0, 0, kWidth, height, hdc, 0, 0, SRCCOPY); }),
    };
    RawRowFont(hdc);
    Row marks = Pair("  of them the 20 marks", [&] {
        Rows([&](int i) { kit.DrawArrow(dc, 265, 40 + 20 * i, 3 - i % 2, ink, 0, 1, false); });
    }, [&] { Rows([&](int i) { MarkByHand(hdc, tools.marks, 265, 40 + 20 * i, 3 - i % 2, 0); }); });
    double unpainted = Cost([&] { RawSurface(handCanvas->m_hDC, height, false); });
    Comparison whole =
        Compare(kRuns, 20, [&](int) { PanelByKit(kitCanvas); }, [&](int) { PanelByHand(handCanvas); });
    Comparison bare =
        Compare(kRuns, 20, [&](int) { PanelByKit(kitCanvas, kRows, false); }, [&](int) { PanelByHand(handCanvas, kRows, false); });
    SelectObject(hdc, previousFont);
    FreeRawTools(hdc, tools);
    kitSurface.SelectObject(previousKitFont);

    std::printf("  panel profile, us per panel             kit      raw      gap\n");
    Row sum = {"sum of the pieces", 0, 0};
    for (const Row& r : rows) {
        PrintRow(r);
        if (&r == &rows[0])
            std::printf("    (raw: made, painted once and freed, less one paint of touched memory %.1f; made and\n"
                        "    freed unpainted %.1f: a new bitmap's memory is touched first by its first paint)\n",
                        fill, unpainted);
        if (&r == &rows[6]) PrintRow(marks);
        if (r.what[0] == ' ') continue;  // a check of the rows above, not a piece
        sum.kit += r.kit;
        sum.raw += r.raw;
    }
    PrintRow(sum);
    PrintRow({"whole panel, timed in the same run", whole.subject, whole.baseline});
    PrintRow({"not accounted for by the pieces", whole.subject - sum.kit, whole.baseline - sum.raw});
    PrintRow({"the 20 prices within the whole panel", whole.subject - bare.subject, whole.baseline - bare.baseline});
    std::printf("    (the whole panel less the same panel without its prices)\n");
}

// A mark in raw GDI with a memory context of its own, made, selected and freed around the copies.
void MarkWithItsContext(HDC hdc, HGDIOBJ strip)
{
    HDC marks = CreateCompatibleDC(hdc);
    HGDIOBJ previous = SelectObject(marks, strip);
    MarkByHand(hdc, marks, 265, 40, 3, 0);
    SelectObject(marks, previous);
    DeleteDC(marks);
}

// One sign mark taken apart: the scheme look-up, its memory context (and the raw calls that
// context makes), and the two copies with their colours, which the raw mark also makes.
void PrintMark(CDC* dc, HDC hdc)
{
    KivDraw kit;
    CBitmap* strip = const_cast<CBitmap*>(Scheme()->GetBitmap("KIV_MARK"));
    HDC spare = CreateCompatibleDC(hdc);
    BITMAP info;
    double mark = Cost([&] { kit.DrawArrow(dc, 265, 40, 3, 0, 0, 1, false); });
    double lookup = Cost([&] { Scheme()->GetBitmap("KIV_MARK"); });
    double context = Cost([&] { CMemoDC marks(dc, strip); });
    double made = Cost([&] { DeleteDC(CreateCompatibleDC(hdc)); });
    double selects = Cost([&] { SelectObject(spare, SelectObject(spare, strip->m_hObject)); });
    double size = Cost([&] { GetObjectA(strip->m_hObject, sizeof info, &info); });
    double drawing = Cost([&] { MarkByHand(hdc, spare, 265, 40, 3, 0); });
    double own = Cost([&] { MarkWithItsContext(hdc, strip->m_hObject); });
    DeleteDC(spare);
    std::printf("  one mark %.2f us: scheme look-up %.2f, memory context %.2f (CreateCompatibleDC and DeleteDC %.2f,\n"
                "  the strip selected and put back %.2f, its size read %.2f, the framework's handle maps and the\n"
                "  rest %.2f), the copies and colours as raw GDI makes them %.2f; the rest %.2f. In raw GDI\n"
                "  with a context of its own, as the mark's steps make one: %.2f us\n",
                mark, lookup, context, made, selects, size, context - made - selects - size, drawing,
                mark - lookup - context - drawing, own);
}

// A price in raw GDI as the kit's steps draw it: its alignment kept and put back, the mark with
// a memory context of its own, the underline with a pen of its own, the position put back.
void PriceBySteps(HDC hdc, HGDIOBJ strip, int x, int y, const char* price)
{
    const char* point = std::strrchr(price, '.');
    const char* integral = price + 1;
    int wholeLength = static_cast<int>(point - integral), partLength = static_cast<int>(std::strlen(point + 1));
    SIZE whole, part;
    GetTextExtentPoint32A(hdc, integral, wholeLength, &whole);
    GetTextExtentPoint32A(hdc, point + 1, partLength, &part);
    UINT align = GetTextAlign(hdc);
    SetTextAlign(hdc, align & ~(TA_RIGHT | TA_CENTER));
    ExtTextOutA(hdc, x + 11, y, 0, nullptr, integral, wholeLength, nullptr);
    ExtTextOutA(hdc, x + 11 + whole.cx, y, 0, nullptr, point + 1, partLength, nullptr);
    HDC marks = CreateCompatibleDC(hdc);
    HGDIOBJ previousStrip = SelectObject(marks, strip);
    MarkByHand(hdc, marks, x + 5, y + whole.cy - 8, price[0] == '+' ? 3 : 2, GetTextColor(hdc));
    SelectObject(marks, previousStrip);
    DeleteDC(marks);
    HPEN pen = CreatePen(PS_SOLID, 1, GetTextColor(hdc));
    HGDIOBJ previousPen = SelectObject(hdc, pen);
    POINT position;
    MoveToEx(hdc, x + 11 + whole.cx, y + whole.cy - 1, &position);
    LineTo(hdc, x + 11 + whole.cx + part.cx, y + whole.cy - 1);
    MoveToEx(hdc, position.x, position.y, nullptr);
    DeleteObject(SelectObject(hdc, previousPen));
    SetTextAlign(hdc, align);
}

// The kit's 20 prices beside the same steps in raw GDI, both on the kit's canvas.
void PrintPrices(CDC* dc)
{
    KivDraw kit;
    HGDIOBJ strip = Scheme()->GetBitmap("KIV_MARK")->m_hObject;
    Comparison c = Compare(kRuns, 20, [&](int) { Rows([&](int i) { KitPriceRow(kit, dc, i); }); },
                           [&](int) { Rows([&](int i) { PriceBySteps(dc->m_hDC, strip, 260, 28 + 20 * i, kPrices[i % 2]); }); });
    std::printf("  20 prices %.1f us; the same steps in raw GDI (a marks context and an underline pen per price,\n"
                "  alignment and position put back) %.1f us, ratio %.2f (%.2f-%.2f)\n", c.subject, c.baseline,
                c.ratio, c.ratioLow, c.ratioHigh);
}

// The scheme look-ups of one panel, which every piece above makes at drawing time: the kit's 46
// colours (two per caption, the frame's, title's, axis's and the kit object's), 3 fonts and 22
// bitmaps (one per mark, two for the kit object); the raw panel's 46 colours, 3 fonts, 1 bitmap.
void PrintLookups()
{
    const char* const colours[6] = {"PLUG_BGCOLOR", "PLUG_FRAME", "PLUG_TITLE_BGCOLOR", "PLUG_TITLE_TEXT", "AXIS", "PLUG_FRAME"};
    const char* const fonts[3] = {"PLUG_TITLE", "PLUG_STDFONT", "SMALL"};
    auto common = [&] {
        for (const char* key : colours) Scheme()->GetColor(key);
        Rows([&](int) {
            Scheme()->GetColor("UPTEXT");
            Scheme()->GetColor("EQUTEXT");
        });
        for (const char* key : fonts) Scheme()->GetFont(key);
    };
    Row lookups = Pair("scheme look-ups", [&] {
        common();
        Scheme()->GetBitmap("KIV_DOT");
        Scheme()->GetBitmap("KIV_FRAME");
        Rows([&](int) { Scheme()->GetBitmap("KIV_MARK"); });
    }, [&] {
        common();
        Scheme()->GetBitmap("KIV_MARK");
    });
    std::printf("  of the pieces above, their scheme look-ups (kit: 46 colours, 3 fonts, 22 bitmaps; raw: 46, 3, 1):\n"
                "  kit %.1f us, raw %.1f us\n", lookups.kit, lookups.raw);
}

}  // namespace

void PrintPanelProfile(DibCanvas& kit, DibCanvas& hand)
{
    PrintPieces(kit.dc(), hand.dc());
    PrintLookups();
    PrintMark(kit.dc(), hand.dc()->m_hDC);
    PrintPrices(kit.dc());
}
