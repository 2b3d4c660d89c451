#include "kiv_skin/intl/mox_index.h"
#include <algorithm>
#include <cstring>
#ifdef _MSC_VER
#include <intrin.h>
#include <stdlib.h>
#endif

namespace kiv_skin {
namespace mox {
namespace {

const size_t kHeadSize = 8;

// The index of the lowest set bit of a non-zero word.
unsigned LowestBit(uint64_t word)
{
#if defined(_MSC_VER) && defined(_M_IX86)
    unsigned long bit;
    if (_BitScanForward(&bit, static_cast<unsigned long>(word))) return bit;
    _BitScanForward(&bit, static_cast<unsigned long>(word >> 32));
    return bit + 32;
#elif defined(_MSC_VER)
    unsigned long bit;
    _BitScanForward64(&bit, word);
    return bit;
#else
    return static_cast<unsigned>(__builtin_ctzll(word));
#endif
}

uint64_t ByteSwap(uint64_t word)
{
#ifdef _MSC_VER
    return _byteswap_uint64(word);
#else
    return __builtin_bswap64(word);
#endif
}

// Up to 8 bytes of text as a big-endian integer, zero-padded after its end: integers compare as
// the texts do byte by byte.
uint64_t Head(const char* text)
{
    uint64_t head = 0;
    bool ended = false;
    for (size_t i = 0; i < kHeadSize; ++i) {
        unsigned char c = ended ? 0 : static_cast<unsigned char>(text[i]);
        ended = ended || c == 0;
        head = head << 8 | c;
    }
    return head;
}

// The same from a text with 8 readable bytes from its start, a word at a time.
uint64_t HeadOfWord(const char* text)
{
    uint64_t word;
    std::memcpy(&word, text, sizeof(word));
    // The lowest marked byte is the first zero byte in memory order (little-endian words).
    uint64_t zeros = (word - 0x0101010101010101ull) & ~word & 0x8080808080808080ull;
    if (zeros != 0) word &= (uint64_t(1) << (LowestBit(zeros) & ~7u)) - 1;
    return ByteSwap(word);
}

// A text that ends within its head leaves a zero in the head's last byte.
bool EndsInHead(uint64_t head) { return (head & 0xFF) == 0; }

// How many of the first length bytes of key equal those of first, which holds no zero byte among
// them; a word at a time while key's words end inside the buffer.
size_t SharedLength(const char* key, const char* first, size_t length, const char* wordsEnd)
{
    size_t same = 0;
    for (uint64_t a, b; same + sizeof(a) <= length && key + same <= wordsEnd; same += sizeof(a)) {
        std::memcpy(&a, key + same, sizeof(a));
        std::memcpy(&b, first + same, sizeof(b));
        if (a != b) break;
    }
    while (same < length && key[same] == first[same]) ++same;
    return same;
}

int CompareText(const char* a, const char* b)
{
    const unsigned char* x = reinterpret_cast<const unsigned char*>(a);
    const unsigned char* y = reinterpret_cast<const unsigned char*>(b);
    while (*x != 0 && *x == *y) ++x, ++y;
    return int(*x) - int(*y);
}

}  // namespace

// Stable radix sort by head, a byte at a time from the lowest, over the bytes that differ
// between heads.
void Index::SortByHead(std::vector<Item>& items)
{
    uint64_t inAll = ~uint64_t(0), inAny = 0;
    for (const Item& item : items) inAll &= item.head, inAny |= item.head;
    std::vector<Item> spare(items.size());
    for (unsigned shift = 0; shift < 64; shift += 8) {
        if (((inAll ^ inAny) >> shift & 0xFF) == 0) continue;
        size_t starts[256] = {};
        for (const Item& item : items) ++starts[item.head >> shift & 0xFF];
        for (size_t digit = 0, offset = 0; digit < 256; ++digit) {
            size_t n = starts[digit];
            starts[digit] = offset;
            offset += n;
        }
        for (const Item& item : items) spare[starts[item.head >> shift & 0xFF]++] = item;
        items.swap(spare);
    }
}

WalkResult Index::Load(std::vector<char>&& file)
{
    Clear();
    if (file.size() > UINT32_MAX) return {Stop::TooLarge, 0, 0};
    m_bytes = std::move(file);
    WalkResult result = CollectRecords();
    if (m_entries.empty()) return result;
    size_t outOfOrder = IndexInFileOrder();
    if (outOfOrder < m_entries.size()) Sort(outOfOrder);
    return result;
}

// Locals rather than members in the walk: its stores into the file's bytes could otherwise
// alias the members and force them through memory at every record.
WalkResult Index::CollectRecords()
{
    char* base = m_bytes.data();
    size_t size = m_bytes.size();
    // A translation's end is the next record's key length: terminated once that has been read.
    char* pendingEnd = nullptr;
    // Keys in any order share the prefix that the first shares with every other.
    const char* first = nullptr;
    size_t prefixLength = 0;
    const char* wordsEnd = base + size - std::min(size, sizeof(uint64_t));
    std::vector<Entry> entries;
    entries.reserve(size / 32);
    WalkResult result = WalkRecords(base, size, [&](const char* key, size_t keySize, const char* value, size_t valueSize) {
        if (pendingEnd) *pendingEnd = '\0';
        base[key - base + keySize] = '\0';  // over the translation length, already read
        pendingEnd = base + (value - base) + valueSize;
        // A key cut to nothing can never be asked for.
        if (*key == '\0') return;
        prefixLength = first ? SharedLength(key, first, prefixLength, wordsEnd) : std::strlen(key);
        if (!first) first = key;
        // Filled in place: an entry built beside and copied in would be stored as two halves and
        // loaded back whole, which stalls the copy at every record.
        Entry& entry = entries.emplace_back();
        entry.key = uint32_t(key - base);
        entry.value = uint32_t(value - base);
    });
    if (pendingEnd == base + size) m_bytes.push_back('\0');
    else if (pendingEnd) *pendingEnd = '\0';
    m_entries = std::move(entries);
    m_prefixLength = prefixLength;
    return result;
}

void Index::Clear()
{
    std::vector<char>().swap(m_bytes);
    std::vector<uint64_t>().swap(m_heads);
    std::vector<Entry>().swap(m_entries);
    m_prefixLength = 0;
    m_neededSort = false;
}

const char* Index::Find(const char* key) const
{
    size_t count = m_heads.size();
    if (count == 0) return nullptr;
    const char* prefix = KeyAt(0);
    for (size_t i = 0; i < m_prefixLength; ++i)
        if (key[i] != prefix[i]) return nullptr;
    const char* rest = key + m_prefixLength;
    uint64_t head = Head(rest);
    // The first head not below the key's, without branches on the comparisons.
    const uint64_t* first = m_heads.data();
    for (size_t length = count; length > 1;) {
        size_t half = length / 2;
        first += first[half - 1] < head ? half : 0;
        length -= half;
    }
    size_t i = size_t(first - m_heads.data()) + (*first < head);
    if (i == count || m_heads[i] != head) return nullptr;
    if (!EndsInHead(head)) {
        // Keys longer than their head: search the run of equal heads by the rest of the key.
        for (size_t length = count - i; length > 0;) {
            size_t half = length / 2;
            if (Compare(i + half, head, rest) < 0) {
                i += half + 1;
                length -= half + 1;
            } else {
                length = half;
            }
        }
        if (i == count || Compare(i, head, rest) != 0) return nullptr;
    }
    return m_bytes.data() + m_entries[i].value;
}

size_t Index::MemoryUsed() const
{
    return m_bytes.capacity() + m_heads.capacity() * sizeof(uint64_t) + m_entries.capacity() * sizeof(Entry);
}

uint64_t Index::HeadAt(size_t i) const
{
    const char* rest = KeyAt(i) + m_prefixLength;
    size_t readable = size_t(m_bytes.data() + m_bytes.size() - rest);
    return readable >= kHeadSize ? HeadOfWord(rest) : Head(rest);
}

int Index::Compare(size_t i, uint64_t head, const char* rest) const
{
    if (m_heads[i] != head) return m_heads[i] < head ? -1 : 1;
    if (EndsInHead(head)) return 0;
    return CompareText(KeyAt(i) + m_prefixLength + kHeadSize, rest + kHeadSize);
}

size_t Index::IndexInFileOrder()
{
    size_t count = m_entries.size();
    m_heads.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        uint64_t head = HeadAt(i);
        size_t kept = m_heads.size();
        int order = kept == 0 ? -1 : Compare(kept - 1, head, KeyAt(i) + m_prefixLength);
        if (order > 0) return i;
        if (order == 0) {
            m_entries[kept - 1].value = m_entries[i].value;
        } else {
            m_entries[kept] = m_entries[i];
            m_heads.push_back(head);
        }
    }
    m_entries.resize(m_heads.size());
    return count;
}

// A stable sort keeps equal keys in file order, so the last of each run is the record that wins.
void Index::Sort(size_t outOfOrder)
{
    m_neededSort = true;
    size_t kept = m_heads.size();
    std::vector<Item> items(kept + m_entries.size() - outOfOrder);
    for (size_t i = 0; i < kept; ++i) {
        items[i].head = m_heads[i];
        items[i].entry = m_entries[i];
    }
    for (size_t i = outOfOrder, j = kept; i < m_entries.size(); ++i, ++j) {
        items[j].head = HeadAt(i);
        items[j].entry = m_entries[i];
    }
    SortByHead(items);
    const char* base = m_bytes.data();
    size_t tail = m_prefixLength + kHeadSize;
    auto byTail = [base, tail](const Item& a, const Item& b) {
        return CompareText(base + a.entry.key + tail, base + b.entry.key + tail) < 0;
    };
    kept = 0;
    for (size_t begin = 0, end; begin < items.size(); begin = end) {
        for (end = begin + 1; end < items.size() && items[end].head == items[begin].head;) ++end;
        // Keys longer than their head that share it are ordered by the rest.
        if (end - begin > 1 && !EndsInHead(items[begin].head)) std::stable_sort(items.begin() + begin, items.begin() + end, byTail);
        for (size_t i = begin; i < end; ++i) {
            bool same = i > begin && (EndsInHead(items[i].head) || !byTail(items[kept - 1], items[i]));
            if (same) items[kept - 1].entry.value = items[i].entry.value;
            else items[kept++] = items[i];
        }
    }
    m_heads.resize(kept);
    m_entries.resize(kept);
    for (size_t i = 0; i < kept; ++i) {
        m_heads[i] = items[i].head;
        m_entries[i] = items[i].entry;
    }
}

}  // namespace mox
}  // namespace kiv_skin
