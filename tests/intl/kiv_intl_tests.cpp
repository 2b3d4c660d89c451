// KivIntl with catalogue files under the test executable's "locale" directory. Suites named
// AutoAt<code page> and FreshProcess run in processes of their own (see CMakeLists.txt).
#include "catalogue_files.h"
#include "kiv_skin/intl/kiv_intl.h"
#include <windows.h>
#include <gtest/gtest.h>
#include <cstring>
#include <memory>
#include <type_traits>

using kiv_skin::KivIntl;

namespace {

KivIntl& Intl() { return KivIntl::Instance(); }

const char kFileZh[] = "\xCE\xC4\xBC\xFE";  // 文件 in GB2312

class KivIntlTest : public ::testing::Test {
protected:
    // Writes the package's en catalogue and prepares it.
    void Prepare(const std::string& bytes, KivIntl::LanguageName lang = KivIntl::LANGUAGE_EN)
    {
        file.reset();
        file.reset(new CatalogueFile("en", package, bytes));
        Intl().PreparePackage(lang, package.c_str());
    }

    std::string package = UniquePackage("intl");
    std::unique_ptr<CatalogueFile> file;
};

}  // namespace

static_assert(!std::is_default_constructible<KivIntl>::value, "the constructor is protected");
static_assert(!std::is_destructible<KivIntl>::value, "the destructor is protected");

TEST(FreshProcess, NothingLoadedBeforeAnyPackage)
{
    EXPECT_EQ(KivIntl::LANGUAGE_AUTO, Intl().GetPackageLanguage());
    const char* key = "Open";
    EXPECT_EQ(key, Intl().GetText(key));
    EXPECT_STREQ("", Intl().GetText(nullptr));
}

TEST_F(KivIntlTest, TranslatesKeysFoundAndReturnsOthersUnchanged)
{
    Prepare(Mox(Record("Open", "Oeffnen") + Record("File", kFileZh)));
    EXPECT_EQ(KivIntl::LANGUAGE_EN, Intl().GetPackageLanguage());
    EXPECT_STREQ("Oeffnen", Intl().GetText("Open"));
    EXPECT_STREQ(kFileZh, Intl().GetText("File"));
    const char* missing = "Save";
    EXPECT_EQ(missing, Intl().GetText(missing));
    EXPECT_EQ(std::string("open"), Intl().GetText("open"));  // case-sensitive
}

TEST_F(KivIntlTest, TranslationsAreReturnedByPointerIntoTheCatalogue)
{
    Prepare(Mox(Record("Open", "Oeffnen")));
    EXPECT_EQ(Intl().GetText("Open"), Intl().GetText(std::string("Open").c_str()));
}

TEST_F(KivIntlTest, NullAndEmptyKeysGiveTheEmptyString)
{
    Prepare(Mox(Record("Open", "Oeffnen")));
    ASSERT_NE(nullptr, Intl().GetText(nullptr));
    EXPECT_STREQ("", Intl().GetText(nullptr));
    EXPECT_STREQ("", Intl().GetText(""));
}

TEST_F(KivIntlTest, EmptyTranslationGivesTheEmptyStringNotTheKey)
{
    Prepare(Mox(Record("Hidden", "")));
    EXPECT_STREQ("", Intl().GetText("Hidden"));
}

TEST_F(KivIntlTest, SecondRecordOfAKeyWins)
{
    Prepare(Mox(Record("Open", "first") + Record("Open", "second")));
    EXPECT_STREQ("second", Intl().GetText("Open"));
}

TEST_F(KivIntlTest, SortedAndUnsortedFilesTranslateAlike)
{
    std::string sorted = Mox(Record("Close", "Schliessen") + Record("Open", "Oeffnen") + Record("Save", "Sichern"));
    std::string unsorted = Mox(Record("Save", "Sichern") + Record("Open", "Oeffnen") + Record("Close", "Schliessen"));
    for (const std::string& bytes : {sorted, unsorted}) {
        Prepare(bytes);
        EXPECT_STREQ("Schliessen", Intl().GetText("Close"));
        EXPECT_STREQ("Oeffnen", Intl().GetText("Open"));
        EXPECT_STREQ("Sichern", Intl().GetText("Save"));
        const char* missing = "Quit";
        EXPECT_EQ(missing, Intl().GetText(missing));
    }
}

