#include "kiv_skin/intl/mox_index.h"
#include <algorithm>
#include <cstring>

namespace kiv_skin {
namespace mox {
namespace {

const size_t kHeadSize = 8;

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

// A text that ends within its head leaves a zero in the head's last byte.
bool EndsInHead(uint64_t head) { return (head & 0xFF) == 0; }

int CompareText(const char* a, const char* b)
{
    const unsigned char* x = reinterpret_cast<const unsigned char*>(a);
    const unsigned char* y = reinterpret_cast<const unsigned char*>(b);
    while (*x != 0 && *x == *y) ++x, ++y;
    return int(*x) - int(*y);
}

}  // namespace

WalkResult Index::Load(std::vector<char>&& file)
{
    Clear();
    if (file.size() >= UINT32_MAX) return {Stop::TooLarge, 0, 0};
    m_bytes = std::move(file);
    char* base = m_bytes.data();
    // A translation's end is the next record's key length: terminated once that has been read.
    char* pendingEnd = nullptr;
    m_entries.reserve(m_bytes.size() / 32);
    WalkResult result = Walk(base, m_bytes.size(), [&](const char* key, size_t keySize, const char* value, size_t valueSize) {
        if (pendingEnd) *pendingEnd = '\0';
        base[key - base + keySize] = '\0';  // over the translation length, already read
        pendingEnd = base + (value - base) + valueSize;
        // A key cut to nothing can never be asked for.
        if (*key != '\0') m_entries.push_back({uint32_t(key - base), uint32_t(value - base)});
    });
    if (pendingEnd == base + m_bytes.size()) m_bytes.push_back('\0');
    else if (pendingEnd) *pendingEnd = '\0';
    if (m_entries.empty()) return result;
    FindCommonPrefix();
    size_t outOfOrder = IndexInFileOrder();
    if (outOfOrder < m_entries.size()) SortFrom(outOfOrder);
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

int Index::Compare(size_t i, uint64_t head, const char* rest) const
{
    if (m_heads[i] != head) return m_heads[i] < head ? -1 : 1;
    if (EndsInHead(head)) return 0;
    return CompareText(KeyAt(i) + m_prefixLength + kHeadSize, rest + kHeadSize);
}

// Keys in any order share the prefix that the first shares with every other.
void Index::FindCommonPrefix()
{
    const char* first = KeyAt(0);
    size_t length = std::strlen(first);
    for (size_t i = 1; i < m_entries.size() && length > 0; ++i) {
        const char* key = KeyAt(i);
        size_t same = 0;
        while (same < length && key[same] == first[same]) ++same;
        length = same;
    }
    m_prefixLength = length;
}

size_t Index::IndexInFileOrder()
{
    size_t count = m_entries.size();
    m_heads.resize(count);
    for (size_t i = 0; i < count; ++i) m_heads[i] = Head(KeyAt(i) + m_prefixLength);
    size_t kept = 1;
    for (size_t i = 1; i < count; ++i) {
        int order = Compare(kept - 1, m_heads[i], KeyAt(i) + m_prefixLength);
        if (order > 0) {
            std::copy(m_heads.begin() + i, m_heads.end(), m_heads.begin() + kept);
            std::copy(m_entries.begin() + i, m_entries.end(), m_entries.begin() + kept);
            m_heads.resize(kept + count - i);
            m_entries.resize(kept + count - i);
            return kept;
        }
        if (order == 0) {
            m_entries[kept - 1].value = m_entries[i].value;
        } else {
            m_heads[kept] = m_heads[i];
            m_entries[kept++] = m_entries[i];
        }
    }
    m_heads.resize(kept);
    m_entries.resize(kept);
    return kept;
}

// A stable sort keeps equal keys in file order, so the last of each run is the record that wins.
void Index::SortFrom(size_t outOfOrder)
{
    m_neededSort = true;
    struct Item {
        uint64_t head;
        Entry entry;
    };
    std::vector<Item> items(m_entries.size());
    for (size_t i = 0; i < items.size(); ++i) items[i] = {m_heads[i], m_entries[i]};
    const char* base = m_bytes.data();
    size_t tail = m_prefixLength + kHeadSize;
    auto less = [base, tail](const Item& a, const Item& b) {
        if (a.head != b.head) return a.head < b.head;
        return !EndsInHead(a.head) && CompareText(base + a.entry.key + tail, base + b.entry.key + tail) < 0;
    };
    // The entries before the first out of order are ascending already.
    std::stable_sort(items.begin() + outOfOrder, items.end(), less);
    std::inplace_merge(items.begin(), items.begin() + outOfOrder, items.end(), less);
    size_t kept = 0;
    for (size_t i = 0; i < items.size(); ++i) {
        if (kept > 0 && !less(items[kept - 1], items[i])) {
            items[kept - 1].entry.value = items[i].entry.value;
        } else {
            items[kept++] = items[i];
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
