// KivStyleMgr::SetKivStyle: runs the style dialog with this library's resources and applies
// what the user saved.
#include <afxwin.h>
#include "kiv_skin/module.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/styledlg/style_dlg.h"

namespace kiv_skin {
namespace {

// Makes the framework load resources from module for the lifetime of a scope.
class ResourceHandleSwitch {
public:
    explicit ResourceHandleSwitch(HINSTANCE module) : m_previous(AfxGetResourceHandle()) { AfxSetResourceHandle(module); }
    ~ResourceHandleSwitch() { AfxSetResourceHandle(m_previous); }
    ResourceHandleSwitch(const ResourceHandleSwitch&) = delete;
    ResourceHandleSwitch& operator=(const ResourceHandleSwitch&) = delete;

private:
    HINSTANCE m_previous;
};

}  // namespace

// A scheme that was only selected, not edited, is not applied: the answer is then 0.
int KivStyleMgr::SetKivStyle(CString& name)
{
    name.Empty();
    int result = 0;
    CStyleDlg dialog;
    INT_PTR answer = IDCANCEL;
    {
        ResourceHandleSwitch ownResources(ModuleHandle());
        answer = dialog.DoModal();
    }
    if (answer != IDOK) return 0;
    for (const CString& saved : dialog.m_vecSavedStyles) {
        result = LoadStyle(saved);
        name = dialog.m_strStyle;
    }
    if (dialog.m_bColorModified || dialog.m_bFontModified) {
        name = dialog.m_strStyle;
        result = LoadStyle(name);
    }
    return !name.IsEmpty() && result != 0 ? 1 : 0;
}

}  // namespace kiv_skin
