// The live window's host objects in the host's reference command system: the window object at
// "kiv_demo\live", which repaints the window when asked to redraw a plug-in, and the quote panel's
// object at "kiv_demo\live\quotes", which owns the scroll bars and counts their changes.
#pragma once
#include <afxwin.h>
#include "kiv_core/kiv_object.h"

extern const char kLiveWindowPath[];
extern const char kLivePanelPath[];

// A host object with a fixed reference count (it lives as long as its window) that runs one
// handler for its commands.
class LiveObject : public IKivObject {
public:
    using Handler = void (*)(LiveObject& self, const char* command, const std::vector<kiv_value::Value>* args);

    LiveObject(const char* path, Handler handler, HWND* window);
    ~LiveObject();
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;

    // Answers the plug-in interface too: the scroll bar names it in its redraw requests.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    void OnCommand(const char* command, const std::vector<kiv_value::Value>* args, kiv_value::Value*) override;

    HWND Window() const { return *m_window; }
    int received = 0;  // commands handled

private:
    Handler m_handler;
    HWND* m_window;
};

// The handlers: the window repaints on "OnCommand_PluginRedraw"; the panel counts
// "OnCommand_ScrollBarChanged".
void RedrawOnRequest(LiveObject& self, const char* command, const std::vector<kiv_value::Value>* args);
void CountChanges(LiveObject& self, const char* command, const std::vector<kiv_value::Value>* args);
