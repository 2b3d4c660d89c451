// CString: MFC's multi-byte string, for toolchains without MFC.
// Same names, signatures and behaviour as CStringT<char> in an _MBCS build.
#pragma once
#include <windows.h>
#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstring>
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
    char GetAt(int i) const { return m_str.at(i); }
    void SetAt(int i, char ch) { m_str.at(i) = ch; }
    char operator[](int i) const { return GetAt(i); }
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

    int Compare(const char* psz) const { return std::strcmp(m_str.c_str(), psz); }
    int CompareNoCase(const char* psz) const { return _stricmp(m_str.c_str(), psz); }

    int Find(char ch, int iStart = 0) const { return Index(m_str.find(ch, Start(iStart))); }
    int Find(const char* psz, int iStart = 0) const { return Index(m_str.find(psz, Start(iStart))); }
    int ReverseFind(char ch) const { return Index(m_str.rfind(ch)); }
    int FindOneOf(const char* chars) const { return Index(m_str.find_first_of(chars)); }

    CString Mid(int iFirst) const { return Mid(iFirst, GetLength()); }
    CString Mid(int iFirst, int nCount) const
    {
        iFirst = Clamp(iFirst);
        nCount = nCount < 0 ? 0 : nCount;
        return FromStd(m_str.substr(iFirst, nCount));
    }
    CString Left(int nCount) const { return FromStd(m_str.substr(0, Clamp(nCount))); }
    CString Right(int nCount) const { return FromStd(m_str.substr(GetLength() - Clamp(nCount))); }

    CString& TrimLeft() { return TrimLeftWhile([](unsigned char c) { return std::isspace(c) != 0; }); }
    CString& TrimRight() { return TrimRightWhile([](unsigned char c) { return std::isspace(c) != 0; }); }
    CString& Trim() { TrimRight(); return TrimLeft(); }
    CString& TrimLeft(char ch) { return TrimLeftWhile([ch](unsigned char c) { return c == (unsigned char)ch; }); }
    CString& TrimRight(char ch) { return TrimRightWhile([ch](unsigned char c) { return c == (unsigned char)ch; }); }
    CString& Trim(char ch) { TrimRight(ch); return TrimLeft(ch); }

    CString& MakeUpper() { for (char& c : m_str) c = (char)std::toupper((unsigned char)c); return *this; }
    CString& MakeLower() { for (char& c : m_str) c = (char)std::tolower((unsigned char)c); return *this; }

    int Replace(char chOld, char chNew)
    {
        int n = 0;
        for (char& c : m_str) if (c == chOld) { c = chNew; ++n; }
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
    size_t Start(int i) const { return static_cast<size_t>(i < 0 ? 0 : i); }
    static int Index(size_t pos) { return pos == std::string::npos ? -1 : static_cast<int>(pos); }
    int Clamp(int i) const { return i < 0 ? 0 : (i > GetLength() ? GetLength() : i); }
    template <class Pred> CString& TrimLeftWhile(Pred p)
    {
        size_t i = 0;
        while (i < m_str.size() && p((unsigned char)m_str[i])) ++i;
        m_str.erase(0, i);
        return *this;
    }
    template <class Pred> CString& TrimRightWhile(Pred p)
    {
        size_t n = m_str.size();
        while (n > 0 && p((unsigned char)m_str[n - 1])) --n;
        m_str.resize(n);
        return *this;
    }

    std::string m_str;
};
