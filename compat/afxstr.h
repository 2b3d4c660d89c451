// CString: MFC's multi-byte string, for toolchains without MFC.
// Same names, signatures and behaviour as CStringT<char> in an _MBCS build: searching, trimming,
// case changes and comparisons without case go through the C runtime's multi-byte functions, so
// they follow the process's multi-byte code page and never split a double-byte character (a
// Big5 or GBK character whose second byte is 0x5C is not a backslash).
#pragma once
#include "afxexcept.h"
#include <windows.h>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <mbstring.h>
#include <string>

class CString {
public:
    CString() = default;
    CString(const char* psz) : m_str(psz ? psz : "") {}
    CString(const char* pch, int nLength) : m_str(pch, nLength > 0 ? nLength : 0) {}
    CString(char ch, int nRepeat = 1) : m_str(nRepeat > 0 ? nRepeat : 0, ch) {}

    int GetLength() const { return static_cast<int>(m_str.size()); }
    bool IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }
    // The terminating null is addressable; any other index outside the string throws.
    char GetAt(int iChar) const
    {
        if (iChar < 0 || iChar > GetLength()) AfxThrowInvalidArgException();
        return m_str.c_str()[iChar];
    }
    void SetAt(int iChar, char ch)
    {
        if (iChar < 0 || iChar >= GetLength()) AfxThrowInvalidArgException();
        m_str[iChar] = ch;
    }
    char operator[](int iChar) const { return GetAt(iChar); }
    const char* GetString() const { return m_str.c_str(); }
    operator const char*() const { return m_str.c_str(); }

    char* GetBuffer() { return &m_str[0]; }
    char* GetBuffer(int nMinBufferLength)
    {
        if (nMinBufferLength > GetLength()) m_str.resize(nMinBufferLength);
        return &m_str[0];
    }
    char* GetBufferSetLength(int nLength) { m_str.resize(nLength > 0 ? nLength : 0); return &m_str[0]; }
    void ReleaseBuffer(int nNewLength = -1)
    {
        m_str.resize(nNewLength < 0 ? std::strlen(m_str.c_str()) : nNewLength);
    }

    CString& operator=(const char* psz) { m_str = psz ? psz : ""; return *this; }
    CString& operator=(char ch) { m_str.assign(1, ch); return *this; }
    CString& operator+=(const CString& s) { m_str += s.m_str; return *this; }
    CString& operator+=(const char* psz) { if (psz) m_str += psz; return *this; }
    CString& operator+=(char ch) { m_str += ch; return *this; }
    void Append(const char* psz) { *this += psz; }
    void AppendChar(char ch) { m_str += ch; }

    int Compare(const char* psz) const { return _mbscmp(Bytes(), Bytes(psz)); }
    int CompareNoCase(const char* psz) const { return _mbsicmp(Bytes(), Bytes(psz)); }

    int Find(char ch, int iStart = 0) const
    {
        if (iStart < 0 || iStart >= GetLength()) return -1;
        return Offset(_mbschr(Bytes() + iStart, static_cast<unsigned char>(ch)));
    }
    // Matches start at character boundaries, as _mbsstr's do on Windows (Wine's compares bytes).
    int Find(const char* pszSub, int iStart = 0) const
    {
        if (pszSub == nullptr || iStart < 0 || iStart > GetLength()) return -1;
        size_t n = std::strlen(pszSub);
        for (size_t i = iStart;; i = Next(i)) {
            if (std::strncmp(m_str.c_str() + i, pszSub, n) == 0) return static_cast<int>(i);
            if (i >= m_str.size() || m_str[i] == '\0') return -1;
        }
    }
    int ReverseFind(char ch) const { return Offset(_mbsrchr(Bytes(), static_cast<unsigned char>(ch))); }
    int FindOneOf(const char* pszCharSet) const { return Offset(_mbspbrk(Bytes(), Bytes(pszCharSet))); }

    CString Mid(int iFirst) const { return Mid(iFirst, GetLength()); }
    CString Mid(int iFirst, int nCount) const
    {
        iFirst = Clamp(iFirst);
        nCount = nCount < 0 ? 0 : nCount;
        return FromStd(m_str.substr(iFirst, nCount));
    }
    CString Left(int nCount) const { return FromStd(m_str.substr(0, Clamp(nCount))); }
    CString Right(int nCount) const { return FromStd(m_str.substr(GetLength() - Clamp(nCount))); }

    CString& TrimLeft() { return TrimLeftWhile(IsSpace); }
    CString& TrimRight() { return TrimRightWhile(IsSpace); }
    CString& Trim() { TrimRight(); return TrimLeft(); }
    CString& TrimLeft(char ch) { return TrimLeftWhile([ch](char c) { return c == ch; }); }
    CString& TrimRight(char ch) { return TrimRightWhile([ch](char c) { return c == ch; }); }
    CString& Trim(char ch) { TrimRight(ch); return TrimLeft(ch); }

    CString& MakeUpper() { _mbsupr(MutableBytes()); return *this; }
    CString& MakeLower() { _mbslwr(MutableBytes()); return *this; }

    // Replaces whole characters only: a trail byte equal to chOld stays.
    int Replace(char chOld, char chNew)
    {
        if (chOld == chNew) return 0;
        int n = 0;
        for (size_t i = 0; i < m_str.size(); i = Next(i)) {
            if (m_str[i] == chOld) { m_str[i] = chNew; ++n; }
        }
        return n;
    }

    void Format(const char* pszFormat, ...)
    {
        va_list args;
        va_start(args, pszFormat);
        FormatV(pszFormat, args);
        va_end(args);
    }
    void AppendFormat(const char* pszFormat, ...)
    {
        CString tail;
        va_list args;
        va_start(args, pszFormat);
        tail.FormatV(pszFormat, args);
        va_end(args);
        *this += tail;
    }
    void FormatV(const char* pszFormat, va_list args)
    {
        va_list copy;
        va_copy(copy, args);
        int n = std::vsnprintf(nullptr, 0, pszFormat, copy);
        va_end(copy);
        m_str.assign(n > 0 ? n : 0, '\0');
        if (n > 0) std::vsnprintf(&m_str[0], n + 1, pszFormat, args);
    }

    friend CString operator+(const CString& a, const CString& b) { CString r(a); r += b; return r; }
    friend CString operator+(const CString& a, const char* b) { CString r(a); r += b; return r; }
    friend CString operator+(const char* a, const CString& b) { CString r(a); r += b; return r; }
    friend CString operator+(const CString& a, char b) { CString r(a); r += b; return r; }
    friend bool operator==(const CString& a, const CString& b) { return a.Compare(b) == 0; }
    friend bool operator==(const CString& a, const char* b) { return a.Compare(b) == 0; }
    friend bool operator==(const char* a, const CString& b) { return b.Compare(a) == 0; }
    friend bool operator!=(const CString& a, const CString& b) { return a.Compare(b) != 0; }
    friend bool operator!=(const CString& a, const char* b) { return a.Compare(b) != 0; }
    friend bool operator!=(const char* a, const CString& b) { return b.Compare(a) != 0; }
    friend bool operator<(const CString& a, const CString& b) { return a.Compare(b) < 0; }
    friend bool operator>(const CString& a, const CString& b) { return a.Compare(b) > 0; }

