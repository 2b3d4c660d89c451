// kiv_demo: a host that loads kiv_skin the way the terminal's plug-ins do and reports what the
// library makes of the sample schemes. Argument: the schemes folder.
#include "demo/style_report.h"
#include <cstdio>

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: kiv_demo SCHEMES_FOLDER\n");
        return 2;
    }
    CString schemes = argv[1];
    ReportDpiSettings();
    bool loaded = ReportColorTable(schemes + "\\cfg\\kiv_skin\\dark\\colorfont.xml");
    return loaded ? 0 : 1;
}
