// CString behaviours the library relies on, checked against MFC's documented results.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <cstring>

TEST(CString, ConstructsFromNullAsEmpty)
{
    CString s(static_cast<const char*>(nullptr));
    EXPECT_TRUE(s.IsEmpty());
    EXPECT_STREQ("", static_cast<const char*>(s));
}

TEST(CString, TrimRemovesWhiteSpaceAtBothEndsOnly)
{
    CString s(" \t Blue \r\n");
    EXPECT_EQ(&s, &s.Trim());
    EXPECT_STREQ("Blue", s);
    CString inner("a b");
    EXPECT_STREQ("a b", inner.Trim());
}

TEST(CString, TrimKeepsGb2312Bytes)
{
    // "红色" in GB2312: lead bytes above 0x80 are not white space.
    CString s(" \xBA\xEC\xC9\xAB ");
    s.Trim();
    EXPECT_STREQ("\xBA\xEC\xC9\xAB", s);
    EXPECT_EQ(4, s.GetLength());
}

TEST(CString, TrimLeftAndRightAndCharacter)
{
    CString s("  x  ");
    EXPECT_STREQ("x  ", CString(s).TrimLeft());
    EXPECT_STREQ("  x", CString(s).TrimRight());
    EXPECT_STREQ("x", CString("\\\\x\\").Trim('\\'));
    EXPECT_STREQ("C:\\dir", CString("C:\\dir\\\\").TrimRight('\\'));
}

TEST(CString, ComparesBytesCaseSensitively)
{
    EXPECT_TRUE(CString("UP") == "UP");
    EXPECT_FALSE(CString("up") == "UP");
    EXPECT_TRUE(CString("UP") != CString("up"));
    EXPECT_LT(CString("A").Compare("B"), 0);
    // High bytes sort above ASCII, as an unsigned byte comparison does.
    EXPECT_TRUE(CString("z") < CString("\xB0\xA1"));
    EXPECT_FALSE(CString("\xB0\xA1") < CString("z"));
}

TEST(CString, CompareNoCaseIgnoresAsciiCase)
{
    EXPECT_EQ(0, CString("0x00ff0000").CompareNoCase("0x00FF0000"));
    EXPECT_NE(0, CString("0x00ff0001").CompareNoCase("0x00FF0000"));
}

TEST(CString, FindAndReverseFind)
{
    CString s("a|b|c");
    EXPECT_EQ(1, s.Find('|'));
    EXPECT_EQ(3, s.Find('|', 2));
    EXPECT_EQ(-1, s.Find('x'));
    EXPECT_EQ(2, s.Find("b|"));
    EXPECT_EQ(-1, s.Find("b|", 3));
    EXPECT_EQ(3, s.ReverseFind('|'));
    EXPECT_EQ(-1, s.ReverseFind('x'));
}

TEST(CString, MidLeftRightClampToTheString)
{
    CString s("abcdef");
    EXPECT_STREQ("cdef", s.Mid(2));
    EXPECT_STREQ("cd", s.Mid(2, 2));
    EXPECT_STREQ("ef", s.Mid(4, 10));
    EXPECT_STREQ("", s.Mid(10));
    EXPECT_STREQ("abc", s.Left(3));
    EXPECT_STREQ("abcdef", s.Left(99));
    EXPECT_STREQ("ef", s.Right(2));
    EXPECT_STREQ("", s.Right(-1));
}

TEST(CString, FormatAndAppendFormat)
{
    CString s;
    s.Format("0x00%02X%02X%02X", 0x56, 0x34, 0x12);
    EXPECT_STREQ("0x00563412", s);
    s.AppendFormat("-%d", -7);
    EXPECT_STREQ("0x00563412--7", s);
    CString longer;
    longer.Format("%s", std::string(1000, 'x').c_str());
    EXPECT_EQ(1000, longer.GetLength());
}

TEST(CString, BufferRoundTrip)
{
    CString s("abc");
    char* p = s.GetBuffer(16);
    strcpy(p, "longer text");
    s.ReleaseBuffer();
    EXPECT_STREQ("longer text", s);
    EXPECT_EQ(11, s.GetLength());
    s.GetBuffer(4);
    s.ReleaseBuffer(2);
    EXPECT_STREQ("lo", s);
}

TEST(CString, ConcatenationAndAssignment)
{
    CString s = CString("cfg") + "\\" + CString("style.xml");
    EXPECT_STREQ("cfg\\style.xml", s);
    s += 'x';
    EXPECT_STREQ("cfg\\style.xmlx", s);
    s = static_cast<const char*>(nullptr);
    EXPECT_TRUE(s.IsEmpty());
}

// The terminating null is addressable; other indexes outside the string throw the framework's
// exception, by pointer.
TEST(CString, GetAtReachesTheTerminatorAndThrowsBeyondIt)
{
    CString s("ab");
    EXPECT_EQ('b', s.GetAt(1));
    EXPECT_EQ('\0', s.GetAt(2));
    EXPECT_EQ('\0', s[2]);
    for (int index : {3, -1}) {
        bool thrown = false;
        try {
            s.GetAt(index);
        } catch (CInvalidArgException* e) {
            thrown = true;
            e->Delete();
        }
        EXPECT_TRUE(thrown) << index;
    }
    EXPECT_THROW(s[3], CSimpleException*);
    EXPECT_THROW(s.SetAt(2, 'x'), CInvalidArgException*);
    s.SetAt(1, 'x');
    EXPECT_STREQ("ax", s);
}

TEST(CString, FindFromOutsideTheStringFindsNothing)
{
    CString s("a|b");
    EXPECT_EQ(-1, s.Find('a', -1));
    EXPECT_EQ(-1, s.Find("a", -1));
    EXPECT_EQ(-1, s.Find('b', 3));
    EXPECT_EQ(3, s.Find("", 3));
    EXPECT_EQ(-1, s.Find("", 4));
    EXPECT_EQ(-1, s.Find(static_cast<const char*>(nullptr)));
}

// GetBuffer keeps the text and never shortens it; ReleaseBuffer sets the length to the text's
// null or to the length given.
TEST(CString, GetBufferAndReleaseBufferLengths)
{
    CString s("abcdef");
    char* p = s.GetBuffer(2);
    EXPECT_STREQ("abcdef", p);
    s.ReleaseBuffer();
    EXPECT_EQ(6, s.GetLength());
    p = s.GetBuffer(20);
    EXPECT_STREQ("abcdef", p);
    std::memcpy(p, "0123456789012345678", 20);
    s.ReleaseBuffer();
    EXPECT_EQ(19, s.GetLength());
    s.GetBuffer();
    s.ReleaseBuffer(4);
    EXPECT_EQ(4, s.GetLength());
    EXPECT_STREQ("0123", s);
    p = s.GetBufferSetLength(2);
    EXPECT_EQ(2, s.GetLength());
    EXPECT_EQ('\0', p[2]);
    EXPECT_STREQ("01", s);
}
