// A host object for the core library's tests: records the commands it handles.
#pragma once
#include "kiv_core/kiv_object.h"
#include <windows.h>
#include <string>
#include <vector>

class RecordingObject : public IKivObject {
public:
    struct Call {
        std::string command;
        bool hadArgs;
        std::vector<kiv_value::Value> args;
        bool hadResult;
        DWORD thread;
    };

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override
    {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        if (iid != IID_IUnknown) return E_NOINTERFACE;
        *out = this;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
    ULONG STDMETHODCALLTYPE Release() override { return --refs; }
    void OnCommand(const char* command, const std::vector<kiv_value::Value>* args,
                   kiv_value::Value* result) override
    {
        calls.push_back({command, args != nullptr, args ? *args : std::vector<kiv_value::Value>(),
                         result != nullptr, GetCurrentThreadId()});
        if (result != nullptr) *result = answer;
    }

    ULONG refs = 1;
    kiv_value::Value answer{42};
    std::vector<Call> calls;
};

// Dispatches whatever the calling thread's queue holds, without waiting.
inline void PumpMessages()
{
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
}
