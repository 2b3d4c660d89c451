// The record walk over catalogue bytes, hostile files included, and the language table.
#include "catalogue_files.h"
#include "kiv_skin/intl/languages.h"
#include "kiv_skin/intl/mox_format.h"
#include <gtest/gtest.h>
#include <random>

using namespace kiv_skin;
using mox::Stop;

namespace {

struct Loaded {
    mox::WalkResult result;
    mox::Catalogue catalogue;
};

Loaded LoadBytes(const std::string& bytes)
{
    Loaded loaded;
    loaded.result = mox::Load(bytes.data(), bytes.size(), loaded.catalogue);
    return loaded;
}

const std::string kTwoRecords = Record("Open", "Oeffnen") + Record("Close", "Schliessen");

}  // namespace

TEST(MoxWalk, ReadsEveryRecordToTheEnd)
{
    std::string bytes = Mox(kTwoRecords);
    Loaded loaded = LoadBytes(bytes);
    EXPECT_EQ(Stop::End, loaded.result.stop);
    EXPECT_EQ(bytes.size(), loaded.result.offset);
    EXPECT_EQ(2u, loaded.result.records);
    EXPECT_EQ((mox::Catalogue{{"Close", "Schliessen"}, {"Open", "Oeffnen"}}), loaded.catalogue);
}

TEST(MoxWalk, FilesShorterThanTenBytesHoldNothing)
{
    for (const std::string& bytes : {std::string(), std::string("mox1.0"), Mox("\x01\x00\x00"),
                                     std::string("mox1.", 5)}) {
        Loaded loaded = LoadBytes(bytes);
        EXPECT_EQ(Stop::TooShort, loaded.result.stop) << bytes.size() << " bytes";
        EXPECT_TRUE(loaded.catalogue.empty());
    }
}

TEST(MoxWalk, TenBytesWithKeyLengthZeroLoadNothing)
{
    Loaded loaded = LoadBytes(Mox(Length(0)));
    EXPECT_EQ(Stop::BadKeyLength, loaded.result.stop);
    EXPECT_EQ(6u, loaded.result.offset);
    EXPECT_TRUE(loaded.catalogue.empty());
}

TEST(MoxWalk, WrongMagicLoadsNothing)
{
    Loaded loaded = LoadBytes("mox1.1" + kTwoRecords);
    EXPECT_EQ(Stop::BadMagic, loaded.result.stop);
    EXPECT_TRUE(loaded.catalogue.empty());
}

TEST(MoxWalk, EmptyTranslationIsKept)
{
    Loaded loaded = LoadBytes(Mox(Record("Key", "")));
    EXPECT_EQ(Stop::End, loaded.result.stop);
    ASSERT_EQ(1u, loaded.catalogue.count("Key"));
    EXPECT_EQ("", loaded.catalogue["Key"]);
}

TEST(MoxWalk, LastRecordOfAKeyWins)
{
    Loaded loaded = LoadBytes(Mox(Record("k", "first") + Record("other", "x") + Record("k", "second")));
    EXPECT_EQ(3u, loaded.result.records);
    EXPECT_EQ("second", loaded.catalogue["k"]);
    EXPECT_EQ(2u, loaded.catalogue.size());
}

TEST(MoxWalk, ZeroBytesCutKeysAndTranslations)
{
    Loaded loaded = LoadBytes(Mox(Record(std::string("ab\0cd", 5), std::string("x\0y", 3))));
    EXPECT_EQ((mox::Catalogue{{"ab", "x"}}), loaded.catalogue);
}

TEST(MoxWalk, WalkHandsOverRawBytesWithZeros)
{
    std::string bytes = Mox(Record(std::string("a\0b", 3), std::string("\0", 1)));
    std::string key, value;
    mox::Walk(bytes.data(), bytes.size(), [&](const char* k, size_t kn, const char* v, size_t vn) {
        key.assign(k, kn);
        value.assign(v, vn);
    });
    EXPECT_EQ(std::string("a\0b", 3), key);
    EXPECT_EQ(std::string("\0", 1), value);
}

