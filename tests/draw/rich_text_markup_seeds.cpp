// Writes the table's markup inputs, one file each named by its title, into the folder given as
// the only argument: the seed corpus of the markup fuzz target. Inputs longer than the fuzzer's
// usual input bound (4096 bytes) are left out; the fuzzer reaches their shapes from short ones.
#include "rich_text_markup_cases.h"
#include <cstdio>
#include <fstream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s SEED_FOLDER\n", argv[0]);
        return 2;
    }
    for (const MarkupCase& markupCase : RichTextMarkupCases()) {
        if (markupCase.markup.size() > 4096)
            continue;
        std::ofstream seed(std::string(argv[1]) + "/" + markupCase.title, std::ios::binary);
        seed << markupCase.markup;
        seed.close();
        if (!seed) {
            std::fprintf(stderr, "%s: cannot write %s\n", argv[0], markupCase.title.c_str());
            return 1;
        }
    }
    return 0;
}
