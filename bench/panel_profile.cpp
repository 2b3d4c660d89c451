// Where a panel repaint's time goes: every piece of the panel (draw_panel.h) timed alone, the
// kit's beside the raw calls that draw the same pixels, all in turn within each run, and their
// sum beside the whole panel timed in the same runs, so that what no piece accounts for shows.
// Then the panel's scheme look-ups, and the sign mark and the price taken apart into their calls.
#include "bench/panel_profile.h"
#include "bench/bench_timer.h"
#include "bench/draw_panel.h"
#include "kiv_skin/display/memo_dc.h"
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

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

// Something done by the kit and by hand, timed alternately in the same runs.
template <class Kit, class Raw> Row Pair(const char* what, Kit kit, Raw raw)
{
    Comparison c = Compare(kRuns, 20, [&](int) { kit(); }, [&](int) { raw(); });
    return {what, c.subject, c.baseline};
}

void PrintRow(const Row& r)
{
    std::printf("  %-46s %8.1f %8.1f %8.1f\n", r.what, r.kit, r.raw, r.kit - r.raw);
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

// A piece of the panel drawn by the kit and by hand. A part of the piece before it and a check
// of the pieces above are printed but not added up; the panels are the wholes the pieces sum to.
struct Piece {
    enum Kind { kPiece, kPart, kCheck, kPanel, kPanelWithoutPrices, kPanelBySteps };
    const char* what;
    std::function<void()> kit, raw;
    Kind kind = kPiece;
};

// Times every piece, kit and raw alternately, in turn within each run, so that what the machine
// does meanwhile falls on all of them alike; answers each side's medians.
std::vector<Row> TimeInTurn(const std::vector<Piece>& pieces, const std::function<void()>& beforeEachRun)
{
    std::vector<std::vector<double>> kit(pieces.size()), raw(pieces.size());
    for (int r = 0; r < kRuns; ++r) {
        beforeEachRun();
        for (size_t p = 0; p < pieces.size(); ++p) {
            auto byKit = [&](int) { pieces[p].kit(); };
            auto byHand = [&](int) { pieces[p].raw(); };
            if (r % 2 == 0) raw[p].push_back(MicrosecondsPerCall(20, byHand));
            kit[p].push_back(MicrosecondsPerCall(20, byKit));
            if (r % 2 != 0) raw[p].push_back(MicrosecondsPerCall(20, byHand));
        }
    }
    std::vector<Row> rows;
    for (size_t p = 0; p < pieces.size(); ++p) rows.push_back({pieces[p].what, Quantile(kit[p], 0.5), Quantile(raw[p], 0.5)});
    return rows;
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
    COLORREF ink = dc->GetTextColor();
    // The panel's 20 rows, caption and price in turn, as the kit draws them.
    auto kitRows = [&] {
        Rows([&](int i) {
            KitCaptionRow(dc, i);
            KitPriceRow(kit, dc, i);
        });
    };
    double fill = Cost([&] { PatBlt(hdc, 0, 0, kWidth, height, PATCOPY); });
    double unpainted = Cost([&] { RawSurface(handCanvas->m_hDC, height, false); });
    std::vector<Piece> pieces = {
        {"memory surface, made, filled, freed", [&] { CMemoDC memory(kitCanvas, kWidth, height, 0); },
         [&] { RawSurface(handCanvas->m_hDC, height, true); }},
        {"kit object / the raw panel's tools", [&] { KivDraw made; }, [&] { FreeRawTools(hdc, MakeRawTools(hdc)); }},
        {"frame", [&] { KitFrame(dc, height); }, [&] { RawFrame(hdc, tools, height); }},
        {"title", [&] { KitTitle(dc); }, [&] { RawTitle(hdc); }},
        {"row font and mode", [&] {
             CFont* previous = dc->SelectObject(const_cast<CFont*>(Scheme()->GetFont("PLUG_STDFONT")));
             dc->SetBkMode(TRANSPARENT);
             dc->SelectObject(previous);
         }, [&] { RawRowFont(hdc); }},
        {"20 captions", [&] { Rows([&](int i) { KitCaptionRow(dc, i); }); },
         [&] { Rows([&](int i) { RawCaptionRow(hdc, i); }); }},
        {"20 prices with their marks", [&] { Rows([&](int i) { KitPriceRow(kit, dc, i); }); },
         [&] { Rows([&](int i) { RawPriceRow(hdc, tools, i); }); }},
        {"  of them the 20 marks",
         [&] { Rows([&](int i) { kit.DrawArrow(dc, 265, 40 + 20 * i, 3 - i % 2, ink, 0, 1, false); }); },
         [&] { Rows([&](int i) { MarkByHand(hdc, tools.marks, 265, 40 + 20 * i, 3 - i % 2, 0); }); }, Piece::kPart},
        {"  the same 20 rows, caption and price in turn", kitRows, [&] {
             Rows([&](int i) {
                 RawCaptionRow(hdc, i);
                 RawPriceRow(hdc, tools, i);
             });
         }, Piece::kCheck},
        {"  the same, raw by the kit's steps for prices", kitRows, [&] {
             Rows([&](int i) {
                 RawCaptionRow(hdc, i);
                 RawPriceRowBySteps(hdc, i);
             });
         }, Piece::kCheck},
        {"axis", [&] { KitAxis(dc, height); }, [&] { RawAxis(hdc, tools, height); }},
        {"copy out", [&] { kitCanvas->BitBlt(0, 0, kWidth, height, dc, 0, 0, SRCCOPY); },
         [&] { BitBlt(handCanvas->m_hDC, 0, 0, kWidth, height, hdc, 0, 0, SRCCOPY); }},
        {"whole panel", [&] { PanelByKit(kitCanvas); }, [&] { PanelByHand(handCanvas); }, Piece::kPanel},
        {"panel without prices", [&] { PanelByKit(kitCanvas, kRows, false); },
         [&] { PanelByHand(handCanvas, kRows, kNoPrices); }, Piece::kPanelWithoutPrices},
        {"panel, raw by the kit's steps for prices", [&] { PanelByKit(kitCanvas); },
         [&] { PanelByHand(handCanvas, kRows, kPricesBySteps); }, Piece::kPanelBySteps},
    };
    // The raw axis leaves its pen and font selected; each run starts as the raw panel does.
    std::vector<Row> rows = TimeInTurn(pieces, [&] {
        SelectObject(hdc, tools.ink);
        RawRowFont(hdc);
    });
    SelectObject(hdc, previousFont);
    FreeRawTools(hdc, tools);
    kitSurface.SelectObject(previousKitFont);

    rows[0].raw -= fill;
    std::printf("  panel profile, medians in us per panel              kit      raw      gap\n");
    Row sum = {"sum of the pieces", 0, 0}, whole = sum, bare = sum, steps = sum;
    for (size_t p = 0; p < pieces.size(); ++p) {
        const Row& r = rows[p];
        if (pieces[p].kind == Piece::kPanel) whole = r;
        if (pieces[p].kind == Piece::kPanelWithoutPrices) bare = r;
        if (pieces[p].kind == Piece::kPanelBySteps) steps = r;
        if (pieces[p].kind >= Piece::kPanel) continue;
        PrintRow(r);
        if (p == 0)
            std::printf("    (raw: made, painted once and freed, less one paint of touched memory %.1f; made and\n"
                        "    freed unpainted %.1f: a new bitmap's memory is touched first by its first paint)\n",
                        fill, unpainted);
        if (pieces[p].kind != Piece::kPiece) continue;
        sum.kit += r.kit;
        sum.raw += r.raw;
    }
    PrintRow(sum);
    PrintRow({"whole panel, timed in the same runs", whole.kit, whole.raw});
    PrintRow({"not accounted for by the pieces", whole.kit - sum.kit, whole.raw - sum.raw});
    PrintRow({"the 20 prices within the whole panel", whole.kit - bare.kit, whole.raw - bare.raw});
    std::printf("    (the whole panel less the same panel without its prices)\n");
    PrintRow({"raw panel by the kit's steps for prices", whole.kit, steps.raw});
    std::printf("    (a marks context and an underline pen per price, alignment and position put back:\n"
                "    what the described steps of a price cost in raw GDI; ratio %.2f)\n", whole.kit / steps.raw);
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

// One sign mark taken apart: the same steps in raw GDI with a memory context of its own, the
// calls that context costs, and what the kit adds (its scheme look-up, the rest). Beside it, what
// a CMemoDC on the strip costs, which a mark no longer makes (its handle-map entries, its size).
void PrintMark(CDC* dc, HDC hdc)
{
    KivDraw kit;
    CBitmap* strip = const_cast<CBitmap*>(Scheme()->GetBitmap("KIV_MARK"));
    HDC spare = CreateCompatibleDC(hdc);
    BITMAP info;
    Comparison mark = Compare(kRuns, 20, [&](int) { kit.DrawArrow(dc, 265, 40, 3, 0, 0, 1, false); },
                              [&](int) { MarkWithItsContext(hdc, strip->m_hObject); });
    double lookup = Cost([&] { Scheme()->GetBitmap("KIV_MARK"); });
    double made = Cost([&] { DeleteDC(CreateCompatibleDC(hdc)); });
    double selects = Cost([&] { SelectObject(spare, SelectObject(spare, strip->m_hObject)); });
    double drawing = Cost([&] { MarkByHand(hdc, spare, 265, 40, 3, 0); });
    double memoDC = Cost([&] { CMemoDC marks(dc, strip); });
    double size = Cost([&] { GetObjectA(strip->m_hObject, sizeof info, &info); });
    DeleteDC(spare);
    std::printf("  one mark %.2f us, ratio %.2f (%.2f-%.2f) to its steps in raw GDI, %.2f us: CreateCompatibleDC and\n"
                "  DeleteDC %.2f, the strip selected and put back %.2f, the copies and colours %.2f, the rest (the\n"
                "  first copies from a new context) %.2f; the kit's own: its scheme look-up %.2f, the rest %.2f.\n"
                "  A CMemoDC on the strip, as marks made before: %.2f us (its size read %.2f)\n",
                mark.subject, mark.ratio, mark.ratioLow, mark.ratioHigh, mark.baseline, made, selects, drawing,
                mark.baseline - made - selects - drawing, lookup, mark.subject - mark.baseline - lookup, memoDC, size);
}

// The kit's 20 prices beside the same steps in raw GDI, both on the kit's canvas.
void PrintPrices(CDC* dc)
{
    KivDraw kit;
    Comparison c = Compare(kRuns, 20, [&](int) { Rows([&](int i) { KitPriceRow(kit, dc, i); }); },
                           [&](int) { Rows([&](int i) { RawPriceRowBySteps(dc->m_hDC, i); }); });
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
