// kiv_demo: a host that loads kiv_skin the way the terminal's plug-ins do and reports what the
// library makes of the sample schemes installed beside it (cfg\kiv_skin and skin\).
#include "demo/style_report.h"

int main()
{
    ReportDpiSettings();
    return ReportSchemes() ? 0 : 1;
}
