// Fuzz target of the catalogue record walk and its index. Each input is a whole ".mox" file
// image. The index must stop where the reference walk stops, hold exactly the keys of the
// reference map (cut at their first zero byte, the last record of a key winning, a key cut to
// nothing left out), and answer
// every key with the reference translation; near misses of every key must answer as the map does.
#include "fuzz_check.h"
#include "kiv_skin/intl/mox_index.h"
#include <cstdint>
#include <cstring>

using kiv_skin::mox::Catalogue;
using kiv_skin::mox::Index;
using kiv_skin::mox::WalkResult;

namespace {

void Check(bool holds, const char* what) { CheckProperty(holds, "catalogue index", what); }

// The index's answer for key, as the C string it stands for, against the map's.
void CheckFind(const Index& index, const Catalogue& reference, const std::string& text)
{
    const std::string key = text.c_str();
    const char* found = index.Find(key.c_str());
    const auto expected = reference.find(key);
    if (expected == reference.end())
        Check(found == nullptr, "a key the file does not hold was found");
    else
        Check(found != nullptr && expected->second == found, "a key answers another translation");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const char* bytes = reinterpret_cast<const char*>(data);
    Catalogue reference;
    const WalkResult walked = kiv_skin::mox::Load(bytes, size, reference);
    reference.erase("");  // a key cut to nothing is never asked for, and the index drops it

    std::vector<char> file;
    file.reserve(size + 1);
    file.assign(bytes, bytes + size);
    Index index;
    const WalkResult indexed = index.Load(std::move(file));
    Check(indexed.stop == walked.stop && indexed.offset == walked.offset && indexed.records == walked.records,
          "the index stopped elsewhere than the walk");
    Check(index.Size() == reference.size(), "the index holds another number of keys");
    for (const auto& entry : reference) {
        const std::string& key = entry.first;
        CheckFind(index, reference, key);
        CheckFind(index, reference, key + '\x01');
        if (key.empty())
            continue;
        CheckFind(index, reference, key.substr(0, key.size() - 1));
        std::string changed = key;
        changed.back() = static_cast<char>(changed.back() + 1);
        CheckFind(index, reference, changed);
    }
    CheckFind(index, reference, "");
    return 0;
}
