#include "demo/live_host.h"
#include "kiv_core/object_manager.h"
#include <cstring>

const char kLiveWindowPath[] = "kiv_demo\\live";
const char kLivePanelPath[] = "kiv_demo\\live\\quotes";

namespace {
// The plug-in interface of the host's redraw requests.
const GUID kPluginInterface = {0x83947233, 0x6E55, 0x4CEF, {0x9D, 0x67, 0x86, 0xF6, 0x39, 0xB0, 0x0C, 0x0C}};
}  // namespace

LiveObject::LiveObject(const char* path, Handler handler, HWND* window) : m_handler(handler), m_window(window)
{
    obj_system::ObjectManager::GetInstance()->Register(path, this);
}

LiveObject::~LiveObject() { obj_system::ObjectManager::GetInstance()->Unregister(this); }

HRESULT STDMETHODCALLTYPE LiveObject::QueryInterface(REFIID iid, void** out)
{
    if (iid != IID_IUnknown && iid != kPluginInterface) {
        *out = nullptr;
        return E_NOINTERFACE;
    }
    *out = static_cast<IKivObject*>(this);
    return S_OK;
}

void LiveObject::OnCommand(const char* command, const std::vector<kiv_value::Value>* args, kiv_value::Value*)
{
    m_handler(*this, command, args);
}

void RedrawOnRequest(LiveObject& self, const char* command, const std::vector<kiv_value::Value>*)
{
    if (std::strcmp(command, "OnCommand_PluginRedraw") != 0) return;
    ++self.received;
    ::InvalidateRect(self.Window(), nullptr, FALSE);
}

void CountChanges(LiveObject& self, const char* command, const std::vector<kiv_value::Value>*)
{
    if (std::strcmp(command, "OnCommand_ScrollBarChanged") == 0) ++self.received;
}
