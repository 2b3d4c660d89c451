// The host's text conversion from the ANSI code page, in processes of code pages 936 and 950.
#include "kiv_base/text.h"
#include <windows.h>
#include <gtest/gtest.h>

using kiv_base::text::AnsiToUtf;

TEST(AnsiToUtfAt936, ConvertsGbkText)
{
    ASSERT_EQ(936u, GetACP());
    EXPECT_EQ(std::wstring(L"\u4E2D\u6587"), AnsiToUtf("\xD6\xD0\xCE\xC4"));            // 中文
    EXPECT_EQ(std::wstring(L"a\u4E57\\b"), AnsiToUtf("a\x81\x5C\\b"));                // 乗: second byte 0x5C
    EXPECT_EQ(std::wstring(L""), AnsiToUtf(""));
    EXPECT_EQ(std::wstring(L"x\0y", 3), AnsiToUtf(std::string("x\0y", 3)));         // the length is kept
}

TEST(AnsiToUtfAt950, ConvertsBig5Text)
{
    ASSERT_EQ(950u, GetACP());
    EXPECT_EQ(std::wstring(L"\u4E2D\u6587"), AnsiToUtf("\xA4\xA4\xA4\xE5"));            // 中文
    EXPECT_EQ(std::wstring(L"\u529F\\"), AnsiToUtf("\xA5\x5C\\"));                     // 功: second byte 0x5C
}

// A lead byte at the end has no character to finish: it gives one replacement, not a crash.
TEST(AnsiToUtfAt936, ALoneLeadByteAtTheEnd)
{
    std::wstring wide = AnsiToUtf("ab\xD6");
    ASSERT_EQ(3u, wide.size());
    EXPECT_EQ(L"ab", wide.substr(0, 2));
    EXPECT_NE(L'\xD6', wide[2]);
}

TEST(AnsiToUtfAt1252, EveryByteIsOneCharacter)
{
    ASSERT_EQ(1252u, GetACP());
    EXPECT_EQ(std::wstring(L"\u00D6\u00D0\u20AC"), AnsiToUtf("\xD6\xD0\x80"));
}
