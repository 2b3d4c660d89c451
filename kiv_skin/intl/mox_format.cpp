#include "kiv_skin/intl/mox_format.h"
#include <cstdint>
#include <cstring>

namespace kiv_skin {
namespace mox {
namespace {

const size_t kLengthSize = 4;

int32_t ReadLength(const char* p)
{
    const unsigned char* b = reinterpret_cast<const unsigned char*>(p);
    uint32_t v = uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
    return static_cast<int32_t>(v);
}

void WriteLength(std::string& out, uint32_t v)
{
    for (int shift = 0; shift < 32; shift += 8) out.push_back(static_cast<char>((v >> shift) & 0xFF));
}

std::string UpToZero(const char* p, size_t n) { return std::string(p, strnlen(p, n)); }

}  // namespace

WalkResult Walk(const char* data, size_t size, const RecordFn& onRecord)
{
    WalkResult result;
    if (size < kMinFileSize) return {Stop::TooShort, 0, 0};
    if (memcmp(data, kMagic, kMagicSize) != 0) return {Stop::BadMagic, 0, 0};
    size_t pos = kMagicSize;
    for (;;) {
        size_t left = size - pos;
        if (left == 0) return {Stop::End, pos, result.records};
        if (left < kLengthSize) return {Stop::KeyLengthCut, pos, result.records};
        int32_t keySize = ReadLength(data + pos);
        if (keySize < 1 || size_t(keySize) > left - kLengthSize) return {Stop::BadKeyLength, pos, result.records};
        const char* key = data + pos + kLengthSize;
        pos += kLengthSize + size_t(keySize);
        left = size - pos;
        if (left < kLengthSize) return {Stop::ValueLengthCut, pos, result.records};
        int32_t valueSize = ReadLength(data + pos);
        if (valueSize < 0 || size_t(valueSize) > left - kLengthSize) return {Stop::BadValueLength, pos, result.records};
        const char* value = data + pos + kLengthSize;
        pos += kLengthSize + size_t(valueSize);
        onRecord(key, size_t(keySize), value, size_t(valueSize));
        ++result.records;
    }
}

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
