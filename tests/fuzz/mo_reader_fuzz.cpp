// Fuzz target of moxc's .mo reader. Any input must either give messages or throw InputError.
// Messages read are written back as a .mo file in both byte orders and must read back the same.
#include "fuzz_check.h"
#include "message_pairs.h"
#include "mo_files.h"
#include "tools/moxc/mo_reader.h"
#include <cstdint>

using moxc::MessageSet;

namespace {

void Check(bool holds, const char* what) { CheckProperty(holds, ".mo reader", what); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MessageSet set;
    try {
        set = moxc::ReadMo("input.mo", std::string(reinterpret_cast<const char*>(data), size));
    } catch (const moxc::InputError&) {
        return 0;
    }
    const std::map<std::string, std::string> pairs = Pairs(set);
    for (const bool bigEndian : {false, true}) {
        const MessageSet again = moxc::ReadMo("again.mo", MoFile(pairs, set.charset, set.language, bigEndian));
        Check(Pairs(again) == pairs, "messages written back read differently");
        Check(again.charset == set.charset && again.language == set.language, "the header read differently");
    }
    return 0;
}
