#include "scroll_fixture.h"
#include "kiv_core/object_manager.h"

void MakeStandard(PluginScrollBar& bar, int total) { bar.SetScrollInfo(kArea, 10, total, 0); }

_DMouseEvent MouseEvent(uint16_t message, int x, int y, int16_t wheelDelta)
{
    _DMouseEvent event;
    event.x = x;
    event.y = y;
    event.message = message;
    event.wheelDelta = wheelDelta;
    return event;
}

PluginScrollBar::MOUSEEVENT Send(PluginScrollBar& bar, uint16_t message, int x, int y, int16_t wheelDelta)
{
    _DMouseEvent event = MouseEvent(message, x, y, wheelDelta);
    return bar.OnMouseEvent(&event);
}

const GUID kPluginInterface = {0x83947233, 0x6E55, 0x4CEF, {0x9D, 0x67, 0x86, 0xF6, 0x39, 0xB0, 0x0C, 0x0C}};

HRESULT STDMETHODCALLTYPE RecordingObject::QueryInterface(REFIID iid, void** out)
{
    if (iid == kPluginInterface) ++pluginQueries;
    if (iid == kPluginInterface || iid == IID_IUnknown) {
        *out = static_cast<IKivObject*>(this);
        AddRef();
        return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
}

void RecordingObject::OnCommand(const char* command, const std::vector<kiv_value::Value>* args, kiv_value::Value*)
{
    Received r{command, ::GetTickCount(), watched ? const_cast<PluginScrollBar*>(watched)->GetScrollPos() : -1,
               args ? *args : std::vector<kiv_value::Value>{}, args != nullptr};
    received.push_back(r);
}

int RecordingObject::Count(const char* command) const
{
    int n = 0;
    for (const Received& r : received) n += r.command == command;
    return n;
}

Registration::~Registration()
{
    for (IKivObject* object : m_objects) obj_system::ObjectManager::GetInstance()->Unregister(object);
}

void Registration::Add(const char* path, IKivObject* object)
{
    ASSERT_TRUE(obj_system::ObjectManager::GetInstance()->Register(path, object)) << path;
    m_objects.push_back(object);
}

OwnerAndParent::OwnerAndParent(const char* parentPath, const char* ownerPath)
{
    registration.Add(parentPath, &parent);
    registration.Add(ownerPath, &owner);
}

void MakeOwned(PluginScrollBar& bar, RecordingObject& owner)
{
    owner.watched = &bar;
    bar.Create(&owner, PluginScrollBar::BORDER_NONE, 1);
    MakeStandard(bar);
}

PluginScrollBar::MOUSEEVENT GrabThumbAndDrag(PluginScrollBar& bar)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 20);
    return Send(bar, DMOUSE_MOVE, kBarX, 40);
}
