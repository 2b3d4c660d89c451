// The host's command proxy: runs a command on a host object, now (SendCommand) or later from the
// UI thread's message loop (PostCommand).
//
// The UI thread is the thread that builds the process's first proxy; the host does that at
// start-up. That thread gets a hidden message-only window: posted commands are private messages
// to it, so they run from any message loop the thread pumps (modal ones included), in the order
// they were posted.
#pragma once
#include "kiv_core/kiv_core_api.h"
#include "kiv_core/kiv_object.h"
#include <windows.h>
#include <vector>

namespace cmd_system {

class KIV_CORE_API CmdInvokeProxy {
public:
    // sender: the object on whose behalf commands are sent; may be null.
    explicit CmdInvokeProxy(IKivObject* sender = nullptr);

    IKivObject* GetSender() const { return m_sender; }

    // Runs target's OnCommand with args and result and returns when it has returned. On the UI
    // thread the handler runs at once; from another thread the call goes to the UI thread's
    // loop and SendCommand waits for it at most timeout milliseconds (INFINITE: without limit).
    // True when the handler ran; false for a null target or command, or when the wait timed out
    // (the handler then still runs later, with copies, and result is left alone).
    bool SendCommand(IKivObject* target, const char* command,
                     const std::vector<kiv_value::Value>* args, kiv_value::Value* result,
                     DWORD timeout);

    // Queues the call for the UI thread's message loop and returns at once. The command and the
    // list are copied (args may be destroyed after the call); target is held by AddRef until its
    // handler has run. False for a null target or command, or when the queue is gone.
    bool PostCommand(IKivObject* target, const char* command,
                     const std::vector<kiv_value::Value>* args);

private:
    IKivObject* m_sender;
};

}  // namespace cmd_system
