// Writes the seed corpus of the .mo reader's fuzz target: small catalogues in both byte orders,
// with a context entry, a plural entry, zero bytes and Chinese text.
#include "mo_files.h"
#include "seed_files.h"

int main(int argc, char** argv)
{
    const std::map<std::string, std::string> plain = {{"Open", "打开"}, {"Save", "保存"}};
    const std::map<std::string, std::string> odd = {
        {"menu\x04Open", "in context"}, {std::string("one file\0%d files", 17), std::string("一个\0多个", 14)},
        {"tail", std::string("a\0b", 3)}};
    return WriteSeedFiles(argc, argv, {
        {"little_endian", MoFile(plain, "UTF-8", "zh_CN", false)},
        {"big_endian", MoFile(plain, "UTF-8", "zh_CN", true)},
        {"gbk_no_language", MoFile(plain, "GBK", "", false)},
        {"context_plural_zero", MoFile(odd, "UTF-8", "de", false)},
    });
}
