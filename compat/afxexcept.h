// MFC's exception classes, thrown by pointer as MFC throws them.
#pragma once
#include <windows.h>

class CException {
public:
    virtual ~CException() = default;
    void Delete() { delete this; }
};

class CResourceException : public CException {};

[[noreturn]] inline void AfxThrowResourceException() { throw new CResourceException; }