TEST(MoxWalk, KeyLengthPastTheEndKeepsEarlierRecords)
{
    std::string good = Record("Open", "Oeffnen");
    Loaded loaded = LoadBytes(Mox(good + Length(100) + "short"));
    EXPECT_EQ(Stop::BadKeyLength, loaded.result.stop);
    EXPECT_EQ(6 + good.size(), loaded.result.offset);
    EXPECT_EQ((mox::Catalogue{{"Open", "Oeffnen"}}), loaded.catalogue);
}

TEST(MoxWalk, KeyLengthExactlyToTheEndLeavesNoRoomForTheTranslationLength)
{
    Loaded loaded = LoadBytes(Mox(Record("a", "b") + Length(3) + "xyz"));
    EXPECT_EQ(Stop::ValueLengthCut, loaded.result.stop);
    EXPECT_EQ(1u, loaded.catalogue.size());
}

TEST(MoxWalk, HugeKeyLengthStops)
{
    Loaded loaded = LoadBytes(Mox(Record("a", "b") + Length(0x7FFFFFFF) + std::string(64, 'k')));
    EXPECT_EQ(Stop::BadKeyLength, loaded.result.stop);
    EXPECT_EQ((mox::Catalogue{{"a", "b"}}), loaded.catalogue);
}

TEST(MoxWalk, NegativeKeyLengthStops)
{
    for (int32_t length : {-1, -4, INT32_MIN}) {
        Loaded loaded = LoadBytes(Mox(Record("a", "b") + Length(length) + std::string(16, 'k')));
        EXPECT_EQ(Stop::BadKeyLength, loaded.result.stop) << length;
        EXPECT_EQ(1u, loaded.catalogue.size());
    }
}

TEST(MoxWalk, NegativeOrHugeTranslationLengthStops)
{
    for (int32_t length : {-1, INT32_MIN, 0x7FFFFFFF, 17}) {
        Loaded loaded = LoadBytes(Mox(Record("a", "b") + Length(1) + "k" + Length(length) + std::string(16, 'v')));
        EXPECT_EQ(Stop::BadValueLength, loaded.result.stop) << length;
        EXPECT_EQ((mox::Catalogue{{"a", "b"}}), loaded.catalogue);
    }
}

TEST(MoxWalk, TranslationLengthExactlyToTheEndIsAccepted)
{
    Loaded loaded = LoadBytes(Mox(Length(1) + "k" + Length(16) + std::string(16, 'v')));
    EXPECT_EQ(Stop::End, loaded.result.stop);
    EXPECT_EQ(std::string(16, 'v'), loaded.catalogue["k"]);
}

TEST(MoxWalk, LengthFieldCutInHalfAtTheEndStops)
{
    std::string good = Record("a", "b");
    Loaded keyCut = LoadBytes(Mox(good + Length(5).substr(0, 2)));
    EXPECT_EQ(Stop::KeyLengthCut, keyCut.result.stop);
    EXPECT_EQ(6 + good.size(), keyCut.result.offset);
    EXPECT_EQ(1u, keyCut.catalogue.size());

    Loaded valueCut = LoadBytes(Mox(good + Length(1) + "k" + Length(5).substr(0, 2)));
    EXPECT_EQ(Stop::ValueLengthCut, valueCut.result.stop);
    EXPECT_EQ((mox::Catalogue{{"a", "b"}}), valueCut.catalogue);
}

TEST(MoxWalk, AHundredThousandRecords)
{
    std::string body;
    for (int i = 0; i < 100000; ++i) body += Record("key" + std::to_string(i), "value" + std::to_string(i));
    Loaded loaded = LoadBytes(Mox(body));
    EXPECT_EQ(Stop::End, loaded.result.stop);
    EXPECT_EQ(100000u, loaded.catalogue.size());
    EXPECT_EQ("value0", loaded.catalogue["key0"]);
    EXPECT_EQ("value99999", loaded.catalogue["key99999"]);
}

TEST(MoxWalk, LoadKeepsEntriesNoRecordReplaces)
{
    mox::Catalogue catalogue{{"old", "kept"}, {"a", "replaced"}};
    std::string bytes = Mox(Record("a", "new"));
    mox::Load(bytes.data(), bytes.size(), catalogue);
    EXPECT_EQ((mox::Catalogue{{"a", "new"}, {"old", "kept"}}), catalogue);
}

