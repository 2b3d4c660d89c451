// kiv_demo: a host that loads kiv_skin the way the terminal's plug-ins do and reports what the
// library makes of the sample schemes installed beside it (cfg\kiv_skin and skin\) and of the
// demo's message catalogue (locale\zh_CN\LC_MESSAGES\kiv_demo.mox).
#include "demo/intl_report.h"
#include "demo/style_report.h"

int main()
{
    ReportDpiSettings();
    bool schemesLoaded = ReportSchemes();
    ReportTranslations();
    return schemesLoaded ? 0 : 1;
}
