// Cost of one KivStyleMgr::LoadStyle on the sample schemes (alternating dark and light, so that
// every call really loads), measured alternately in the same run against two baselines:
// - parsing the same two XML files (colour/font file and image configuration) with TinyXML;
// - the floor of a scheme switch: parsing both files, loading each bitmap file once with
//   LoadImage, creating each font once and each image list once (and freeing the previous
//   scheme's objects, as a switch must).
// Then where LoadStyle's time goes, phase by phase: the library's own loaders, and the raw GDI
// work of the image phases measured by itself.
#include "bench/bench_timer.h"
#include "kiv_skin/display/image_manager.h"
#include "kiv_skin/style/color_table.h"
#include "kiv_skin/style/font_table.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include <commctrl.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <tinyxml.h>
#include <vector>

using namespace kiv_skin;

namespace {

const int kRuns = 21;
const int kCalls = 10;

std::string ExeDir()
{
    char path[MAX_PATH];
    std::string full(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    return full.substr(0, full.find_last_of('\\') + 1);
}

HBITMAP LoadBitmapFile(const std::string& file)
{
    return static_cast<HBITMAP>(LoadImageA(GetModuleHandleA(nullptr), file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
}

LOGFONTA FontOf(const TiXmlElement* e)
{
    LOGFONTA lf = {};
    lf.lfHeight = -16;
    lf.lfWeight = FW_NORMAL;
    if (const char* face = e->Attribute("facename")) std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    auto number = [e](const char* name) { const char* v = e->Attribute(name); return v ? std::atoi(v) : 0; };
    if (e->Attribute("height")) lf.lfHeight = number("height");
    lf.lfWidth = number("width");
    if (e->Attribute("weight")) lf.lfWeight = number("weight");
    lf.lfItalic = BYTE(number("itatic"));
    lf.lfUnderline = BYTE(number("underline"));
    lf.lfQuality = BYTE(number("quality"));
    lf.lfCharSet = BYTE(number("charset"));
    lf.lfOutPrecision = BYTE(number("outprecision"));
    lf.lfPitchAndFamily = BYTE(number("pitchandfamily"));
    return lf;
}

// The objects of one scheme made with the fewest calls; the previous scheme's are freed first.
class Floor {
public:
    ~Floor() { Free(); }
    void Load(const StyleEntry& entry)
    {
        Free();
        TiXmlDocument colorfont, images;
        colorfont.LoadFile(entry.colorfont);
        images.LoadFile(entry.img);
        TiXmlElement* root = colorfont.FirstChildElement();
        TiXmlElement* fonts = root ? root->FirstChildElement("fonts") : nullptr;
        for (TiXmlElement* e = fonts ? fonts->FirstChildElement() : nullptr; e; e = e->NextSiblingElement()) {
            LOGFONTA lf = FontOf(e);
            m_objects.push_back(CreateFontIndirectA(&lf));
        }
        TiXmlElement* list = images.FirstChildElement();
        for (TiXmlElement* e = list ? list->FirstChildElement() : nullptr; e; e = e->NextSiblingElement()) {
            HBITMAP bitmap = LoadBitmapFile(m_exeDir + e->Attribute("file"));
            if (std::strcmp(e->Value(), "imagelist") != 0) {
                m_objects.push_back(bitmap);
                continue;
            }
            int width = 0, height = 0;
            e->Attribute("width", &width);
            e->Attribute("height", &height);
            HIMAGELIST strip = ImageList_Create(width, height, ILC_COLOR, 4, 4);
            ImageList_AddMasked(strip, bitmap, RGB(255, 0, 0));
            DeleteObject(bitmap);
            m_lists.push_back(strip);
        }
    }

private:
    void Free()
    {
        for (HGDIOBJ object : m_objects) DeleteObject(object);
        for (HIMAGELIST list : m_lists) ImageList_Destroy(list);
        m_objects.clear();
        m_lists.clear();
    }
    std::string m_exeDir = ExeDir();
    std::vector<HGDIOBJ> m_objects;
    std::vector<HIMAGELIST> m_lists;
};

// The raw GDI work of the image phases on one scheme's image configuration.
struct ImageFiles {
    std::vector<std::string> standAlone;
    struct Strip {
        std::string file;
        int width = 0, height = 0, cells = 0;
    };
    std::vector<Strip> strips;

    explicit ImageFiles(const StyleEntry& entry)
    {
        TiXmlDocument doc;
        doc.LoadFile(entry.img);
        for (TiXmlElement* e = doc.FirstChildElement()->FirstChildElement(); e; e = e->NextSiblingElement()) {
            std::string file = ExeDir() + e->Attribute("file");
            if (std::strcmp(e->Value(), "image") == 0) standAlone.push_back(file);
            if (std::strcmp(e->Value(), "imagelist") != 0) continue;
            Strip strip;
            strip.file = file;
            e->Attribute("width", &strip.width);
            e->Attribute("height", &strip.height);
            for (TiXmlElement* c = e->FirstChildElement("image"); c; c = c->NextSiblingElement("image")) ++strip.cells;
            strips.push_back(strip);
        }
    }
};

void LoadAndFreeStandAlone(const ImageFiles& files)
{
    for (const std::string& file : files.standAlone) DeleteObject(LoadBitmapFile(file));
}

HIMAGELIST ListOf(const ImageFiles::Strip& strip)
{
    HBITMAP bitmap = LoadBitmapFile(strip.file);
    HIMAGELIST list = ImageList_Create(strip.width, strip.height, ILC_COLOR, 4, 4);
    ImageList_AddMasked(list, bitmap, RGB(255, 0, 0));
    DeleteObject(bitmap);
    return list;
}

// Every cell as a bitmap of its own, each with its own memory DC and a DC of the screen.
void CutCells(const ImageFiles& files, HIMAGELIST* lists)
{
    for (size_t s = 0; s < files.strips.size(); ++s) {
        const ImageFiles::Strip& strip = files.strips[s];
        for (int cell = 0; cell < strip.cells; ++cell) {
            HDC screen = GetDC(nullptr);
            HBITMAP bitmap = CreateCompatibleBitmap(screen, strip.width, strip.height);
            HDC memory = CreateCompatibleDC(nullptr);
            HGDIOBJ previous = SelectObject(memory, bitmap);
            RECT all = {0, 0, strip.width, strip.height};
            SetBkColor(memory, RGB(255, 255, 255));
            ExtTextOutA(memory, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
            ImageList_Draw(lists[s], cell, memory, 0, 0, ILD_NORMAL);
            SelectObject(memory, previous);
            DeleteDC(memory);
            ReleaseDC(nullptr, screen);
            DeleteObject(bitmap);
        }
    }
}

// The same cells cut with one DC of the screen and one memory DC for all of them.
void CutCellsSharingDCs(const ImageFiles& files, HIMAGELIST* lists)
{
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(nullptr);
    HGDIOBJ original = GetCurrentObject(memory, OBJ_BITMAP);
    for (size_t s = 0; s < files.strips.size(); ++s) {
        const ImageFiles::Strip& strip = files.strips[s];
        RECT all = {0, 0, strip.width, strip.height};
        for (int cell = 0; cell < strip.cells; ++cell) {
            HBITMAP bitmap = CreateCompatibleBitmap(screen, strip.width, strip.height);
            SelectObject(memory, bitmap);
            SetBkColor(memory, RGB(255, 255, 255));
            ExtTextOutA(memory, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
            ImageList_Draw(lists[s], cell, memory, 0, 0, ILD_NORMAL);
            SelectObject(memory, original);
            DeleteObject(bitmap);
        }
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

void PrintComparison(const char* what, const Comparison& c)
{
    std::printf("LoadStyle %9.1f us, %-34s %9.1f us, ratio %6.2f (%.2f-%.2f)\n", c.subject, what, c.baseline, c.ratio,
                c.ratioLow, c.ratioHigh);
}

void PrintPhase(const char* what, double microseconds, double total)
{
    std::printf("  %-46s %9.1f us  %5.1f%%\n", what, microseconds, 100 * microseconds / total);
}

}  // namespace

// A console program with MFC support, as the library's hosts are.
CWinApp theApp;

int main()
{
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), 0)) return 1;
    KivStyleMgr* mgr = KivStyleMgr::GetInstance();
    if (!mgr->InitStyleMgr()) {
        std::fprintf(stderr, "the sample schemes are not installed beside the program\n");
        return 1;
    }
    const char* const schemes[] = {"dark", "light"};
    StyleEntry entries[2];
    for (int i = 0; i < 2; ++i) {
        CString name = schemes[i];
        StyleCatalogue::Instance()->FindStyle(name, entries[i]);
    }
    auto loadStyle = [&](int i) { mgr->LoadStyle(schemes[i % 2]); };
    Floor floor;
    Comparison parse = Compare(kRuns, kCalls, loadStyle, [&](int i) {
        TiXmlDocument colorfont, images;
        colorfont.LoadFile(entries[i % 2].colorfont);
        images.LoadFile(entries[i % 2].img);
    });
    Comparison floorRatio = Compare(kRuns, kCalls, loadStyle, [&](int i) { floor.Load(entries[i % 2]); });
    // What a switch costs once the panels have asked for every cell of the new scheme's strips.
    std::vector<CString> cellNames[2];
    for (int s = 0; s < 2; ++s) {
        TiXmlDocument doc;
        doc.LoadFile(entries[s].img);
        for (TiXmlElement* e = doc.FirstChildElement()->FirstChildElement("imagelist"); e; e = e->NextSiblingElement("imagelist"))
            for (TiXmlElement* c = e->FirstChildElement("image"); c; c = c->NextSiblingElement("image"))
                cellNames[s].push_back(c->Attribute("name"));
    }
    Comparison withCells = Compare(kRuns, kCalls, [&](int i) {
        mgr->LoadStyle(schemes[i % 2]);
        for (const CString& name : cellNames[i % 2]) mgr->GetBitmap(name);
    }, [&](int i) { floor.Load(entries[i % 2]); });
    std::printf("Scheme switch, medians of %d runs of %d switches; in brackets the 10th-90th percentile\n", kRuns, kCalls);
    std::printf("of the per-run ratios. Goal: LoadStyle / floor <= 2.\n");
    PrintComparison("TinyXML parse of both files", parse);
    PrintComparison("floor (parse, files, fonts, lists)", floorRatio);
    std::printf("LoadStyle and a first request of every strip cell, %.1f us: ratio to the floor %.2f (%.2f-%.2f)\n",
                withCells.subject, withCells.ratio, withCells.ratioLow, withCells.ratioHigh);

    // Phases: the library's loaders, alternating schemes as LoadStyle does, and the raw work of
    // the image phases, measured in turn within each run.
    ColorTable colors;
    FontTable fonts;
    ImageManager images;
    ImageFiles files[2] = {ImageFiles(entries[0]), ImageFiles(entries[1])};
    std::vector<HIMAGELIST> stripLists[2];
    for (int s = 0; s < 2; ++s)
        for (const ImageFiles::Strip& strip : files[s].strips) stripLists[s].push_back(ListOf(strip));
    std::vector<std::function<void(int)>> phases = {
        loadStyle,
        [&](int i) { LoadColors(colors, entries[i % 2].colorfont); },
        [&](int i) { TiXmlDocument doc; doc.LoadFile(entries[i % 2].colorfont); },
        [&](int i) { LoadFonts(entries[i % 2].colorfont, fonts); },
        [&](int i) { images.loadImageConfig(entries[i % 2].img); },
        [&](int i) { TiXmlDocument doc; doc.LoadFile(entries[i % 2].img); },
        [&](int i) { LoadAndFreeStandAlone(files[i % 2]); },
        [&](int i) { for (const ImageFiles::Strip& strip : files[i % 2].strips) ImageList_Destroy(ListOf(strip)); },
        [&](int i) { CutCells(files[i % 2], stripLists[i % 2].data()); },
        [&](int i) { CutCellsSharingDCs(files[i % 2], stripLists[i % 2].data()); },
    };
    std::vector<std::vector<double>> times(phases.size());
    for (int r = 0; r < kRuns; ++r)
        for (size_t p = 0; p < phases.size(); ++p) times[p].push_back(MicrosecondsPerCall(kCalls, phases[p]));
    std::vector<double> median;
    for (const auto& t : times) median.push_back(Quantile(t, 0.5));
    for (auto& perScheme : stripLists)
        for (HIMAGELIST list : perScheme) ImageList_Destroy(list);
    double total = median[0], loadColors = median[1], parseColorFont = median[2], loadFonts = median[3],
           loadImages = median[4], parseImages = median[5], standAlone = median[6], lists = median[7], cells = median[8],
           cellsSharing = median[9];

    std::printf("\nWhere LoadStyle's time goes (medians per switch; shares of LoadStyle's %.1f us):\n", total);
    PrintPhase("parse of the colour/font file (once)", parseColorFont, total);
    PrintPhase("colours: LoadColors less its parse", loadColors - parseColorFont, total);
    PrintPhase("fonts: LoadFonts less its parse", loadFonts - parseColorFont, total);
    PrintPhase("images: loadImageConfig (frees the old images too)", loadImages, total);
    PrintPhase("  parse of the image configuration", parseImages, total);
    PrintPhase("  image files: LoadImage of each stand-alone file", standAlone, total);
    PrintPhase("  image lists: LoadImage, ImageList_Create, AddMasked", lists, total);
    PrintPhase("the rest (catalogue look-up, unaccounted)", total - loadColors - loadFonts + parseColorFont - loadImages, total);
    int cellCount = 0;
    for (const ImageFiles::Strip& strip : files[0].strips) cellCount += strip.cells;
    char what[80];
    std::snprintf(what, sizeof what, "not in LoadStyle: %d strip cells cut as bitmaps", cellCount);
    PrintPhase(what, cells, total);
    PrintPhase("  the same sharing one screen DC and one memory DC", cellsSharing, total);
    return 0;
}
