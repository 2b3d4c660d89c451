// kiv_demo: a host that loads kiv_skin the way the terminal's plug-ins do and reports what the
// library makes of the sample schemes installed beside it (cfg\kiv_skin and skin\) and of the
// demo's message catalogue (locale\zh_CN\LC_MESSAGES\kiv_demo.mox), then paints its gallery.
//
//     kiv_demo [--gallery FOLDER]     the gallery's PNG files go to FOLDER (default "gallery")
//     kiv_demo --dpi-gallery FOLDER   only the panels and scroll sheets, at the screen's DPI
//     kiv_demo --window [--close-after MS]
//                                     the live window instead, closing itself after MS if given
//
// A console program with MFC support: the application object, and MFC initialised first.
#include <afxwin.h>
#include "demo/dialog_shots.h"
#include "demo/gallery.h"
#include "demo/intl_report.h"
#include "demo/live_window.h"
#include "demo/style_report.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

CWinApp theApp;

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), 0)) {
        std::printf("kiv_demo: MFC did not initialise\n");
        return 1;
    }
    std::string folder = "gallery";
    bool window = false, dpiOnly = false;
    UINT closeAfter = 0;
    for (int i = 1; i < argc; ++i) {
        if ((std::strcmp(argv[i], "--gallery") == 0 || std::strcmp(argv[i], "--dpi-gallery") == 0) && i + 1 < argc) {
            dpiOnly = argv[i][2] == 'd';
            folder = argv[++i];
        } else if (std::strcmp(argv[i], "--window") == 0) {
            window = true;
        } else if (std::strcmp(argv[i], "--close-after") == 0 && i + 1 < argc) {
            closeAfter = static_cast<UINT>(std::strtoul(argv[++i], nullptr, 10));
        } else {
            std::printf("usage: kiv_demo [--gallery FOLDER] | --dpi-gallery FOLDER | --window [--close-after MS]\n");
            return 2;
        }
    }
    if (window) return RunLiveWindow(closeAfter);
    if (dpiOnly) return RenderDpiGallery(folder) ? 0 : 1;
    ReportDpiSettings();
    bool schemesLoaded = ReportSchemes();
    ReportTranslations();
    bool galleryWritten = schemesLoaded && RenderGallery(folder);
    bool dialogShot = schemesLoaded && RenderDialogShots(folder);
    return galleryWritten && dialogShot ? 0 : 1;
}