TEST_F(KivIntlTest, LastRecordOfAKeyWinsAcrossTheSort)
{
    Prepare(Mox(Record("Open", "first") + Record("Save", "Sichern") + Record("Close", "Schliessen") +
                Record("Open", "second") + Record("Close", "Zu")));
    EXPECT_STREQ("second", Intl().GetText("Open"));
    EXPECT_STREQ("Zu", Intl().GetText("Close"));
    EXPECT_STREQ("Sichern", Intl().GetText("Save"));
}

TEST_F(KivIntlTest, ZeroBytesCutKeysAndTranslations)
{
    Prepare(Mox(Record(std::string("Op\0en", 5), std::string("Oe\0ffnen", 8))));
    EXPECT_STREQ("Oe", Intl().GetText("Op"));
    EXPECT_STREQ("Open", Intl().GetText("Open"));
}

TEST_F(KivIntlTest, KeyLengthPastTheEndKeepsEarlierRecords)
{
    Prepare(Mox(Record("Open", "Oeffnen") + Record("Close", "Schliessen") + Length(50) + "Save"));
    EXPECT_STREQ("Oeffnen", Intl().GetText("Open"));
    EXPECT_STREQ("Schliessen", Intl().GetText("Close"));
    EXPECT_STREQ("Save", Intl().GetText("Save"));
}

TEST_F(KivIntlTest, HostileLengthsKeepEarlierRecords)
{
    for (const std::string& tail : {Length(0x7FFFFFFF) + "x", Length(-1) + "x", Length(1) + "k" + Length(-7),
                                    Length(1) + "k" + Length(0x7FFFFFFF) + "v", Length(3).substr(0, 2),
                                    Length(1) + "k" + Length(3).substr(0, 2)}) {
        Prepare(Mox(Record("Open", "Oeffnen") + tail));
        EXPECT_STREQ("Oeffnen", Intl().GetText("Open")) << tail.size();
        EXPECT_STREQ("k", Intl().GetText("k"));
    }
}

TEST_F(KivIntlTest, TenByteFileWithKeyLengthZeroLoadsNothing)
{
    Prepare(Mox(Record("Open", "Oeffnen")));
    Prepare(Mox(Length(0)));
    EXPECT_STREQ("Open", Intl().GetText("Open"));
    EXPECT_EQ(KivIntl::LANGUAGE_EN, Intl().GetPackageLanguage());
}

TEST_F(KivIntlTest, FilesOfSixAndNineBytesOrWrongMagicLoadNothing)
{
    for (const std::string& bytes : {std::string("mox1.0"), Mox("\x05\x00\x00"), "MOX1.0" + Record("Open", "x")}) {
        Prepare(Mox(Record("Open", "Oeffnen")));
        ASSERT_STREQ("Oeffnen", Intl().GetText("Open"));
        Prepare(bytes);
        EXPECT_STREQ("Open", Intl().GetText("Open")) << bytes.size() << " bytes";
    }
}

TEST_F(KivIntlTest, MissingFileEmptiesTheCatalogueAndRecordsTheLanguage)
{
    Prepare(Mox(Record("Open", "Oeffnen")));
    Intl().PreparePackage(KivIntl::LANGUAGE_ZH_TW, package.c_str());  // no zh_TW file
    EXPECT_STREQ("Open", Intl().GetText("Open"));
    EXPECT_EQ(KivIntl::LANGUAGE_ZH_TW, Intl().GetPackageLanguage());
}

TEST_F(KivIntlTest, OnePackageReplacesAnother)
{
    std::string other = UniquePackage("intl_other");
    CatalogueFile otherFile("en", other, Mox(Record("Close", "Schliessen")));
    Prepare(Mox(Record("Open", "Oeffnen")));
    Intl().PreparePackage(KivIntl::LANGUAGE_EN, other.c_str());
    EXPECT_STREQ("Schliessen", Intl().GetText("Close"));
    EXPECT_STREQ("Open", Intl().GetText("Open"));
}

