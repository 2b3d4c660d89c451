// Conversion through glibc's iconv, with the code page's iconv name.
#include "charset.h"
#include <iconv.h>
#include <cerrno>

namespace moxc {
namespace {

std::string IconvName(unsigned codePage)
{
    switch (codePage) {
    case kUtf8: return "UTF-8";
    case 54936: return "GB18030";
    case 20127: return "ASCII";
    case 28591: return "ISO-8859-1";
    case 28605: return "ISO-8859-15";
    default: return "CP" + std::to_string(codePage);
    }
}

}  // namespace

bool Convert(const std::string& text, unsigned from, unsigned to, std::string& out)
{
    iconv_t cd = iconv_open(IconvName(to).c_str(), IconvName(from).c_str());
    if (cd == iconv_t(-1)) return false;
    std::string input = text;
    out.assign(text.size() * 4 + 16, '\0');
    char* in = &input[0];
    size_t inLeft = input.size();
    char* result = &out[0];
    size_t outLeft = out.size();
    size_t done = iconv(cd, &in, &inLeft, &result, &outLeft);
    bool ok = done != size_t(-1) && iconv(cd, nullptr, nullptr, &result, &outLeft) != size_t(-1);
    iconv_close(cd);
    out.resize(out.size() - outLeft);
    return ok && inLeft == 0;
}

}  // namespace moxc
