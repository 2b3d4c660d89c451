// Writes the table's markup inputs, one file each named by its title, into the folder given as
// the only argument: the seed corpus of the markup fuzz target. Inputs longer than the fuzzer's
// usual input bound (4096 bytes) are left out; the fuzzer reaches their shapes from short ones.
#include "rich_text_markup_cases.h"
#include "tests/fuzz/seed_files.h"

int main(int argc, char** argv)
{
    NamedInputs inputs;
    for (const MarkupCase& markupCase : RichTextMarkupCases()) {
        if (markupCase.markup.size() <= 4096)
            inputs.push_back({markupCase.title, markupCase.markup});
    }
    return WriteSeedFiles(argc, argv, inputs);
}
