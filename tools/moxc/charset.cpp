#include "charset.h"
#include <cctype>
#include <cstdlib>

namespace moxc {
namespace {

struct Named {
    const char* name;
    unsigned codePage;
};

// Names first, so that CodePageName finds the usual one.
const Named kNames[] = {
    {"UTF-8", kUtf8}, {"UTF8", kUtf8}, {"GB2312", 936}, {"GBK", 936}, {"CP936", 936}, {"EUC-CN", 936},
    {"GB18030", 54936}, {"BIG5", 950}, {"BIG-5", 950}, {"CP950", 950}, {"WINDOWS-1252", 1252},
    {"CP1252", 1252}, {"ISO-8859-1", 28591}, {"LATIN1", 28591}, {"ISO-8859-15", 28605},
    {"ASCII", 20127}, {"US-ASCII", 20127}, {"SHIFT_JIS", 932}, {"CP932", 932},
};

std::string Upper(std::string text)
{
    for (char& c : text) c = char(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

}  // namespace

unsigned CodePageOf(const std::string& name)
{
    std::string upper = Upper(name);
    for (const Named& n : kNames)
        if (upper == n.name) return n.codePage;
    for (const char* prefix : {"CP", "WINDOWS-", ""}) {
        std::string p = prefix;
        if (upper.compare(0, p.size(), p) != 0 || upper.size() == p.size()) continue;
        char* end = nullptr;
        unsigned long number = std::strtoul(upper.c_str() + p.size(), &end, 10);
        if (*end == '\0' && number > 0 && number < 65536 && std::isdigit(static_cast<unsigned char>(upper[p.size()])))
            return unsigned(number);
    }
    return 0;
}

std::string CodePageName(unsigned codePage)
{
    for (const Named& n : kNames)
        if (n.codePage == codePage) return std::to_string(codePage) + " (" + n.name + ")";
    return std::to_string(codePage);
}

}  // namespace moxc
