// Drawing costs against raw GDI, measured alternately in the same run on the dark sample scheme
// (code page 936, so that its fonts resolve as in the terminal's Chinese editions):
// - a rich-text caption against ExtTextOutW of the same text with the colours switched by hand;
// - a panel repaint (frame, title bar, 20 markup rows, a price column, an axis) against the same
//   pixels drawn with the fewest raw GDI calls, into one memory context copied out once; the two
//   pictures are compared pixel by pixel first;
// - a scheme switch as a user feels it: LoadStyle followed by the repaint of 20 panels, beside
//   its platform floor (LoadImage of the scheme's bitmap files) and 20 raw-GDI panels;
// - the growth: a caption against its number of tags, a panel against its number of rows.
// The machine's load is printed first: on a shared machine only same-run ratios mean much.
#include "bench/bench_timer.h"
#include "bench/draw_panel.h"
#include "bench/panel_profile.h"
#include "kiv_skin/style/style_catalogue.h"
#include "support/dib_canvas.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <tinyxml.h>
#include <vector>

using namespace kiv_skin;
using namespace panel;

namespace {

const int kRuns = 41;

// How many pixels two canvases hold differently.
int Differences(const DibCanvas& a, const DibCanvas& b)
{
    int n = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) n += a.Pixel(x, y) != b.Pixel(x, y) ? 1 : 0;
    return n;
}

// A ratio means something only when both sides drew the same picture: the kit and raw GDI may
// differ in no pixel at all. Says so, and whether the ratio may be printed.
const int kPixelTolerance = 0;

bool WithinTolerance(const char* what, int differing)
{
    if (differing <= kPixelTolerance) return true;
    std::fprintf(stderr, "%s: the kit's picture is not raw GDI's; no ratio is printed\n", what);
    return false;
}

bool SamePicture(const char* what, const DibCanvas& kit, const DibCanvas& hand)
{
    int differing = Differences(kit, hand);
    std::printf("%s pixels differing from raw GDI's: %d of %d (tolerance %d)\n", what, differing,
                kit.width() * kit.height(), kPixelTolerance);
    return WithinTolerance(what, differing);
}

// --- The caption ------------------------------------------------------------------------------

void CaptionByKit(CDC* dc)
{
    CRect rect(0, 0, kWidth, kRowHeight);
    KivDraw::DrawRichText(dc, &rect, kCaption, CRect(4, 2, 0, 0), 0, 100);
}

// Where a caption's time goes: the raw calls the kit makes for it, each timed alone. Per text run
// the kit measures it while measuring and draws it while drawing; the cut-text walk reads the
// widths of the codes of all runs at once; it reads the context's colours, mode and font once,
// sets the tags' colours while drawing and puts back the text colour.
void PrintCaptionProfile(HDC hdc, double caption)
{
    SIZE size;
    int widths[16];
    LOGFONTA font;
    auto cost = [](auto call) { return MedianMicroseconds(kRuns, 200, [&](int) { call(); }); };
    double extent = cost([&] { GetTextExtentPoint32W(hdc, L" 1688.00", 8, &size); });
    double charWidths = cost([&] { GetCharWidthA(hdc, '/', '8', widths); });
    double draw = cost([&] { ExtTextOutW(hdc, 0, 0, 0, nullptr, L" 1688.00", 8, nullptr); });
    double state = cost([&] {
        GetObjectA(GetCurrentObject(hdc, OBJ_FONT), sizeof(font), &font);
        SetTextColor(hdc, GetTextColor(hdc));
        SetBkColor(hdc, GetBkColor(hdc));
        SetBkMode(hdc, GetBkMode(hdc));
    });
    double colour = cost([&] { SetTextColor(hdc, GetTextColor(hdc)); });
    double gdi = 3 * (extent + draw) + charWidths + state + 4 * colour;
    CDC* dc = CDC::FromHandle(hdc);
    CRect rect(0, 0, kWidth, kRowHeight);
    double empty = cost([&] { KivDraw::DrawRichText(dc, &rect, "", CRect(4, 2, 0, 0), 0, 100); });
    double tags = cost([&] {
        KivDraw::DrawRichText(dc, &rect, "<*sc=UPTEXT*><*sc=EQUTEXT*><*c=FF*>", CRect(4, 2, 0, 0), 0, 100);
    });
    std::printf("  an empty line costs %.1f us (two drawing states), its three colour tags alone %.1f us\n", empty, tags);
    double lookup = cost([&] { Scheme()->GetColor("UPTEXT"); });
    unsigned hex = 0;
    double scan = cost([&] { std::sscanf("FF", "%X", &hex); });
    std::printf("  one scheme colour look-up %.2f us, one hexadecimal scan %.2f us\n", lookup, scan);
    std::printf("  caption profile: 3 text extents %.1f us, 1 width read %.1f us, 3 text draws %.1f us,\n"
                "  1 state save and restore %.1f us, 4 colour sets %.1f us; the rest (parsing, tag and\n"
                "  scheme look-ups, conversions) %.1f us\n",
                3 * extent, charWidths, 3 * draw, state, 4 * colour, caption - gdi);
}

