// The ".mox" catalogue format: the magic "mox1.0", then records of a little-endian signed 32-bit
// key length (1 or more), the key bytes, a translation length (0 or more) and the translation
// bytes, up to the end of the file. Pure byte handling, shared by the library and tools/moxc.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <string>

namespace kiv_skin {
namespace mox {

const char kMagic[] = "mox1.0";
const size_t kMagicSize = 6;
// A file shorter than the magic and one length field holds nothing.
const size_t kMinFileSize = 10;

// Why a walk ended. Only End means every byte belonged to a well-formed record.
enum class Stop {
    End,               // no bytes left after the last record
    TooShort,          // fewer than 10 bytes in all
    BadMagic,          // the first six bytes are not "mox1.0"
    KeyLengthCut,      // 1 to 3 bytes left where a key length belongs
    BadKeyLength,      // key length below 1 or beyond the end of the file
    ValueLengthCut,    // fewer than 4 bytes left after a key
    BadValueLength,    // translation length negative or beyond the end of the file
    TooLarge,          // 4 GiB or more: beyond what an in-place index addresses
};

struct WalkResult {
    Stop stop = Stop::End;
    size_t offset = 0;   // where the walk stopped: the start of the field it could not use
    size_t records = 0;  // well-formed records visited before that
};

// Called for each well-formed record with its raw bytes (zero bytes included).
typedef std::function<void(const char* key, size_t keySize, const char* value, size_t valueSize)>
    RecordFn;

// Walks a whole file image; records before a malformed one have been visited when it returns.
WalkResult Walk(const char* data, size_t size, const RecordFn& onRecord);

// A little-endian signed 32-bit length field.
inline int32_t ReadLength(const char* p)
{
    const unsigned char* b = reinterpret_cast<const unsigned char*>(p);
    uint32_t v = uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
    return static_cast<int32_t>(v);
}

// Walk with the visitor called directly, for loaders that visit every record of large files.
template <class OnRecord>
WalkResult WalkRecords(const char* data, size_t size, OnRecord&& onRecord)
{
    const size_t kLengthSize = 4;
    if (size < kMinFileSize) return {Stop::TooShort, 0, 0};
    if (std::memcmp(data, kMagic, kMagicSize) != 0) return {Stop::BadMagic, 0, 0};
    size_t pos = kMagicSize, records = 0;
    for (;;) {
        size_t left = size - pos;
        if (left == 0) return {Stop::End, pos, records};
        if (left < kLengthSize) return {Stop::KeyLengthCut, pos, records};
        int32_t keySize = ReadLength(data + pos);
        if (keySize < 1 || size_t(keySize) > left - kLengthSize) return {Stop::BadKeyLength, pos, records};
        const char* key = data + pos + kLengthSize;
        pos += kLengthSize + size_t(keySize);
        left = size - pos;
        if (left < kLengthSize) return {Stop::ValueLengthCut, pos, records};
        int32_t valueSize = ReadLength(data + pos);
        if (valueSize < 0 || size_t(valueSize) > left - kLengthSize) return {Stop::BadValueLength, pos, records};
        const char* value = data + pos + kLengthSize;
        pos += kLengthSize + size_t(valueSize);
        onRecord(key, size_t(keySize), value, size_t(valueSize));
        ++records;
    }
}

// Ordered by plain byte comparison; look-ups by a C string need no temporary string.
typedef std::map<std::string, std::string, std::less<>> Catalogue;

// Walks into a catalogue: key and translation cut at their first zero byte, the last record of
// a key winning. Existing entries are kept unless a record replaces them.
WalkResult Load(const char* data, size_t size, Catalogue& catalogue);

// Appends one record; false (and nothing appended) if a string is empty as a key or longer than
// a signed 32-bit length can say.
bool AppendRecord(std::string& file, const std::string& key, const std::string& value);

// A readable name of a stop reason, for diagnostics.
const char* Describe(Stop stop);

}  // namespace mox
}  // namespace kiv_skin