// Random damage to a valid file: the walk never reads outside the buffer, stops at or before its
// end, visits only whole records and reaches the end only when the records fill the file.
TEST(MoxWalk, RandomDamageNeverReadsOutsideTheBuffer)
{
    std::string valid = Mox(kTwoRecords + Record("x", "") + Record("yy", "zzz"));
    std::mt19937 random(12345);
    for (int round = 0; round < 20000; ++round) {
        std::string bytes = valid;
        for (int n = random() % 4; n >= 0; --n) bytes[random() % bytes.size()] = char(random() % 256);
        bytes.resize(random() % (bytes.size() + 1));
        const char* begin = bytes.data();
        const char* end = begin + bytes.size();
        size_t consumed = 6;
        mox::WalkResult result = mox::Walk(begin, bytes.size(), [&](const char* k, size_t kn, const char* v, size_t vn) {
            ASSERT_TRUE(k >= begin && k + kn <= end && v >= begin && v + vn <= end);
            ASSERT_GE(kn, 1u);
            consumed += 8 + kn + vn;
        });
        ASSERT_LE(result.offset, bytes.size());
        if (result.stop == Stop::TooShort || result.stop == Stop::BadMagic) continue;
        ASSERT_GE(result.offset, consumed);
        if (result.stop == Stop::End) {
            ASSERT_EQ(bytes.size(), consumed);
        }
    }
}

TEST(MoxWrite, AppendedRecordsWalkBack)
{
    std::string file = mox::kMagic;
    ASSERT_TRUE(mox::AppendRecord(file, "Open", "Oeffnen"));
    ASSERT_TRUE(mox::AppendRecord(file, "Close", "Schliessen"));
    ASSERT_TRUE(mox::AppendRecord(file, "Empty", ""));
    EXPECT_EQ(Mox(kTwoRecords + Record("Empty", "")), file);
    EXPECT_FALSE(mox::AppendRecord(file, "", "no key"));
}

TEST(MoxWrite, DescribesEveryStop)
{
    for (Stop stop : {Stop::End, Stop::TooShort, Stop::BadMagic, Stop::KeyLengthCut, Stop::BadKeyLength,
                      Stop::ValueLengthCut, Stop::BadValueLength})
        EXPECT_STRNE("unknown", mox::Describe(stop));
}

TEST(Languages, ExplicitChoiceWinsOverTheCodePage)
{
    EXPECT_EQ(languages::kEn, languages::Choose(1, 936));
    EXPECT_EQ(languages::kZhCN, languages::Choose(2, 1252));
    EXPECT_EQ(languages::kZhTW, languages::Choose(3, 936));
}

TEST(Languages, AutomaticChoiceFollowsTheCodePage)
{
    for (int requested : {0, 4, -1, 100}) {
        EXPECT_EQ(languages::kZhCN, languages::Choose(requested, 936));
        EXPECT_EQ(languages::kZhCN, languages::Choose(requested, 54936));
        EXPECT_EQ(languages::kZhTW, languages::Choose(requested, 950));
        EXPECT_EQ(languages::kEn, languages::Choose(requested, 1252));
        EXPECT_EQ(languages::kEn, languages::Choose(requested, 932));
        EXPECT_EQ(languages::kEn, languages::Choose(requested, 65001));
    }
}

TEST(Languages, DirectoryNamesAndCodePages)
{
    EXPECT_STREQ("en", languages::DirName(1));
    EXPECT_STREQ("zh_CN", languages::DirName(2));
    EXPECT_STREQ("zh_TW", languages::DirName(3));
    EXPECT_STREQ("", languages::DirName(0));
    EXPECT_EQ(languages::kZhTW, languages::FromDirName("zh_TW"));
    EXPECT_EQ(languages::kAuto, languages::FromDirName("zh"));
    EXPECT_EQ(languages::kAuto, languages::FromDirName(nullptr));
    EXPECT_EQ(936u, languages::CodePage(languages::kZhCN));
    EXPECT_EQ(950u, languages::CodePage(languages::kZhTW));
    EXPECT_EQ(1252u, languages::CodePage(languages::kEn));
}
