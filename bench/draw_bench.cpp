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
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include "support/dib_canvas.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <tinyxml.h>
#include <vector>

using namespace kiv_skin;

namespace {

const int kRuns = 41;
const int kWidth = 360, kRows = 20, kRowHeight = 20, kTop = 24;
const char kCaption[] = "<*sc=UPTEXT*>600519<*sc=EQUTEXT*> 1688.00<*c=FF*> +2.35%";
const char kTitle[] = "\xE8\x87\xAA\xE9\x80\x89\xE8\x82\xA1";  // 自选股 in UTF-8
const wchar_t kTitleWide[] = L"\x81EA\x9009\x80A1";
const char* const kPrices[2] = {"+12.50", "-3.21"};

KivStyleMgr* Scheme() { return KivStyleMgr::GetInstance(); }
HFONT SchemeFontHandle(const char* key) { return static_cast<HFONT>(Scheme()->GetFont(key)->m_hObject); }

// A panel of rows rows: title, rows, and room for the axis below them (480 high at 20 rows).
int PanelHeight(int rows) { return kTop + 2 + rows * kRowHeight + 54; }

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

void CaptionByHand(HDC hdc)
{
    UINT align = SetTextAlign(hdc, TA_UPDATECP);
    POINT position;
    MoveToEx(hdc, 4, 2, &position);
    COLORREF ink = SetTextColor(hdc, Scheme()->GetColor("UPTEXT"));
    ExtTextOutW(hdc, 0, 0, 0, nullptr, L"600519", 6, nullptr);
    SetTextColor(hdc, Scheme()->GetColor("EQUTEXT"));
    ExtTextOutW(hdc, 0, 0, 0, nullptr, L" 1688.00", 8, nullptr);
    SetTextColor(hdc, RGB(255, 0, 0));
    ExtTextOutW(hdc, 0, 0, 0, nullptr, L" +2.35%", 7, nullptr);
    SetTextColor(hdc, ink);
    MoveToEx(hdc, position.x, position.y, nullptr);
    SetTextAlign(hdc, align);
}

// --- The panel ----------------------------------------------------------------------------------

void PanelByKit(CDC* target, int rows = kRows)
{
    const int height = PanelHeight(rows);
    CMemoDC memory(target, kWidth, height, 0);
    CRect all(0, 0, kWidth, height);
    KivDraw::DrawPluginFrame(&memory, &all);
    PluginTitle(kTitle).Draw(&memory, CRect(1, 1, kWidth - 1, kTop));
    CFont* previous = memory.SelectObject(const_cast<CFont*>(Scheme()->GetFont("PLUG_STDFONT")));
    memory.SetBkMode(TRANSPARENT);
    KivDraw kit;
    for (int i = 0; i < rows; ++i) {
        int top = kTop + 2 + i * kRowHeight;
        CRect row(0, top, 240, top + kRowHeight);
        KivDraw::DrawRichText(&memory, &row, kCaption, CRect(4, 2, 0, 0), 0, 100);
        kit.DrawUL(&memory, 260, top + 2, kPrices[i % 2], 1);
    }
    KivDraw::DrawAxis(&memory, 1, {10, height - 30}, {kWidth - 10, height - 30}, 0, 100, 5, "t", 0xFFFFFFFF,
                      nullptr, 1, 12);
    memory.SelectObject(previous);
    target->BitBlt(0, 0, kWidth, height, &memory, 0, 0, SRCCOPY);
}

void TextAt(HDC hdc, int x, int y, const char* text) { TextOutA(hdc, x, y, text, static_cast<int>(std::strlen(text))); }

// A mark of the scheme's strip at scale 1, as two copies through the strip's one-bit pixels.
void MarkByHand(HDC hdc, HDC marks, int x, int y, int mark, COLORREF ink)
{
    COLORREF text = SetTextColor(hdc, 0), back = SetBkColor(hdc, RGB(255, 255, 255));
    BitBlt(hdc, x - 5, y - 5, 12, 12, marks, 24 * mark, 0, SRCAND);
    SetBkColor(hdc, ink);
    BitBlt(hdc, x - 5, y - 5, 12, 12, marks, 24 * mark + 12, 0, SRCPAINT);
    SetBkColor(hdc, back);
    SetTextColor(hdc, text);
}

void PriceByHand(HDC hdc, HDC marks, int x, int y, const char* price)
{
    const char* point = std::strchr(price, '.');
    std::string integral(price + 1, point), fraction(point + 1);
    SIZE whole, part;
    GetTextExtentPoint32A(hdc, integral.c_str(), static_cast<int>(integral.size()), &whole);
    GetTextExtentPoint32A(hdc, fraction.c_str(), static_cast<int>(fraction.size()), &part);
    TextAt(hdc, x + 11, y, integral.c_str());
    TextAt(hdc, x + 11 + whole.cx, y, fraction.c_str());
    MarkByHand(hdc, marks, x + 5, y + whole.cy - 8, price[0] == '+' ? 3 : 2, GetTextColor(hdc));
    MoveToEx(hdc, x + 11 + whole.cx, y + whole.cy - 1, nullptr);
    LineTo(hdc, x + 11 + whole.cx + part.cx, y + whole.cy - 1);
}

void AxisByHand(HDC hdc, HPEN pen, int height)
{
    int y = height - 30, left = 10, right = kWidth - 10;
    COLORREF axis = Scheme()->GetColor("AXIS");
    SelectObject(hdc, pen);
    SelectObject(hdc, SchemeFontHandle("SMALL"));
    SetTextColor(hdc, axis);
    SIZE title;
    GetTextExtentPoint32A(hdc, "t", 1, &title);
    TextAt(hdc, right - title.cx, y + 3, "t");
    MoveToEx(hdc, left, y, nullptr);
    LineTo(hdc, right, y);
    LineTo(hdc, right - 4, y - 4);
    MoveToEx(hdc, right, y, nullptr);
    LineTo(hdc, right - 4, y + 4);
    SetTextAlign(hdc, TA_CENTER | TA_TOP);
    const char* labels[] = {"0", "20", "40", "60", "80"};
    for (int i = 0; i < 5; ++i) {
        int x = left + i * (right - left) / 5;
        MoveToEx(hdc, x, y, nullptr);
        LineTo(hdc, x, y + 3);
        TextAt(hdc, x, y + 3, labels[i]);
    }
    SetTextAlign(hdc, TA_LEFT | TA_TOP);
}

void PanelByHand(CDC* target, int rows = kRows)
{
    const int height = PanelHeight(rows);
    HDC hdc = CreateCompatibleDC(target->m_hDC);
    HBITMAP bitmap = CreateCompatibleBitmap(target->m_hDC, kWidth, height);
    HGDIOBJ previousBitmap = SelectObject(hdc, bitmap);
    HDC marks = CreateCompatibleDC(hdc);
    HGDIOBJ previousMarks = SelectObject(marks, Scheme()->GetBitmap("KIV_MARK")->m_hObject);
    // Prices are drawn in the context's text colour, black, and underlined in it.
    HPEN pens[2] = {CreatePen(PS_SOLID, 1, RGB(0, 0, 0)), CreatePen(PS_SOLID, 1, Scheme()->GetColor("AXIS"))};
    HBRUSH frame = CreateSolidBrush(Scheme()->GetColor("PLUG_FRAME"));
    HGDIOBJ previousPen = SelectObject(hdc, pens[0]);
    HGDIOBJ previousFont = SelectObject(hdc, SchemeFontHandle("PLUG_TITLE"));

    RECT all = {0, 0, kWidth, height};
    SetBkColor(hdc, Scheme()->GetColor("PLUG_BGCOLOR"));
    ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    FrameRect(hdc, &all, frame);
    TEXTMETRICA metrics;
    GetTextMetricsA(hdc, &metrics);
    RECT band = {1, 1, kWidth - 1, 1 + metrics.tmHeight + 2};
    SetBkColor(hdc, Scheme()->GetColor("PLUG_TITLE_BGCOLOR"));
    ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, &band, nullptr, 0, nullptr);
    SetTextColor(hdc, Scheme()->GetColor("PLUG_TITLE_TEXT"));
    DrawTextW(hdc, kTitleWide, -1, &band, DT_CENTER | DT_VCENTER | DT_SINGLELINE);

