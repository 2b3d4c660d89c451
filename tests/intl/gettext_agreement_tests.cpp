// Catalogues compiled by moxc (natively and for Windows) give, through KivIntl::GetText, the
// translations msgfmt put into a .mo file from the same .po, for every key. The files are made
// before this suite runs (moxc/gettext_fixture.sh) under the executable's locale\zh_CN directory.
#include "catalogue_files.h"
#include "kiv_skin/intl/kiv_intl.h"
#include "support/test_files.h"
#include <windows.h>
#include <gtest/gtest.h>
#include <cstdint>
#include <map>
#include <set>

using kiv_skin::KivIntl;

namespace {

// The key and translation pairs of a little-endian GNU .mo file, read as the format defines it.
std::map<std::string, std::string> ReadMo(const std::string& bytes)
{
    auto word = [&](size_t at) {
        uint32_t v = 0;
        for (int i = 3; i >= 0; --i) v = v << 8 | static_cast<unsigned char>(bytes.at(at + i));
        return v;
    };
    EXPECT_EQ(0x950412DEu, word(0));
    std::map<std::string, std::string> messages;
    uint32_t count = word(8), originals = word(12), translations = word(16);
    for (uint32_t n = 0; n < count; ++n) {
        std::string key = bytes.substr(word(originals + 8 * n + 4), word(originals + 8 * n));
        messages[key] = bytes.substr(word(translations + 8 * n + 4), word(translations + 8 * n));
    }
    return messages;
}

// Text in code page 936 as moxc writes it: each character that code page holds as it holds it,
// and the substitutes moxc documents for the two characters of the system catalogues it lacks.
std::string In936(const std::string& utf8)
{
    int n = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), int(utf8.size()), nullptr, 0);
    EXPECT_TRUE(utf8.empty() || n > 0) << "not UTF-8: " << utf8;
    std::wstring wide(size_t(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), &wide[0], n);
    std::string out;
    for (wchar_t c : wide) {
        char bytes[4];
        BOOL lacking = FALSE;
        int m = WideCharToMultiByte(936, WC_NO_BEST_FIT_CHARS, &c, 1, bytes, sizeof bytes, nullptr, &lacking);
        if (!lacking && m > 0) out.append(bytes, size_t(m));
        else if (c == 0xA9) out += "(C)";
        else if (c == 0xE7) out += "c";
        else ADD_FAILURE() << "U+" << std::hex << unsigned(c) << " in " << utf8 << " has no substitute here";
    }
    return out;
}

// Compares every key of the .mo with GetText on the package; answers how many keys it compared
// and, in entries, how many the .mo holds besides its header.
// A plural entry is looked up by its singular with its first form; an entry with a context is
// not in the catalogue, so its key must come back unchanged unless it also has a plain entry.
size_t ExpectAgreement(const std::string& mo, const std::string& package, size_t* entries = nullptr)
{
    std::map<std::string, std::string> messages = ReadMo(ReadFileBytes(ExeDir() + "locale\\zh_CN\\LC_MESSAGES\\" + mo));
    if (entries != nullptr) *entries = messages.size() - messages.count("");
    KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_ZH_CN, package.c_str());
    std::set<std::string> plain;
    size_t compared = 0;
    for (const auto& m : messages) {
        if (m.first.empty() || m.first.find('\x04') != std::string::npos) continue;
        std::string key = m.first.substr(0, m.first.find('\0'));
        std::string expected = In936(m.second.substr(0, m.second.find('\0')));
        EXPECT_EQ(expected, KivIntl::Instance().GetText(In936(key).c_str())) << package << ": " << key;
        plain.insert(key);
        ++compared;
    }
    for (const auto& m : messages) {
        size_t context = m.first.find('\x04');
        if (context == std::string::npos || plain.count(m.first.substr(context + 1))) continue;
        std::string key = In936(m.first.substr(context + 1));
        EXPECT_EQ(key, KivIntl::Instance().GetText(key.c_str())) << package << ": context entry " << m.first;
        ++compared;
    }
    return compared;
}

}  // namespace

TEST(GettextAgreement, RealCatalogueMatchesMsgfmtForEveryKey)
{
    ASSERT_EQ(936u, GetACP()) << "the process did not run under code page 936";
    for (const char* build : {"native", "windows"}) {
        EXPECT_EQ(15u, ExpectAgreement("moxc_real_zh_CN.mo", std::string("moxc_real_zh_CN_") + build));
        // Left out by msgfmt and by moxc: a fuzzy and an untranslated entry.
        for (const char* key : {"Restore defaults", "Apply to all panels"})
            EXPECT_EQ(key, KivIntl::Instance().GetText(key));
    }
}

TEST(GettextAgreement, ContextsAndPluralsMatchMsgfmt)
{
    for (const char* build : {"native", "windows"}) {
        EXPECT_EQ(5u, ExpectAgreement("moxc_features.mo", std::string("moxc_features_") + build));
        EXPECT_STREQ("\xB4\xF2\xBF\xAA", KivIntl::Instance().GetText("Open"));  // 打开, not the menu's
        EXPECT_STREQ("Close", KivIntl::Instance().GetText("Close"));
    }
}

// Catalogues translators made: gettext's own and coreutils' (whose copyright line holds "©",
// compiled with --substitute), from the system's locale folder.
TEST(GettextAgreement, SystemCataloguesFindEveryMessage)
{
    for (const char* mo : {"gettext-tools", "gettext-runtime", "coreutils"})
        for (const char* build : {"native", "windows"}) {
            std::string name = std::string("system_") + mo, package = name + "_" + build;
            size_t entries = 0, compared = ExpectAgreement(name + ".mo", package, &entries);
            EXPECT_GT(compared, 40u) << mo;
            EXPECT_EQ(entries, compared) << mo << " (" << build << ")";
        }
}