TEST_F(KivIntlTest, ExplicitLanguagesLoadTheirOwnDirectories)
{
    CatalogueFile cn("zh_CN", package, Mox(Record("File", kFileZh)));
    CatalogueFile tw("zh_TW", package, Mox(Record("File", "\xC0\xC9\xAE\xD7")));  // 檔案 in Big5
    Intl().PreparePackage(KivIntl::LANGUAGE_ZH_CN, package.c_str());
    EXPECT_STREQ(kFileZh, Intl().GetText("File"));
    EXPECT_EQ(KivIntl::LANGUAGE_ZH_CN, Intl().GetPackageLanguage());
    Intl().PreparePackage(KivIntl::LANGUAGE_ZH_TW, package.c_str());
    EXPECT_STREQ("\xC0\xC9\xAE\xD7", Intl().GetText("File"));
    EXPECT_EQ(KivIntl::LANGUAGE_ZH_TW, Intl().GetPackageLanguage());
}

TEST_F(KivIntlTest, AHundredThousandRecordsFromAFile)
{
    std::string body;
    for (int i = 0; i < 100000; ++i) body += Record("k" + std::to_string(i), "v" + std::to_string(i));
    Prepare(Mox(body + Length(-1)));
    EXPECT_STREQ("v0", Intl().GetText("k0"));
    EXPECT_STREQ("v54321", Intl().GetText("k54321"));
    EXPECT_STREQ("v99999", Intl().GetText("k99999"));
}

TEST_F(KivIntlTest, SixtyFourMebibyteFile)
{
    const size_t total = 64u << 20;
    std::string head = Record("Open", "Oeffnen") + Record("Big", "");
    std::string tail = Record("Close", "Schliessen");
    std::string bytes = Mox(head);
    size_t value = total - bytes.size() - tail.size();
    bytes.resize(bytes.size() - 4);
    bytes += Length(int32_t(value)) + std::string(value, 'v') + tail;
    ASSERT_EQ(total, bytes.size());
    Prepare(bytes);
    EXPECT_STREQ("Oeffnen", Intl().GetText("Open"));
    EXPECT_EQ(value, strlen(Intl().GetText("Big")));
    EXPECT_STREQ("Schliessen", Intl().GetText("Close"));
}

TEST_F(KivIntlTest, RemovePrefixGivesTheTextAfterTheLastSeparator)
{
    Prepare(Mox(Record("menu", "x:y:Quit") + Record("trail", "Quit|")));
    EXPECT_STREQ("File", Intl().RemovePrefix("&File", '&'));
    EXPECT_STREQ("c", Intl().RemovePrefix("a|b|c", '|'));
    EXPECT_STREQ("Quit", Intl().RemovePrefix("menu", ':'));
    EXPECT_STREQ("", Intl().RemovePrefix("trail", '|'));
    const char* plain = "no separator";
    EXPECT_EQ(plain, Intl().RemovePrefix(plain, '|'));
    EXPECT_EQ(plain, Intl().RemovePrefix(plain, '\0'));
    EXPECT_STREQ("", Intl().RemovePrefix(nullptr, '|'));
    EXPECT_STREQ("", Intl().RemovePrefix("", '|'));
}

TEST_F(KivIntlTest, LF2CRLFIntoAString)
{
    Prepare(Mox(Record("two lines", "one\ntwo\n") + Record("crlf", "a\r\nb")));
    std::string out = "old contents";
    const char* result = Intl().LF2CRLF("two lines", out);
    EXPECT_EQ("one\r\ntwo\r\n", out);
    EXPECT_EQ(out.c_str(), result);
    EXPECT_STREQ("a\r\r\nb", Intl().LF2CRLF("crlf", out));  // the carriage return is doubled
    EXPECT_STREQ("x\r\ny", Intl().LF2CRLF("x\ny", out));
    EXPECT_STREQ("", Intl().LF2CRLF(nullptr, out));
    EXPECT_TRUE(out.empty());
}

