// Cost of one KivStyleMgr::LoadStyle on the sample schemes, as a ratio to merely parsing the
// same two XML files (colour/font file and image configuration) with TinyXML.
#include "bench/bench_timer.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/style/style_catalogue.h"
#include <cstdio>
#include <tinyxml.h>

using namespace kiv_skin;

int main()
{
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
    const int runs = 15, calls = 20;
    // Alternating schemes makes every call a real load of colours, fonts and images.
    double load = MedianMicroseconds(runs, calls, [&](int i) { mgr->LoadStyle(schemes[i % 2]); });
    double parse = MedianMicroseconds(runs, calls, [&](int i) {
        TiXmlDocument colorfont, images;
        colorfont.LoadFile(entries[i % 2].colorfont);
        images.LoadFile(entries[i % 2].img);
    });
    std::printf("LoadStyle                         %9.1f us (median of %d runs)\n", load, runs);
    std::printf("TinyXML parse of the same files   %9.1f us\n", parse);
    std::printf("ratio                             %9.1f\n", load / parse);
    return 0;
}
