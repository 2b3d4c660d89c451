#include "kiv_skin/intl/languages.h"
#include <cstring>

namespace kiv_skin {
namespace languages {
namespace {

const char* const kDirNames[] = {"", "en", "zh_CN", "zh_TW"};
const unsigned kCodePages[] = {0, 1252, 936, 950};

bool Known(int language) { return language >= kEn && language <= kZhTW; }

}  // namespace

int Choose(int requested, unsigned ansiCodePage)
{
    if (Known(requested)) return requested;
    switch (ansiCodePage) {
    case 936:
    case 54936: return kZhCN;
    case 950: return kZhTW;
    default: return kEn;
    }
}

const char* DirName(int language) { return Known(language) ? kDirNames[language] : ""; }

int FromDirName(const char* name)
{
    for (int language = kEn; language <= kZhTW; ++language)
        if (name != nullptr && strcmp(name, kDirNames[language]) == 0) return language;
    return kAuto;
}

unsigned CodePage(int language) { return Known(language) ? kCodePages[language] : 0; }

}  // namespace languages
}  // namespace kiv_skin