void Print(const char* what, const Comparison& c, const char* goal)
{
    std::printf("%-34s %8.1f us, raw GDI %8.1f us, ratio %5.2f (%.2f-%.2f); goal %s\n", what, c.subject, c.baseline,
                c.ratio, c.ratioLow, c.ratioHigh, goal);
}

void PrintLoad()
{
    char load[128] = "unknown";
    if (FILE* f = std::fopen("/proc/loadavg", "r")) {
        if (!std::fgets(load, sizeof load, f)) std::strcpy(load, "unreadable\n");
        std::fclose(f);
    }
    std::printf("machine load (1, 5, 15 min; /proc/loadavg): %s", load);
}

// --- Growth -------------------------------------------------------------------------------------

const char* const kGrowthTags[3] = {"<*sc=UPTEXT*>", "<*sc=EQUTEXT*>", "<*c=FF*>"};
const wchar_t kGrowthText[] = L"1.25 ";

std::string GrowthCaption(int tags)
{
    std::string markup;
    for (int i = 0; i < tags; ++i) markup += std::string(kGrowthTags[i % 3]) + "1.25 ";
    return markup;
}

void GrowthByHand(HDC hdc, int tags)
{
    const COLORREF inks[3] = {Scheme()->GetColor("UPTEXT"), Scheme()->GetColor("EQUTEXT"), RGB(255, 0, 0)};
    UINT align = SetTextAlign(hdc, TA_UPDATECP);
    POINT position;
    MoveToEx(hdc, 4, 2, &position);
    COLORREF ink = GetTextColor(hdc);
    for (int i = 0; i < tags; ++i) {
        SetTextColor(hdc, inks[i % 3]);
        ExtTextOutW(hdc, 0, 0, 0, nullptr, kGrowthText, 5, nullptr);
    }
    SetTextColor(hdc, ink);
    MoveToEx(hdc, position.x, position.y, nullptr);
    SetTextAlign(hdc, align);
}

// Caption cost against its number of tags (each a colour tag and a five-character run); false,
// with no ratio, when a picture is not raw GDI's.
bool PrintCaptionGrowth()
{
    const int width = 2400;
    DibCanvas kit(width, kRowHeight), hand(width, kRowHeight);
    HGDIOBJ fonts[2];
    for (DibCanvas* t : {&kit, &hand}) {
        fonts[t == &hand] = SelectObject(t->dc()->m_hDC, SchemeFontHandle("PLUG_STDFONT"));
        SetBkMode(t->dc()->m_hDC, TRANSPARENT);
    }
    std::printf("caption growth    tags   kit us   raw us   ratio (10th-90th)   pixels differing\n");
    bool same = true;
    for (int tags : {1, 3, 10, 30}) {
        std::string markup = GrowthCaption(tags);
        CRect rect(0, 0, width, kRowHeight);
        auto byKit = [&](int) { KivDraw::DrawRichText(kit.dc(), &rect, markup.c_str(), CRect(4, 2, 0, 0), 0, 100); };
        auto byHand = [&](int) { GrowthByHand(hand.dc()->m_hDC, tags); };
        kit.Fill(RGB(255, 255, 255));
        hand.Fill(RGB(255, 255, 255));
        byKit(0);
        byHand(0);
        int differing = Differences(kit, hand);
        if (!(same = WithinTolerance("caption growth", differing))) break;
        Comparison c = Compare(kRuns, 2000 / (tags + 4), byKit, byHand);
        std::printf("                  %4d %8.1f %8.1f   %5.2f (%.2f-%.2f)   %d\n", tags, c.subject, c.baseline, c.ratio,
                    c.ratioLow, c.ratioHigh, differing);
    }
    for (DibCanvas* t : {&kit, &hand}) SelectObject(t->dc()->m_hDC, fonts[t == &hand]);
    return same;
}