    SelectObject(hdc, SchemeFontHandle("PLUG_STDFONT"));
    SetBkMode(hdc, TRANSPARENT);
    for (int i = 0; i < rows; ++i) {
        int top = kTop + 2 + i * kRowHeight;
        HDC row = hdc;
        SetViewportOrgEx(row, 0, top, nullptr);
        CaptionByHand(row);
        SetViewportOrgEx(row, 0, 0, nullptr);
        SetTextColor(hdc, RGB(0, 0, 0));
        PriceByHand(hdc, marks, 260, top + 2, kPrices[i % 2]);
    }
    AxisByHand(hdc, pens[1], height);

    BitBlt(target->m_hDC, 0, 0, kWidth, height, hdc, 0, 0, SRCCOPY);
    SelectObject(hdc, previousFont);
    SelectObject(hdc, previousPen);
    SelectObject(marks, previousMarks);
    DeleteDC(marks);
    SelectObject(hdc, previousBitmap);
    DeleteObject(bitmap);
    DeleteDC(hdc);
    for (HPEN pen : pens) DeleteObject(pen);
    DeleteObject(frame);
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

// Where a panel's time goes: each piece timed alone on the canvas, the kit's against the raw
// calls of the hand-drawn panel (the prices' raw form makes its marks context once for 20).
void PrintPanelProfile(DibCanvas& kit, DibCanvas& hand)
{
    CDC* dc = kit.dc();
    HDC hdc = hand.dc()->m_hDC;
    KivDraw draw;
    auto cost = [](auto call) { return MedianMicroseconds(kRuns, 20, [&](int) { call(); }); };
    double ulKit = cost([&] { for (int i = 0; i < kRows; ++i) draw.DrawUL(dc, 260, 30 + 20 * i, kPrices[i % 2], 1); });
    double ulHand = cost([&] {
        HDC marks = CreateCompatibleDC(hdc);
        HGDIOBJ previous = SelectObject(marks, Scheme()->GetBitmap("KIV_MARK")->m_hObject);
        for (int i = 0; i < kRows; ++i) PriceByHand(hdc, marks, 260, 30 + 20 * i, kPrices[i % 2]);
        SelectObject(marks, previous);
        DeleteDC(marks);
    });
    double plain = cost([&] { for (int i = 0; i < kRows; ++i) draw.DrawUL(dc, 260, 30 + 20 * i, kPrices[i % 2], 0); });
    double arrow = cost([&] { draw.DrawArrow(dc, 20, 20, 3, RGB(255, 0, 0), 0, 1, false); });
    double arrows = cost([&] {
        for (int i = 0; i < kRows; ++i) draw.DrawArrow(dc, 265, 40 + 20 * i, 3 - i % 2, dc->GetTextColor(), 0, 1, false);
    });
    double memoryDc = cost([&] { CMemoDC marks(dc, const_cast<CBitmap*>(Scheme()->GetBitmap("KIV_MARK"))); });
    double rawContext = cost([&] {
        HDC marks = CreateCompatibleDC(hdc);
        HGDIOBJ previous = SelectObject(marks, Scheme()->GetBitmap("KIV_MARK")->m_hObject);
        SelectObject(marks, previous);
        DeleteDC(marks);
    });
    double pen = cost([&] {
        CPen p;
        p.CreatePen(PS_SOLID, 1, RGB(0, 0, 0));
        CPen* previous = dc->SelectObject(&p);
        dc->SelectObject(previous);
    });
    double captions = cost([&] { for (int i = 0; i < kRows; ++i) CaptionByKit(dc); });
    double captionsHand = cost([&] { for (int i = 0; i < kRows; ++i) CaptionByHand(hdc); });
    CRect all(0, 0, kWidth, PanelHeight(kRows));
    double frame = cost([&] {
        KivDraw::DrawPluginFrame(dc, &all);
        PluginTitle(kTitle).Draw(dc, CRect(1, 1, kWidth - 1, kTop));
    });
    double axis = cost([&] {
        KivDraw::DrawAxis(dc, 1, {10, 450}, {kWidth - 10, 450}, 0, 100, 5, "t", 0xFFFFFFFF, nullptr, 1, 12);
    });
    std::printf("  panel profile (us): 20 prices %.1f (raw %.1f; without their marks %.1f; their 20 marks alone %.1f;\n"
                "  one mark %.1f, its memory context %.1f (raw CreateCompatibleDC, select, DeleteDC %.1f); an underline\n"
                "  pen made and selected %.1f), 20 captions %.1f (raw %.1f), frame and title %.1f, axis %.1f\n", ulKit,
                ulHand, plain, arrows, arrow, memoryDc, rawContext, pen, captions, captionsHand, frame, axis);
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
        DibCanvas kit(kWidth, PanelHeight(rows)), hand(kWidth, PanelHeight(rows));
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
    DibCanvas kit(kWidth, PanelHeight(kRows)), hand(kWidth, PanelHeight(kRows));
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
    PrintPanelProfile(kit, hand);
    PrintSchemeSwitch(kit, hand);
    bool grown = PrintCaptionGrowth() && PrintPanelGrowth();
    Scheme()->LoadStyle("dark");
    for (DibCanvas* t : {&kit, &hand}) SelectObject(t->dc()->m_hDC, fonts[t == &hand]);
    PrintLoad();
    return grown ? 0 : 1;
}