TEST_F(KivIntlTest, LF2CRLFIntoABufferNeverSplitsThePair)
{
    Prepare(Mox(Record("k", "ab\ncd")));
    char buffer[16];
    auto convert = [&](const char* key, int size) {
        memset(buffer, '#', sizeof buffer);
        const char* result = Intl().LF2CRLF(key, buffer, size);
        EXPECT_EQ(buffer, result);
        EXPECT_EQ('#', buffer[size]) << "wrote past size " << size;
        return std::string(result);
    };
    EXPECT_EQ("ab\r\n", convert("ab\ncd", 5));
    EXPECT_EQ("ab", convert("ab\ncd", 4));
    EXPECT_EQ("ab", convert("ab\ncd", 3));
    EXPECT_EQ("a", convert("ab\ncd", 2));
    EXPECT_EQ("", convert("ab\ncd", 1));
    EXPECT_EQ("ab\r\ncd", convert("ab\ncd", 7));
    EXPECT_EQ("ab\r\ncd", convert("k", 15));  // the translation is converted
    EXPECT_EQ("a\r\r\n", convert("a\r\n", 5));
    EXPECT_EQ("", convert(nullptr, 8));
}

TEST_F(KivIntlTest, GetCodePageIsTheAnsiCodePageWhateverTheLanguage)
{
    Prepare(Mox(Record("a", "b")), KivIntl::LANGUAGE_ZH_TW);
    EXPECT_EQ(GetACP(), KivIntl::GetCodePage());
}

TEST_F(KivIntlTest, AssignmentCopiesNothing)
{
    struct Other : KivIntl {};
    Other other;
    other.PreparePackage(KivIntl::LANGUAGE_ZH_TW, package.c_str());
    ASSERT_EQ(KivIntl::LANGUAGE_ZH_TW, other.GetPackageLanguage());
    Prepare(Mox(Record("a", "b")));
    ASSERT_EQ(KivIntl::LANGUAGE_EN, Intl().GetPackageLanguage());
    KivIntl& result = (Intl() = other);
    EXPECT_EQ(&Intl(), &result);
    EXPECT_EQ(KivIntl::LANGUAGE_EN, Intl().GetPackageLanguage());
}

TEST_F(KivIntlTest, InstanceIsOneObject) { EXPECT_EQ(&KivIntl::Instance(), &KivIntl::Instance()); }

// The automatic choice, each in a process whose ANSI code page comes from its locale.
namespace {

void ExpectAutomaticChoice(unsigned codePage, KivIntl::LanguageName expected)
{
    ASSERT_EQ(codePage, GetACP()) << "the process did not run under the intended code page";
    ASSERT_EQ(codePage, KivIntl::GetCodePage());
    std::string package = UniquePackage("auto");
    CatalogueFile en("en", package, Mox(Record("which", "en")));
    CatalogueFile cn("zh_CN", package, Mox(Record("which", "zh_CN")));
    CatalogueFile tw("zh_TW", package, Mox(Record("which", "zh_TW")));
    const char* names[] = {"", "en", "zh_CN", "zh_TW"};
    for (int lang : {0, 4, -1, 1000}) {
        Intl().PreparePackage(KivIntl::LanguageName(lang), package.c_str());
        EXPECT_EQ(expected, Intl().GetPackageLanguage()) << "requested " << lang;
        EXPECT_STREQ(names[expected], Intl().GetText("which")) << "requested " << lang;
    }
    for (int lang : {1, 2, 3}) {
        Intl().PreparePackage(KivIntl::LanguageName(lang), package.c_str());
        EXPECT_EQ(lang, Intl().GetPackageLanguage());
        EXPECT_STREQ(names[lang], Intl().GetText("which"));
    }
}

}  // namespace

TEST(AutoAt936, ChoosesSimplifiedChinese) { ExpectAutomaticChoice(936, KivIntl::LANGUAGE_ZH_CN); }
TEST(AutoAt950, ChoosesTraditionalChinese) { ExpectAutomaticChoice(950, KivIntl::LANGUAGE_ZH_TW); }
TEST(AutoAt1252, ChoosesEnglish) { ExpectAutomaticChoice(1252, KivIntl::LANGUAGE_EN); }
TEST(AutoAt932, ChoosesEnglishForOtherCodePages) { ExpectAutomaticChoice(932, KivIntl::LANGUAGE_EN); }
