// CString on double-byte text, as MFC's multi-byte build treats it: searching, trimming,
// replacing and case changes work on whole characters of the process's code page, so a Big5 or
// GBK character whose second byte is 0x5C ('\') or a letter is never split. Each suite runs in a
// process of its own code page (LC_ALL picks it under Wine).
#include <afxwin.h>
#include <gtest/gtest.h>
#include <mbctype.h>
#include <string>

namespace {

// Three characters of one code page: the second byte of the first is 0x5C, of the second 'a'
// (0x61), of the third 'A' (0x41); the second and third differ only in the case of that byte.
struct Sample {
    UINT codePage;
    const char* backslash;
    const wchar_t* backslashText;
    const char* lowerTrail;
    const wchar_t* lowerTrailText;
    const char* upperTrail;
    const wchar_t* upperTrailText;
};

const Sample kBig5 = {950, "\xA5\x5C", L"\u529F", "\xA5\x61", L"\u4EDF", "\xA5\x41", L"\u4E15"};  // 功 仟 丕
const Sample kGbk = {936, "\x81\x5C", L"\u4E57", "\x81\x61", L"\u4E64", "\x81\x41", L"\u4E04"};  // 乗 乤 丄

std::wstring Decode(const char* bytes)
{
    wchar_t wide[8] = L"";
    int n = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes, -1, wide, 8);
    return n > 0 ? std::wstring(wide) : std::wstring(L"(invalid)");
}

CString S(const char* a, const char* b = "", const char* c = "")
{
    return CString(a) + b + c;
}

class DoubleByteText : public ::testing::Test {
protected:
    void Check(const Sample& sample)
    {
        ASSERT_EQ(sample.codePage, GetACP());
        ASSERT_EQ(static_cast<int>(sample.codePage), _getmbcp());
        // The samples are single characters of this code page.
        ASSERT_EQ(sample.backslashText, Decode(sample.backslash));
        ASSERT_EQ(sample.lowerTrailText, Decode(sample.lowerTrail));
        ASSERT_EQ(sample.upperTrailText, Decode(sample.upperTrail));
        const char* bs = sample.backslash;
        const char* lo = sample.lowerTrail;
        const char* up = sample.upperTrail;

        // Find, ReverseFind, FindOneOf: the 0x5C inside a character is not a backslash.
        EXPECT_EQ(2, S(bs, "\\").Find('\\'));
        EXPECT_EQ(-1, CString(bs).Find('\\'));
        EXPECT_EQ(2, S(bs, "\\", bs).Find('\\', 2));
        EXPECT_EQ(-1, S(bs, "\\", bs).Find('\\', 3));
        EXPECT_EQ(3, S("dir\\", bs).ReverseFind('\\'));
        EXPECT_EQ(-1, CString(bs).ReverseFind('\\'));
        EXPECT_EQ(2, S(bs, "/").FindOneOf("\\/"));
        EXPECT_EQ(2, S(lo, "a").Find("a"));
        EXPECT_EQ(2, S(lo, "a").Find('a'));
        EXPECT_EQ(-1, CString(lo).Find("a"));
        EXPECT_EQ(-1, CString(lo).FindOneOf("ab"));
        EXPECT_EQ(2, S(up, lo).Find(lo));

        // Trimming stops at whole characters.
        EXPECT_STREQ(S("dir\\", bs), S("dir\\", bs, "\\\\").TrimRight('\\'));
        EXPECT_STREQ(bs, CString(bs).TrimRight('\\'));
        EXPECT_STREQ(up, S(up, "A").Trim('A'));
        EXPECT_STREQ(lo, S("aa", lo).TrimLeft('a'));
        EXPECT_STREQ(bs, S(" \t", bs, " ").Trim());

        // Replace changes whole characters only.
        CString path = S(bs, "\\", bs);
        EXPECT_EQ(1, path.Replace('\\', '/'));
        EXPECT_STREQ(S(bs, "/", bs), path);

        // Case changes leave double-byte characters alone.
        EXPECT_STREQ(S(lo, "A"), S(lo, "a").MakeUpper());
        EXPECT_STREQ(S(up, "a"), S(up, "A").MakeLower());

        // Characters whose second bytes differ only in case are different characters.
        EXPECT_NE(0, CString(lo).CompareNoCase(up));
        EXPECT_EQ(0, S(lo, "x").CompareNoCase(S(lo, "X")));
    }
};

}  // namespace

TEST_F(DoubleByteText, Big5At950) { Check(kBig5); }
TEST_F(DoubleByteText, GbkAt936) { Check(kGbk); }

// The same bytes under code page 1252 are two single-byte characters: the layer follows the
// process's code page rather than assuming one.
TEST(SingleByteText, At1252)
{
    ASSERT_EQ(1252u, GetACP());
    EXPECT_EQ(1, CString(kBig5.backslash).ReverseFind('\\'));
    EXPECT_STREQ("\xA5", CString(kBig5.backslash).TrimRight('\\'));
    EXPECT_EQ(0, CString(kGbk.lowerTrail).CompareNoCase(kGbk.upperTrail));
}
