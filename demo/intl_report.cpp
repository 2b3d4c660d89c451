#include "demo/intl_report.h"
#include "demo/console.h"
#include "kiv_skin/intl/kiv_intl.h"
#include <cstdio>
#include <string>

using kiv_skin::KivIntl;

void ReportTranslations()
{
    PrintHeading("Translated texts (package kiv_demo, zh_CN)");
    KivIntl& intl = KivIntl::Instance();
    intl.PreparePackage(KivIntl::LANGUAGE_ZH_CN, "kiv_demo");
    for (const char* key : {"Last price", "Change", "Volume", "Not translated"})
        std::printf("%-20s %s\n", key, Gb2312ToUtf8(intl.GetText(key)).c_str());
    std::printf("%-20s %s\n", "Panel|Refresh", Gb2312ToUtf8(intl.RemovePrefix("Panel|Refresh", '|')).c_str());
    std::string crlf;
    intl.LF2CRLF("Quotes are delayed.\nPress F5 to refresh.", crlf);
    std::printf("a two-line notice    %d bytes with CR LF: %s\n", static_cast<int>(crlf.size()),
                Gb2312ToUtf8(crlf.c_str()).c_str());
}
