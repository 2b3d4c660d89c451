#include "demo/gallery.h"
#include "demo/console.h"
#include "demo/contrast_figures.h"
#include "demo/contrast_sheet.h"
#include "demo/markup_sheet.h"
#include "demo/panel.h"
#include "demo/picture.h"
#include "demo/piece_sheet.h"
#include "demo/scroll_sheet.h"
#include "demo/vision_sheet.h"
#include "kiv_base/text.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

using kiv_skin::KivStyleMgr;

namespace {

bool Save(const Picture& picture, const std::string& folder, const CString& scheme, const char* kind)
{
    std::string path = folder + "\\" + static_cast<const char*>(scheme) + "_" + kind + ".png";
    HRESULT hr = picture.SaveAsPng(kiv_base::text::AnsiToUtf(path));
    if (FAILED(hr)) {
        std::printf("  could not write %s (error 0x%08lX)\n", path.c_str(), static_cast<unsigned long>(hr));
        return false;
    }
    std::printf("  %s\n", path.c_str());
    return true;
}

bool RenderPanel(const CString& scheme, const std::string& folder, const char* kind = "panel")
{
    CSize size;
    {
        Picture probe(1, 1, 0);
        size = QuotePanelSize(probe.dc());
    }
    Picture panel(size.cx, size.cy, KivStyleMgr::GetInstance()->GetColor("BACKGROUND"));
    DrawQuotePanel(panel.dc());
    return Save(panel, folder, scheme, kind);
}

// "<subject> in <scheme> (<its description>)", in UTF-8.
std::string SheetTitle(const char* subject, const CString& scheme)
{
    std::string title = std::string(subject) + " in " + static_cast<const char*>(scheme);
    CString name = scheme;
    kiv_skin::StyleEntry entry;
    if (kiv_skin::StyleCatalogue::Instance()->FindStyle(name, entry) && !entry.des.IsEmpty())
        title += " (" + Gb2312ToUtf8(entry.des) + ")";
    return title;
}

bool RenderSheet(const CString& scheme, const std::string& folder)
{
    CSize size = PieceSheetSize();
    Picture sheet(size.cx, size.cy, KivStyleMgr::GetInstance()->GetColor("BACKGROUND"));
    DrawPieceSheet(sheet.dc(), SheetTitle("The drawing kit", scheme).c_str());
    return Save(sheet, folder, scheme, "pieces");
}

// Each line of the sheet on its own, markup\<scheme>\<tag>.png: the reference pages show one
// per tag.
bool SaveMarkupLines(Picture& sheet, const std::string& folder, const CString& scheme)
{
    const std::string lines = folder + "\\markup\\" + static_cast<const char*>(scheme);
    std::error_code error;
    std::filesystem::create_directories(kiv_base::text::AnsiToUtf(lines), error);
    for (int line = 0; line < MarkupLineCount(); ++line) {
        const CRect band = MarkupLineBand(line);
        Picture picture(band.Width(), band.Height(), 0);
        picture.dc()->BitBlt(0, 0, band.Width(), band.Height(), sheet.dc(), band.left, band.top, SRCCOPY);
        std::string tag = MarkupLineTag(line);
        std::replace(tag.begin(), tag.end(), ' ', '_');
        if (FAILED(picture.SaveAsPng(kiv_base::text::AnsiToUtf(lines + "\\" + tag + ".png")))) {
            std::printf("  could not write the line pictures in %s\n", lines.c_str());
            return false;
        }
    }
    std::printf("  %s\\ (one picture per tag)\n", lines.c_str());
    return true;
}

bool RenderMarkupSheet(const CString& scheme, const std::string& folder)
{
    CSize size = MarkupSheetSize();
    Picture sheet(size.cx, size.cy, KivStyleMgr::GetInstance()->GetColor("BACKGROUND"));
    DrawMarkupSheet(sheet.dc(), SheetTitle("Rich-text markup", scheme).c_str());
    return Save(sheet, folder, scheme, "markup") && SaveMarkupLines(sheet, folder, scheme);
}

bool RenderScrollSheet(const CString& scheme, const std::string& folder, const char* kind = "scroll")
{
    CSize size = ScrollSheetSize();
    Picture sheet(size.cx, size.cy, KivStyleMgr::GetInstance()->GetColor("BACKGROUND"));
    DrawScrollSheet(sheet.dc(), SheetTitle("The scroll bar", scheme).c_str());
    return Save(sheet, folder, scheme, kind);
}

bool RenderContrastSheet(const CString& scheme, const std::string& folder)
{
    CSize size = ContrastSheetSize();
    Picture sheet(size.cx, size.cy, 0);
    DrawContrastSheet(sheet.dc(), SheetTitle("Contrast", scheme).c_str());
    return Save(sheet, folder, scheme, "contrast");
}

bool RenderVisionSheet(const CString& scheme, const std::string& folder)
{
    CSize size = VisionSheetSize();
    Picture sheet(size.cx, size.cy, 0);
    DrawVisionSheet(sheet, SheetTitle("The quote panel with each colour-vision deficiency", scheme).c_str());
    return Save(sheet, folder, scheme, "vision");
}

// contrast.md: the contrast sheets' figures of every scheme as Markdown tables, for the docs.
bool WriteContrastTables(const std::vector<SchemeFigures>& schemes, const std::string& folder)
{
    const std::string path = folder + "\\contrast.md";
    std::ofstream file(std::filesystem::path(kiv_base::text::AnsiToUtf(path)), std::ios::binary);
    file << ContrastTablesMarkdown(schemes);
    if (!file.flush()) {
        std::printf("  could not write %s\n", path.c_str());
        return false;
    }
    std::printf("  %s\n", path.c_str());
    return true;
}

}  // namespace

