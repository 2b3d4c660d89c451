// The in-place catalogue index against the plain record walk into an ordered map: the same
// translations for sorted and unsorted files, duplicate keys across the sort, keys cut at zero
// bytes, long shared prefixes and damaged files.
#include "catalogue_files.h"
#include "kiv_skin/intl/mox_index.h"
#include <gtest/gtest.h>
#include <algorithm>
#include <memory>
#include <cstring>
#include <random>

using namespace kiv_skin;

namespace {

struct Indexed {
    mox::Index index;
    mox::WalkResult result;
};

// Indexes a copy of bytes, reserving no spare byte unless asked to.
std::unique_ptr<Indexed> IndexOf(const std::string& bytes, bool spareByte = false)
{
    std::vector<char> file;
    if (spareByte) file.reserve(bytes.size() + 1);
    file.assign(bytes.begin(), bytes.end());
    std::unique_ptr<Indexed> indexed(new Indexed);
    indexed->result = indexed->index.Load(std::move(file));
    return indexed;
}

// Every key of the ordered map is found with its translation, nothing else is counted, and each
// key of probes is found exactly when the map holds it.
::testing::AssertionResult AgreesWithTheMap(const std::string& bytes, const std::vector<std::string>& probes = {})
{
    mox::Catalogue map;
    mox::WalkResult walk = mox::Load(bytes.data(), bytes.size(), map);
    std::unique_ptr<Indexed> indexed = IndexOf(bytes);
    if (indexed->result.stop != walk.stop || indexed->result.records != walk.records)
        return ::testing::AssertionFailure() << "the walk ended differently";
    size_t lookable = map.size() - map.count("");
    if (indexed->index.Size() != lookable)
        return ::testing::AssertionFailure() << indexed->index.Size() << " keys, not " << lookable;
    for (const auto& entry : map) {
        if (entry.first.empty()) continue;
        const char* found = indexed->index.Find(entry.first.c_str());
        if (found == nullptr || entry.second != found)
            return ::testing::AssertionFailure() << "key \"" << entry.first << "\" gives "
                                                 << (found ? found : "nothing") << ", not \"" << entry.second << "\"";
    }
    for (const std::string& bytesOfProbe : probes) {
        std::string probe = bytesOfProbe.c_str();  // as a C string, cut at its first zero byte
        if (probe.empty()) continue;
        bool inMap = map.count(probe) != 0;
        if ((indexed->index.Find(probe.c_str()) != nullptr) != inMap)
            return ::testing::AssertionFailure() << "probe \"" << probe << "\" " << (inMap ? "missed" : "found");
    }
    return ::testing::AssertionSuccess();
}

std::string Records(const std::vector<std::pair<std::string, std::string>>& records)
{
    std::string body;
    for (const auto& r : records) body += Record(r.first, r.second);
    return Mox(body);
}

}  // namespace

TEST(MoxIndex, SortedFileIsIndexedWithoutSorting)
{
    std::unique_ptr<Indexed> indexed = IndexOf(Records({{"Close", "Schliessen"}, {"Open", "Oeffnen"}, {"Save", "Sichern"}}));
    EXPECT_FALSE(indexed->index.NeededSort());
    EXPECT_EQ(3u, indexed->index.Size());
    EXPECT_STREQ("Schliessen", indexed->index.Find("Close"));
    EXPECT_STREQ("Oeffnen", indexed->index.Find("Open"));
    EXPECT_STREQ("Sichern", indexed->index.Find("Save"));
    EXPECT_EQ(nullptr, indexed->index.Find("Quit"));
    EXPECT_EQ(nullptr, indexed->index.Find("open"));
}

TEST(MoxIndex, UnsortedFileIsSorted)
{
    std::unique_ptr<Indexed> indexed = IndexOf(Records({{"Save", "Sichern"}, {"Close", "Schliessen"}, {"Open", "Oeffnen"}}));
    EXPECT_TRUE(indexed->index.NeededSort());
    EXPECT_STREQ("Schliessen", indexed->index.Find("Close"));
    EXPECT_STREQ("Oeffnen", indexed->index.Find("Open"));
    EXPECT_STREQ("Sichern", indexed->index.Find("Save"));
    EXPECT_EQ(nullptr, indexed->index.Find("Apply"));
}

