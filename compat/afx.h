// The root of MFC's class tree from <afx.h>: CObject and the run-time class information that
// DECLARE_DYNAMIC and IMPLEMENT_DYNAMIC give a class, in the layout of a shared-MFC build
// (_AFXDLL), where a class names its base through _GetBaseClass.
#pragma once
#include "afxv_w32.h"

#define AFX_CDECL __cdecl

class CObject;
class CArchive;
class CDumpContext;

struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject* (PASCAL* m_pfnCreateObject)();
    CRuntimeClass* (PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;
    const void* m_pClassInit;

    // The framework's classes are described once per module here (MFC keeps one copy in its
    // DLL), so a class matches its copy in another module by name.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const
    {
        for (const CRuntimeClass* c = this; c != nullptr;
             c = c->m_pfnGetBaseClass ? c->m_pfnGetBaseClass() : nullptr)
            if (c == pBaseClass || ::lstrcmpA(c->m_lpszClassName, pBaseClass->m_lpszClassName) == 0)
                return TRUE;
        return FALSE;
    }
};

#define _RUNTIME_CLASS(class_name) ((CRuntimeClass*)(&class_name::class##class_name))
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                 \
protected:                                          \
    static CRuntimeClass* PASCAL _GetBaseClass();   \
                                                    \
public:                                             \
    static const CRuntimeClass class##class_name;   \
    static CRuntimeClass* PASCAL GetThisClass();    \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                       \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() { return RUNTIME_CLASS(base_class_name); } \
    const CRuntimeClass class_name::class##class_name = {                                    \
        #class_name, sizeof(class class_name), 0xFFFF, nullptr, &class_name::_GetBaseClass,  \
        nullptr, nullptr};                                                                   \
    CRuntimeClass* PASCAL class_name::GetThisClass() { return _RUNTIME_CLASS(class_name); }  \
    CRuntimeClass* class_name::GetRuntimeClass() const { return _RUNTIME_CLASS(class_name); }

class CObject {
public:
    static const CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass() { return _RUNTIME_CLASS(CObject); }
    virtual CRuntimeClass* GetRuntimeClass() const { return _RUNTIME_CLASS(CObject); }
    virtual ~CObject() = default;

    BOOL IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }
    // Only classes declared serializable (a schema other than 0xFFFF) are.
    BOOL IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }
    // No archives or dump contexts here: the base class's forms do nothing, as MFC's release
    // build does.
    virtual void Serialize(CArchive& ar) { (void)ar; }
    virtual void AssertValid() const {}
    virtual void Dump(CDumpContext& dc) const { (void)dc; }

    void* PASCAL operator new(size_t nSize) { return ::operator new(nSize); }
    void* PASCAL operator new(size_t, void* p) { return p; }
    void PASCAL operator delete(void* p) { ::operator delete(p); }
    void PASCAL operator delete(void*, void*) {}

protected:
    CObject() = default;

private:
    CObject(const CObject&) = delete;
    void operator=(const CObject&) = delete;
};

inline const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr,
                                                     nullptr, nullptr, nullptr};