bool RenderSchemeGallery(const CString& scheme, const std::string& folder)
{
    std::error_code error;
    std::filesystem::create_directories(kiv_base::text::AnsiToUtf(folder), error);
    if (!KivStyleMgr::GetInstance()->LoadStyle(scheme)) {
        std::printf("  could not load the scheme %s\n", static_cast<const char*>(scheme));
        return false;
    }
    bool panelSaved = RenderPanel(scheme, folder);
    bool sheetSaved = RenderSheet(scheme, folder);
    bool scrollSaved = RenderScrollSheet(scheme, folder);
    bool contrastSaved = RenderContrastSheet(scheme, folder);
    bool visionSaved = RenderVisionSheet(scheme, folder);
    return RenderMarkupSheet(scheme, folder) && sheetSaved && panelSaved && scrollSaved && contrastSaved && visionSaved;
}

bool RenderDpiGallery(const std::string& folder)
{
    int dpi = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY);
    PrintHeading(("Gallery at " + std::to_string(dpi) + " DPI").c_str());
    const std::string panel = "panel_" + std::to_string(dpi) + "dpi", scroll = "scroll_" + std::to_string(dpi) + "dpi";
    if (!KivStyleMgr::GetInstance()->InitStyleMgr()) return false;
    bool allSaved = true;
    for (const kiv_skin::StyleEntry& entry : kiv_skin::StyleCatalogue::Instance()->m_entries) {
        if (!KivStyleMgr::GetInstance()->LoadStyle(entry.name)) return false;
        allSaved = RenderPanel(entry.name, folder, panel.c_str()) && allSaved;
        allSaved = RenderScrollSheet(entry.name, folder, scroll.c_str()) && allSaved;
    }
    return allSaved;
}

bool RenderGallery(const std::string& folder)
{
    PrintHeading("Gallery");
    bool allSaved = true;
    std::vector<SchemeFigures> figures;
    for (const kiv_skin::StyleEntry& entry : kiv_skin::StyleCatalogue::Instance()->m_entries) {
        bool saved = RenderSchemeGallery(entry.name, folder);
        if (saved) figures.push_back(FiguresOf(entry.name));
        allSaved = saved && allSaved;
    }
    return WriteContrastTables(figures, folder) && allSaved;
}