TEST(MoxIndex, OrderIsPlainByteOrder)
{
    const std::string high = "\xCE\xC4\xBC\xFE";  // above every ASCII byte
    EXPECT_FALSE(IndexOf(Records({{"Open", "a"}, {high, "b"}}))->index.NeededSort());
    std::unique_ptr<Indexed> indexed = IndexOf(Records({{high, "b"}, {"Open", "a"}}));
    EXPECT_TRUE(indexed->index.NeededSort());
    EXPECT_STREQ("b", indexed->index.Find(high.c_str()));
    EXPECT_STREQ("a", indexed->index.Find("Open"));
}

TEST(MoxIndex, SecondOfEqualNeighboursWinsInASortedFile)
{
    std::unique_ptr<Indexed> indexed = IndexOf(Records({{"a", "1"}, {"b", "first"}, {"b", "second"}, {"c", "3"}}));
    EXPECT_FALSE(indexed->index.NeededSort());
    EXPECT_EQ(3u, indexed->index.Size());
    EXPECT_STREQ("second", indexed->index.Find("b"));
    EXPECT_STREQ("3", indexed->index.Find("c"));
}

TEST(MoxIndex, LastRecordOfAKeyWinsAcrossTheSort)
{
    // "b" before and after the first record out of order, "a" twice before it.
    std::unique_ptr<Indexed> indexed = IndexOf(Records(
        {{"a", "a1"}, {"a", "a2"}, {"b", "b1"}, {"d", "d1"}, {"c", "c1"}, {"b", "b2"}, {"a", "a3"}, {"b", "b3"}, {"c", "c2"}}));
    EXPECT_TRUE(indexed->index.NeededSort());
    EXPECT_EQ(4u, indexed->index.Size());
    EXPECT_STREQ("a3", indexed->index.Find("a"));
    EXPECT_STREQ("b3", indexed->index.Find("b"));
    EXPECT_STREQ("c2", indexed->index.Find("c"));
    EXPECT_STREQ("d1", indexed->index.Find("d"));
}

TEST(MoxIndex, KeysCutAtZeroBytesCollide)
{
    std::unique_ptr<Indexed> indexed =
        IndexOf(Records({{std::string("ab\0x", 4), "first"}, {"aa", "other"}, {std::string("ab\0y", 4), std::string("second\0z", 8)}}));
    EXPECT_EQ(2u, indexed->index.Size());
    EXPECT_STREQ("second", indexed->index.Find("ab"));
    EXPECT_STREQ("other", indexed->index.Find("aa"));
}

TEST(MoxIndex, KeyCutToNothingIsNeverFound)
{
    std::unique_ptr<Indexed> indexed = IndexOf(Records({{std::string("\0hidden", 7), "x"}, {"Open", "Oeffnen"}}));
    EXPECT_EQ(1u, indexed->index.Size());
    EXPECT_STREQ("Oeffnen", indexed->index.Find("Open"));
    EXPECT_EQ(nullptr, indexed->index.Find(""));
}

TEST(MoxIndex, TranslationsAreTerminatedViewsIntoTheFile)
{
    for (bool spare : {false, true}) {
        std::unique_ptr<Indexed> indexed = IndexOf(Records({{"k1", "one"}, {"k2", ""}, {"k3", "last"}}), spare);
        EXPECT_STREQ("one", indexed->index.Find("k1"));
        EXPECT_STREQ("", indexed->index.Find("k2"));
        EXPECT_STREQ("last", indexed->index.Find("k3"));
        EXPECT_EQ(indexed->index.Find("k1") + 3 + 4 + 2 + 4, indexed->index.Find("k2"));
    }
}

TEST(MoxIndex, SpareByteAvoidsACopy)
{
    std::string bytes = Records({{"k", "v"}});
    std::vector<char> file;
    file.reserve(bytes.size() + 1);
    file.assign(bytes.begin(), bytes.end());
    const char* data = file.data();
    mox::Index index;
    index.Load(std::move(file));
    EXPECT_EQ(data + bytes.size() - 1, index.Find("k"));
}

