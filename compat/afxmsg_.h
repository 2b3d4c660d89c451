// MFC's message maps: a static table of entries per class, reached through GetMessageMap and
// searched up the chain of base classes' tables, with MFC's macros and handler signatures.
// CCmdTarget, the root of every class with a map, routes commands (WM_COMMAND) through it.
#pragma once
#include "afx.h"

#define afx_msg
#define AFX_MSG_CALL
#define CN_COMMAND 0

class CCmdTarget;
class CWnd;
typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)();
typedef void (AFX_MSG_CALL CWnd::*AFX_PMSGW)();

// How an entry's handler is called: its parameters and where they come from.
enum AfxSig {
    AfxSig_end = 0,  // ends a table
    AfxSigCmd_v,     // void () for a command or a control notification
    AfxSig_vv,       // void ()
    AfxSig_v_up_v,   // void (UINT_PTR wParam)
    AfxSig_v_u_p,    // void (UINT wParam, CPoint from lParam)
};

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;     // the window message
    UINT nCode;        // the notification code of WM_COMMAND
    UINT nID;          // the first control or command id of WM_COMMAND, else 0
    UINT nLastID;      // the last id of the range
    UINT_PTR nSig;     // an AfxSig
    AFX_PMSG pfn;      // the handler
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

namespace afx_compat_detail {
// A handler of any signature is stored as AFX_PMSG and cast back to its own type before the
// call; a member pointer cast to another member pointer type and back keeps its value.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
// (W stands for CWnd, which is complete by the time a handler is cast.)
template <class F, class W = CWnd> AFX_PMSG WindowHandler(F handler)
{
    return static_cast<AFX_PMSG>(reinterpret_cast<void (W::*)()>(handler));
}
template <class F, class W = CWnd> F HandlerOf(AFX_PMSG pfn)
{
    return reinterpret_cast<F>(static_cast<void (W::*)()>(pfn));
}
#pragma GCC diagnostic pop
}  // namespace afx_compat_detail

struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)();
};

#define DECLARE_MESSAGE_MAP()                                 \
protected:                                                    \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();      \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                          \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }   \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                              \
    {                                                                                   \
        [[maybe_unused]] typedef theClass ThisClass;                                    \
        typedef baseClass TheBaseClass;                                                 \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                           \
        {0, 0, 0, 0, AfxSig_end, nullptr}};                                         \
        static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap,     \
                                              &_messageEntries[0]};                 \
        return &messageMap;                                                         \
    }

#define ON_COMMAND(id, memberFxn) \
    {WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(id), AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    {WM_COMMAND, (WORD)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)

#define ON_WM_PAINT()                                          \
    {WM_PAINT, 0, 0, 0, AfxSig_vv,                             \
     afx_compat_detail::WindowHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnPaint))},
#define ON_WM_DESTROY()                                        \
    {WM_DESTROY, 0, 0, 0, AfxSig_vv,                           \
     afx_compat_detail::WindowHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnDestroy))},
#define ON_WM_NCDESTROY()                                      \
    {WM_NCDESTROY, 0, 0, 0, AfxSig_vv,                         \
     afx_compat_detail::WindowHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnNcDestroy))},
#define ON_WM_TIMER()                                          \
    {WM_TIMER, 0, 0, 0, AfxSig_v_up_v,                         \
     afx_compat_detail::WindowHandler(static_cast<void (CWnd::*)(UINT_PTR)>(&ThisClass::OnTimer))},
#define ON_WM_LBUTTONDOWN()                                    \
    {WM_LBUTTONDOWN, 0, 0, 0, AfxSig_v_u_p,                    \
     afx_compat_detail::WindowHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnLButtonDown))},

// The entry of one table for a message, notification code and id, or NULL.
inline const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry, UINT nMsg, UINT nCode, UINT nID)
{
    for (; lpEntry->nSig != AfxSig_end; ++lpEntry)
        if (lpEntry->nMessage == nMsg && lpEntry->nCode == nCode && nID >= lpEntry->nID && nID <= lpEntry->nLastID)
            return lpEntry;
    return nullptr;
}

// The root of the classes that handle messages and commands.
class CTypeLibCache;

class CCmdTarget : public CObject {
public:
    CCmdTarget() = default;

    // Automation, OLE verbs and the wait cursor; declared only (see the README).
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();
    BOOL DoOleVerb(LONG iVerb, LPMSG lpMsg, HWND hWndParent, LPCRECT lpRect);
    BOOL EnumOleVerbs(LPENUMOLEVERB* ppenumOleVerb);
    void EnableAutomation();
    void EnableConnections();
    void EnableTypeLib();
    static CCmdTarget* PASCAL FromIDispatch(LPDISPATCH lpDispatch);
    LPDISPATCH GetIDispatch(BOOL bAddRef);
    HRESULT GetTypeInfoOfGuid(LCID lcid, const GUID& guid, LPTYPEINFO* ppTypeInfo);
    BOOL IsResultExpected();

    // No automation here: no dispatch interface, type library or type information.
    virtual BOOL GetDispatchIID(IID* pIID) { (void)pIID; return FALSE; }
    virtual UINT GetTypeInfoCount() { return 0; }
    virtual CTypeLibCache* GetTypeLibCache() { return NULL; }
    virtual HRESULT GetTypeLib(LCID lcid, LPTYPELIB* ppTypeLib)
    {
        (void)lcid, (void)ppTypeLib;
        return TYPE_E_CANTLOADLIBRARY;
    }
    virtual BOOL IsInvokeAllowed(DISPID dispid) { (void)dispid; return TRUE; }
    // Called when the last reference of an automation object goes: deletes the object.
    virtual void OnFinalRelease() { delete this; }

    // Calls the handler of command nID with notification nCode from this class's map or a
    // base's; with pHandlerInfo, names the handler instead of calling it.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
    {
        (void)pExtra;
        const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(WM_COMMAND, nCode, nID);
        if (entry == nullptr) return FALSE;
        if (pHandlerInfo == nullptr) {
            (this->*entry->pfn)();
        } else {
            pHandlerInfo->pTarget = this;
            pHandlerInfo->pmf = entry->pfn;
        }
        return TRUE;
    }

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap()
    {
        static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
        static const AFX_MSGMAP map = {nullptr, entries};
        return &map;
    }
    virtual const AFX_MSGMAP* GetMessageMap() const { return GetThisMessageMap(); }

    // The first entry for the message in this class's table or, failing that, its bases'.
    const AFX_MSGMAP_ENTRY* FindMessageEntry(UINT nMsg, UINT nCode, UINT nID) const
    {
        for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
             map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
            const AFX_MSGMAP_ENTRY* entry = AfxFindMessageEntry(map->lpEntries, nMsg, nCode, nID);
            if (entry != nullptr) return entry;
        }
        return nullptr;
    }
};
