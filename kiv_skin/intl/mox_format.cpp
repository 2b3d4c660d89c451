#include "kiv_skin/intl/mox_format.h"
#include <cstdint>
#include <cstring>

namespace kiv_skin {
namespace mox {
namespace {

void WriteLength(std::string& out, uint32_t v)
{
    for (int shift = 0; shift < 32; shift += 8) out.push_back(static_cast<char>((v >> shift) & 0xFF));
}

std::string UpToZero(const char* p, size_t n) { return std::string(p, strnlen(p, n)); }

}  // namespace

WalkResult Walk(const char* data, size_t size, const RecordFn& onRecord) { return WalkRecords(data, size, onRecord); }

WalkResult Load(const char* data, size_t size, Catalogue& catalogue)
{
    return Walk(data, size, [&catalogue](const char* key, size_t keySize, const char* value, size_t valueSize) {
        catalogue[UpToZero(key, keySize)] = UpToZero(value, valueSize);
    });
}

bool AppendRecord(std::string& file, const std::string& key, const std::string& value)
{
    const size_t limit = 0x7FFFFFFF;
    if (key.empty() || key.size() > limit || value.size() > limit) return false;
    WriteLength(file, uint32_t(key.size()));
    file += key;
    WriteLength(file, uint32_t(value.size()));
    file += value;
    return true;
}

const char* Describe(Stop stop)
{
    switch (stop) {
    case Stop::End: return "end of file after the last record";
    case Stop::TooShort: return "file shorter than 10 bytes";
    case Stop::BadMagic: return "the file does not start with \"mox1.0\"";
    case Stop::KeyLengthCut: return "key length cut short by the end of the file";
    case Stop::BadKeyLength: return "key length below 1 or past the end of the file";
    case Stop::ValueLengthCut: return "translation length cut short by the end of the file";
    case Stop::BadValueLength: return "translation length negative or past the end of the file";
    case Stop::TooLarge: return "file of 4 GiB or more";
    }
    return "unknown";
}

}  // namespace mox
}  // namespace kiv_skin