TEST(MoxIndex, KeysSharingLongPrefixes)
{
    std::vector<std::pair<std::string, std::string>> records;
    std::vector<std::string> probes = {"Menu item", "Menu item number", "Menu item number ", "Menu item number 1234567890123",
                                       "Menu item number 12345678901234", "Menu item number 123456789012345", "Menu iten",
                                       "Menu item number 99999999999999999", "M", "Menu item number 7x"};
    for (int i = 0; i < 3000; ++i) {
        std::string n = std::to_string(i * 7919 % 10007);
        records.push_back({"Menu item number " + n, "v" + n});
        records.push_back({"Menu item number 12345678901234" + n, "long" + n});
        probes.push_back("Menu item number " + n + "0");
        probes.push_back("Menu item number 12345678901234" + n + "x");
    }
    records.push_back({"Menu item number ", "the prefix"});
    records.push_back({"Menu item number 12345678901234", "the long prefix"});
    std::string unsorted = Records(records);
    std::sort(records.begin(), records.end());
    std::string sorted = Records(records);
    EXPECT_TRUE(AgreesWithTheMap(unsorted, probes));
    EXPECT_TRUE(AgreesWithTheMap(sorted, probes));
    EXPECT_FALSE(IndexOf(sorted)->index.NeededSort());
}

TEST(MoxIndex, HostileFilesKeepTheRecordsBeforeTheDamage)
{
    std::string good = Record("Open", "Oeffnen") + Record("Close", "Schliessen");
    for (const std::string& tail : {Length(0x7FFFFFFF) + "x", Length(-1) + "x", Length(1) + "k" + Length(-7),
                                    Length(1) + "k" + Length(0x7FFFFFFF) + "v", Length(3).substr(0, 2), Length(0)}) {
        std::unique_ptr<Indexed> indexed = IndexOf(Mox(good + tail));
        EXPECT_NE(mox::Stop::End, indexed->result.stop);
        EXPECT_STREQ("Oeffnen", indexed->index.Find("Open"));
        EXPECT_STREQ("Schliessen", indexed->index.Find("Close"));
        EXPECT_EQ(2u, indexed->index.Size());
    }
    for (const std::string& bytes : {std::string(), std::string("mox1.0"), "mox1.1" + good}) {
        std::unique_ptr<Indexed> indexed = IndexOf(bytes);
        EXPECT_EQ(0u, indexed->index.Size());
        EXPECT_EQ(nullptr, indexed->index.Find("Open"));
    }
}

TEST(MoxIndex, RandomCataloguesAgreeWithTheMap)
{
    std::mt19937 random(2024);
    const char alphabet[] = {'a', 'b', 'c', '\0', '\x7F', '\x80', '\xFE'};
    auto text = [&](size_t longest) {
        std::string s(random() % (longest + 1), 'a');
        for (char& c : s) c = alphabet[random() % sizeof(alphabet)];
        return s;
    };
    for (int round = 0; round < 300; ++round) {
        std::string prefix = text(12);
        std::string body;
        std::vector<std::string> probes;
        for (int n = random() % 60; n >= 0; --n) {
            std::string key = prefix + text(random() % 2 ? 3 : 20);
            if (key.empty()) key = "a";
            body += Record(key, text(6));
            probes.push_back(key.c_str());
            probes.push_back(prefix + text(20));
        }
        ASSERT_TRUE(AgreesWithTheMap(Mox(body), probes)) << "round " << round;
    }
}

TEST(MoxIndex, RandomDamageAgreesWithTheMap)
{
    std::string valid = Records({{"x", ""}, {"Open", "Oeffnen"}, {"Close", "Schliessen"}, {"yy", "zzz"}, {"Close", "2"}});
    std::mt19937 random(777);
    for (int round = 0; round < 5000; ++round) {
        std::string bytes = valid;
        for (int n = random() % 4; n >= 0; --n) bytes[random() % bytes.size()] = char(random() % 256);
        bytes.resize(random() % (bytes.size() + 1));
        ASSERT_TRUE(AgreesWithTheMap(bytes, {"Open", "Close", "x", "yy"})) << "round " << round;
    }
}

TEST(MoxIndex, ClearForgetsEverything)
{
    std::unique_ptr<Indexed> indexed = IndexOf(Records({{"k", "v"}}));
    indexed->index.Clear();
    EXPECT_EQ(0u, indexed->index.Size());
    EXPECT_EQ(nullptr, indexed->index.Find("k"));
    EXPECT_EQ(0u, indexed->index.MemoryUsed());
}
