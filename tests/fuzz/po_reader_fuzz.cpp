// Fuzz target of moxc's .po reader. Any input must either give messages or throw InputError.
// Messages read are written back with moxc's own .po writer and must read back the same.
#include "fuzz_check.h"
#include "message_pairs.h"
#include "tools/moxc/po_reader.h"
#include "tools/moxc/po_writer.h"
#include <cstdint>

using moxc::MessageSet;

namespace {

void Check(bool holds, const char* what) { CheckProperty(holds, ".po reader", what); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MessageSet set;
    try {
        set = moxc::ReadPo("input.po", std::string(reinterpret_cast<const char*>(data), size));
    } catch (const moxc::InputError&) {
        return 0;
    }
    const std::map<std::string, std::string> pairs = Pairs(set);
    Check(pairs.size() == set.messages.size(), "a key read twice");
    const MessageSet again = moxc::ReadPo("again.po", moxc::WritePo(pairs, set.language));
    Check(Pairs(again) == pairs, "messages written back read differently");
    Check(again.language == set.language && again.charset == "UTF-8", "the header read differently");
    return 0;
}
