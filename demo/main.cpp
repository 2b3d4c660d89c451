// kiv_demo: a host that loads kiv_skin the way the terminal's plug-ins do and reports what the
// library makes of the sample schemes installed beside it (cfg\kiv_skin and skin\) and of the
// demo's message catalogue (locale\zh_CN\LC_MESSAGES\kiv_demo.mox), then paints its gallery.
//
//     kiv_demo [--gallery FOLDER]     the gallery's PNG files go to FOLDER (default "gallery")
#include "demo/dialog_shots.h"
#include "demo/gallery.h"
#include "demo/intl_report.h"
#include "demo/style_report.h"
#include <cstdio>
#include <cstring>
#include <string>

int main(int argc, char** argv)
{
    std::string folder = "gallery";
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--gallery") == 0 && i + 1 < argc) {
            folder = argv[++i];
        } else {
            std::printf("usage: kiv_demo [--gallery FOLDER]\n");
            return 2;
        }
    }
    ReportDpiSettings();
    bool schemesLoaded = ReportSchemes();
    ReportTranslations();
    bool galleryWritten = schemesLoaded && RenderGallery(folder);
    bool dialogShot = schemesLoaded && RenderDialogShots(folder);
    return galleryWritten && dialogShot ? 0 : 1;
}
