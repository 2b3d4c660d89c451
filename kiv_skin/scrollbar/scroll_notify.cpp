// The scroll bar's reports to the host: the owner object hears of the change at once, and the
// owner's parent object is asked, through the message loop, to redraw the plug-in.
#include <afxwin.h>
#include "kiv_core/cmd_invoke_proxy.h"
#include "kiv_core/object_manager.h"
#include "kiv_skin/scrollbar/plugin_scroll_bar.h"
#include <vector>

namespace kiv_skin {

namespace {

// The plug-in interface the redraw request carries.
const GUID kPluginInterface = {0x83947233, 0x6E55, 0x4CEF, {0x9D, 0x67, 0x86, 0xF6, 0x39, 0xB0, 0x0C, 0x0C}};

// The owner's plug-in interface pointer, without keeping a reference: the host object outlives
// the request it is named in.
void* PluginInterfaceOf(IKivObject* owner)
{
    void* plugin = nullptr;
    if (owner->QueryInterface(kPluginInterface, &plugin) == S_OK && plugin != nullptr)
        static_cast<IUnknown*>(plugin)->Release();
    return plugin;
}

}  // namespace

void PluginScrollBar::NotifyParentChanged()
{
    if (m_pOwner == nullptr) return;
    cmd_system::CmdInvokeProxy().SendCommand(m_pOwner, "OnCommand_ScrollBarChanged", nullptr, nullptr, 0xFFFFFFFF);

    obj_system::ObjectManager* objects = obj_system::ObjectManager::GetInstance();
    CString path = objects->GetPathByIns(m_pOwner).c_str();
    int lastBackslash = path.ReverseFind('\\');
    if (lastBackslash < 0) return;
    void* plugin = PluginInterfaceOf(m_pOwner);
    IKivObject* parent = objects->GetInsByPath(path.Left(lastBackslash));
    if (plugin == nullptr || parent == nullptr) return;
    std::vector<kiv_value::Value> args{kiv_value::Value(plugin)};
    cmd_system::CmdInvokeProxy().PostCommand(parent, "OnCommand_PluginRedraw", &args);
}

}  // namespace kiv_skin