private:
    static CString FromStd(const std::string& s) { return CString(s.data(), static_cast<int>(s.size())); }
    int Clamp(int i) const { return i < 0 ? 0 : (i > GetLength() ? GetLength() : i); }
    static const unsigned char* Bytes(const char* psz) { return reinterpret_cast<const unsigned char*>(psz); }
    const unsigned char* Bytes() const { return Bytes(m_str.c_str()); }
    unsigned char* MutableBytes() { return reinterpret_cast<unsigned char*>(&m_str[0]); }
    int Offset(const unsigned char* found) const { return found ? static_cast<int>(found - Bytes()) : -1; }
    static bool IsSpace(char c) { return _ismbcspace(static_cast<unsigned char>(c)) != 0; }
    // The index of the character after the one at i, as _mbsinc steps; never past the end.
    size_t Next(size_t i) const
    {
        size_t next = static_cast<size_t>(_mbsinc(Bytes() + i) - Bytes());
        return next < m_str.size() ? next : m_str.size();
    }
    // Both trims walk whole characters up to the first null, as MFC's do.
    template <class Pred> CString& TrimLeftWhile(Pred p)
    {
        size_t i = 0;
        while (i < m_str.size() && m_str[i] != '\0' && p(m_str[i])) i = Next(i);
        m_str.erase(0, i);
        return *this;
    }
    template <class Pred> CString& TrimRightWhile(Pred p)
    {
        size_t trailing = std::string::npos;
        for (size_t i = 0; i < m_str.size() && m_str[i] != '\0'; i = Next(i)) {
            if (!p(m_str[i])) trailing = std::string::npos;
            else if (trailing == std::string::npos) trailing = i;
        }
        if (trailing != std::string::npos) m_str.resize(trailing);
        return *this;
    }

    std::string m_str;
};