// Panel cost against its number of rows; false, with no ratio, when a picture is not raw GDI's.
bool PrintPanelGrowth()
{
    std::printf("panel growth      rows   kit us   raw us   ratio (10th-90th)   pixels differing\n");
    for (int rows : {5, 20, 80}) {
        DibCanvas kit(kWidth, Height(rows)), hand(kWidth, Height(rows));
        PanelByKit(kit.dc(), rows);
        PanelByHand(hand.dc(), rows);
        int differing = Differences(kit, hand);
        if (!WithinTolerance("panel growth", differing)) return false;
        Comparison c = Compare(kRuns, 400 / rows, [&](int) { PanelByKit(kit.dc(), rows); },
                               [&](int) { PanelByHand(hand.dc(), rows); });
        std::printf("                  %4d %8.1f %8.1f   %5.2f (%.2f-%.2f)   %d\n", rows, c.subject, c.baseline, c.ratio,
                    c.ratioLow, c.ratioHigh, differing);
    }
    return true;
}

// --- The scheme switch --------------------------------------------------------------------------

std::string ExeDir()
{
    char path[MAX_PATH];
    std::string full(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    return full.substr(0, full.find_last_of('\\') + 1);
}

// The bitmap files a scheme's image configuration names, each once.
std::vector<std::string> BitmapFiles(const char* scheme)
{
    StyleEntry entry;
    CString name = scheme;
    std::vector<std::string> files;
    TiXmlDocument doc;
    if (!StyleCatalogue::Instance()->FindStyle(name, entry) || !doc.LoadFile(entry.img)) return files;
    TiXmlElement* root = doc.FirstChildElement();
    for (TiXmlElement* e = root ? root->FirstChildElement() : nullptr; e; e = e->NextSiblingElement()) {
        const char* file = e->Attribute("file");
        std::string path = ExeDir() + (file ? file : "");
        if (file && std::find(files.begin(), files.end(), path) == files.end()) files.push_back(path);
    }
    return files;
}

// The platform's floor of a switch: loading each bitmap file of the scheme once.
void LoadFiles(const std::vector<std::string>& files)
{
    for (const std::string& file : files)
        DeleteObject(LoadImageA(GetModuleHandleA(nullptr), file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
}

// What a switch adds to the repaints after it: the first panel after LoadStyle (the new scheme's
// fonts and bitmaps used for the first time) beside the panel after it, on each side.
void PrintFirstPanels(DibCanvas& kit, DibCanvas& hand, const char* const schemes[2])
{
    std::vector<double> times[4];  // kit first, kit next, raw first, raw next
    auto byKit = [&](int) { PanelByKit(kit.dc()); };
    auto byHand = [&](int) { PanelByHand(hand.dc()); };
    for (int r = 0; r < kRuns; ++r) {
        Scheme()->LoadStyle(schemes[r % 2]);
        times[0].push_back(MicrosecondsPerCall(1, byKit));
        times[1].push_back(MicrosecondsPerCall(1, byKit));
        Scheme()->LoadStyle(schemes[(r + 1) % 2]);
        times[2].push_back(MicrosecondsPerCall(1, byHand));
        times[3].push_back(MicrosecondsPerCall(1, byHand));
    }
    std::printf("  the first panel after LoadStyle: kit %.0f us (the next one %.0f), raw %.0f us (the next one %.0f)\n",
                Quantile(times[0], 0.5), Quantile(times[1], 0.5), Quantile(times[2], 0.5), Quantile(times[3], 0.5));
}

void PrintSchemeSwitch(DibCanvas& kit, DibCanvas& hand)
{
    const char* const schemes[2] = {"light", "dark"};
    const std::vector<std::string> files[2] = {BitmapFiles(schemes[0]), BitmapFiles(schemes[1])};
    Comparison switching = Compare(kRuns, 4, [&](int i) {
        Scheme()->LoadStyle(schemes[i % 2]);
        for (int p = 0; p < 20; ++p) PanelByKit(kit.dc());
    }, [&](int i) {
        Scheme()->LoadStyle(schemes[i % 2]);
        for (int p = 0; p < 20; ++p) PanelByHand(hand.dc());
    });
    Comparison loading = Compare(kRuns, 4, [&](int i) { Scheme()->LoadStyle(schemes[i % 2]); },
                                 [&](int i) { LoadFiles(files[i % 2]); });
    std::printf("scheme switch: LoadStyle and 20 panel repaints %.1f ms (%.1f-%.1f); goal <= 16.7 ms\n",
                switching.subject / 1000, switching.subjectLow / 1000, switching.subjectHigh / 1000);
    std::printf("  the same with 20 raw-GDI panels %.1f ms, ratio %.2f (%.2f-%.2f)\n", switching.baseline / 1000,
                switching.ratio, switching.ratioLow, switching.ratioHigh);
    std::printf("  LoadStyle alone %.2f ms; its platform floor, LoadImage of the scheme's %d bitmap files, %.2f ms "
                "(ratio %.2f, %.2f-%.2f)\n", loading.subject / 1000, int(files[0].size()), loading.baseline / 1000,
                loading.ratio, loading.ratioLow, loading.ratioHigh);
    std::printf("  (style_load_bench takes LoadStyle apart: parsing, colours, fonts, image files, image lists)\n");
    PrintFirstPanels(kit, hand, schemes);
}

}  // namespace

// A console program with MFC support, as the library's hosts are.
CWinApp theApp;

int main()
{
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), 0)) return 1;
    if (!Scheme()->InitStyleMgr() || !Scheme()->LoadStyle("dark")) {
        std::fprintf(stderr, "the sample schemes are not installed beside the program\n");
        return 1;
    }
    PrintLoad();
    DibCanvas kit(kWidth, Height(kRows)), hand(kWidth, Height(kRows));
    HGDIOBJ fonts[2];
    for (DibCanvas* t : {&kit, &hand}) {
        fonts[t == &hand] = SelectObject(t->dc()->m_hDC, SchemeFontHandle("PLUG_STDFONT"));
        SetBkMode(t->dc()->m_hDC, TRANSPARENT);
    }
    CaptionByKit(kit.dc());
    CaptionByHand(hand.dc()->m_hDC);
    std::printf("Medians of %d runs; in brackets the 10th-90th percentile of the per-run values.\n", kRuns);
    if (!SamePicture("caption", kit, hand)) return 1;
    Comparison caption = Compare(kRuns, 200, [&](int) { CaptionByKit(kit.dc()); },
                                 [&](int) { CaptionByHand(hand.dc()->m_hDC); });
    Print("rich-text caption", caption, "<= 2");
    PrintCaptionProfile(hand.dc()->m_hDC, caption.subject);

    PanelByKit(kit.dc());
    PanelByHand(hand.dc());
    if (!SamePicture("panel", kit, hand)) return 1;
    Print("panel repaint", Compare(kRuns, 20, [&](int) { PanelByKit(kit.dc()); }, [&](int) { PanelByHand(hand.dc()); }),
          "<= 1.3");
    PanelByHand(hand.dc(), kRows, kPricesBySteps);
    if (!SamePicture("panel, raw by the kit's steps for prices,", kit, hand)) return 1;
    PrintPanelProfile(kit, hand);
    PrintSchemeSwitch(kit, hand);
    bool grown = PrintCaptionGrowth() && PrintPanelGrowth();
    Scheme()->LoadStyle("dark");
    for (DibCanvas* t : {&kit, &hand}) SelectObject(t->dc()->m_hDC, fonts[t == &hand]);
    PrintLoad();
    return grown ? 0 : 1;
}
