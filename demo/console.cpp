#include "demo/console.h"
#include "kiv_base/text.h"
#include <cstdio>

std::string Gb2312ToUtf8(const char* gb2312)
{
    const UINT kGb2312 = 936;
    int n = MultiByteToWideChar(kGb2312, 0, gb2312, -1, nullptr, 0);
    std::wstring wide(n > 0 ? n - 1 : 0, L'\0');
    if (n > 1) MultiByteToWideChar(kGb2312, 0, gb2312, -1, &wide[0], n);
    return kiv_base::text::Utf16toUtf8(wide);
}

void PrintHeading(const char* title)
{
    std::printf("\n== %s ==\n", title);
}
