// A catalogue held as the file's own bytes: keys and translations are views into one buffer,
// terminated in place, under a compact sorted index of the keys. Loading copies no string; a file
// whose keys are already in ascending byte order (as moxc writes them) is indexed in one linear
// pass, any other is sorted once. Look-ups are binary searches that mostly compare 8-byte
// integers: every key shares the catalogue's common prefix, so each is indexed by the 8 bytes
// that follow it.
#pragma once
#include "kiv_skin/intl/mox_format.h"
#include <cstdint>
#include <vector>

namespace kiv_skin {
namespace mox {

class Index {
public:
    // Replaces the index with the records of a whole file image, which it keeps and terminates
    // in place. Keys and translations are cut at their first zero byte and the last record of a
    // key wins, as in Load. Reserve one byte more than the file's size so that terminating the
    // last translation copies nothing. Files of 4 GiB or more are not indexed.
    WalkResult Load(std::vector<char>&& file);
    void Clear();

    // The translation of key, or null when the catalogue has none. Stays valid until the next
    // Load or Clear.
    const char* Find(const char* key) const;

    size_t Size() const { return m_heads.size(); }
    // Bytes held: the file image and the index.
    size_t MemoryUsed() const;
    // Whether the last Load had to sort (the file's keys were not in ascending order).
    bool NeededSort() const { return m_neededSort; }

private:
    struct Entry {
        uint32_t key;    // offsets into m_bytes
        uint32_t value;
    };

    const char* KeyAt(size_t i) const { return m_bytes.data() + m_entries[i].key; }
    // The 8 bytes of entry i's key after the common prefix, as a big-endian integer.
    uint64_t HeadAt(size_t i) const;
    // Orders entry i against a key given by its head and its text after the common prefix.
    int Compare(size_t i, uint64_t head, const char* rest) const;
    // Terminates the keys and translations in place and lists the records whose key is not
    // empty, in file order, with the prefix their keys share.
    WalkResult CollectRecords();
    // Keeps the file's order while it is ascending, the later of two equal neighbours giving the
    // translation. Answers the position of the first entry whose key is out of order (the
    // entries before it then kept, in order, as the first Size() entries), or the count.
    size_t IndexInFileOrder();
    // Sorts the kept entries and those from outOfOrder on.
    void Sort(size_t outOfOrder);

    struct Item {
        uint64_t head;
        Entry entry;
    };
    static void SortByHead(std::vector<Item>& items);

    std::vector<char> m_bytes;
    std::vector<uint64_t> m_heads;  // the 8 key bytes after the common prefix, big-endian
    std::vector<Entry> m_entries;   // parallel to m_heads
    size_t m_prefixLength = 0;      // bytes every key shares
    bool m_neededSort = false;
};

}  // namespace mox
}  // namespace kiv_skin
