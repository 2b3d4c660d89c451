// Writes the seed corpus of the catalogue fuzz target into the folder given as the only argument:
// catalogues in key order (as moxc writes them) and out of it, with duplicate keys, zero bytes
// inside keys and translations, keys sharing long prefixes, and files cut inside a record.
#include "kiv_skin/intl/mox_format.h"
#include "seed_files.h"

namespace {

typedef NamedInputs Records;

std::string File(const Records& records)
{
    std::string file(kiv_skin::mox::kMagic, kiv_skin::mox::kMagicSize);
    for (const auto& record : records) kiv_skin::mox::AppendRecord(file, record.first, record.second);
    return file;
}

Records Numbered(const std::string& prefix, int count, bool descending)
{
    Records records;
    for (int i = 0; i < count; ++i) {
        const int n = descending ? count - 1 - i : i;
        records.push_back({prefix + std::to_string(1000 + n), "translation " + std::to_string(n)});
    }
    return records;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::string sorted = File(Numbered("key ", 20, false));
    return WriteSeedFiles(argc, argv, {
        {"sorted", sorted},
        {"unsorted", File(Numbered("key ", 20, true))},
        {"long_prefix", File(Numbered("Menu|File|Recent documents|", 12, false))},
        {"duplicates", File({{"b", "first"}, {"a", "x"}, {"b", "second"}, {"a", "y"}})},
        {"zero_bytes", File({{std::string("k\0ey", 4), "v"}, {"k", std::string("t\0ail", 5)}, {"j", ""}})},
        {"cut_record", sorted.substr(0, sorted.size() - 7)},
        {"empty", File({})},
    });
}
