// MFC's exception classes, thrown by pointer as MFC throws them. The simple exceptions are
// static objects created without auto-delete, so Delete() leaves them alone, as in MFC.
#pragma once
#include <windows.h>
#include <cstdio>
#include <cstdlib>

class CException {
public:
    CException() = default;
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
    virtual ~CException() = 0;
    void Delete()
    {
        if (m_bAutoDelete > 0) delete this;
    }

protected:
    BOOL m_bAutoDelete = TRUE;
};

inline CException::~CException() = default;

class CSimpleException : public CException {
public:
    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
};

class CResourceException : public CSimpleException {
public:
    CResourceException() = default;
    explicit CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
};

class CInvalidArgException : public CSimpleException {
public:
    CInvalidArgException() = default;
    explicit CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
};

[[noreturn]] inline void AfxThrowResourceException()
{
    static CResourceException shared(FALSE);
    throw &shared;
}

[[noreturn]] inline void AfxThrowInvalidArgException()
{
    static CInvalidArgException shared(FALSE);
    throw &shared;
}

// What MFC's ASSERT reports on a programming error, kept in every build here: it says where,
// then stops the process instead of offering a debugger.
inline BOOL AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    std::fprintf(stderr, "Assertion failed: %s(%d)\n", lpszFileName, nLine);
    std::fflush(stderr);
    std::abort();
}
