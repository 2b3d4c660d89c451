#include "mo_reader.h"
#include <cstdint>

namespace moxc {
namespace {

const uint32_t kMagic = 0x950412DE;

class MoFile {
public:
    MoFile(const std::string& path, const std::string& bytes) : m_path(path), m_bytes(bytes) {}

    MessageSet Read()
    {
        if (m_bytes.size() < 20) Fail("too short for a .mo header");
        m_swapped = Word(0, false) != kMagic;
        if (Word(0) != kMagic) Fail("not a .mo file (wrong magic number)");
        if (Word(4) >> 16 > 1) Fail("unknown .mo major revision " + std::to_string(Word(4) >> 16));
        uint32_t count = Word(8), originals = Word(12), translations = Word(16);
        MessageSet set;
        for (uint32_t n = 0; n < count; ++n) {
            std::string key = String(originals, n), value = String(translations, n);
            Add(set, key, value, n);
        }
        return set;
    }

private:
    [[noreturn]] void Fail(const std::string& what) const { throw InputError(m_path, what); }

    uint32_t Word(uint64_t offset, bool allowSwap = true) const
    {
        if (offset + 4 > m_bytes.size()) Fail("table at offset " + std::to_string(offset) + " runs past the end of the file");
        const unsigned char* b = reinterpret_cast<const unsigned char*>(m_bytes.data() + offset);
        uint32_t v = uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
        if (allowSwap && m_swapped) v = (v >> 24) | ((v >> 8) & 0xFF00) | ((v << 8) & 0xFF0000) | (v << 24);
        return v;
    }

    // String n of the table at offset: a length and an offset per entry.
    std::string String(uint32_t table, uint32_t n) const
    {
        uint64_t entry = uint64_t(table) + uint64_t(n) * 8;
        uint64_t length = Word(entry), start = Word(entry + 4);
        if (start + length > m_bytes.size())
            Fail("string " + std::to_string(n) + " runs past the end of the file");
        return m_bytes.substr(size_t(start), size_t(length));
    }

    void Add(MessageSet& set, const std::string& key, const std::string& value, uint32_t n) const
    {
        std::string where = m_path + ": message " + std::to_string(n + 1);
        if (key.empty()) {
            ReadHeader(value, set);
        } else if (key.find('\x04') != std::string::npos) {
            Warn(where, "message \"" + key.substr(key.find('\x04') + 1) + "\" in context \"" +
                            key.substr(0, key.find('\x04')) + "\" left out: catalogues have no contexts");
        } else if (key[0] == '\0') {
            Warn(where, "plural message with an empty singular left out: a catalogue cannot look it up");
        } else if (key.find('\0') != std::string::npos) {
            std::string singular = key.substr(0, key.find('\0'));
            Warn(where, "plural message \"" + singular + "\": only its singular translation is kept");
            set.messages.push_back({singular, value.substr(0, value.find('\0')), where});
        } else {
            set.messages.push_back({key, value, where});
        }
    }

    std::string m_path;
    const std::string& m_bytes;
    bool m_swapped = false;
};

}  // namespace

MessageSet ReadMo(const std::string& path, const std::string& bytes) { return MoFile(path, bytes).Read(); }

}  // namespace moxc
