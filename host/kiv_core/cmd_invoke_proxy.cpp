#include "kiv_core/cmd_invoke_proxy.h"
#include <memory>
#include <mutex>
#include <string>

using kiv_value::Value;

namespace cmd_system {

namespace {

const UINT WM_KIV_COMMAND = WM_APP + 1;

// What a thread waiting in SendCommand shares with the UI thread that runs its call.
struct Reply {
    Reply() : done(CreateEventA(nullptr, TRUE, FALSE, nullptr)) {}
    ~Reply() { if (done != nullptr) CloseHandle(done); }
    std::mutex lock;
    HANDLE done;
    bool finished = false;
    bool abandoned = false;  // the sender stopped waiting
    bool wantsResult = false;
    Value result;
};

// A call on its way to the UI thread, holding its target by a reference and copies of the rest.
struct QueuedCall {
    IKivObject* target;
    std::string command;
    bool hasArgs;
    std::vector<Value> args;
    std::shared_ptr<Reply> reply;  // null for a posted call
};

void Run(QueuedCall& call)
{
    Value result;
    bool wantsResult = call.reply != nullptr && call.reply->wantsResult;
    call.target->OnCommand(call.command.c_str(), call.hasArgs ? &call.args : nullptr,
                           wantsResult ? &result : nullptr);
    call.target->Release();
    if (call.reply == nullptr) return;
    std::lock_guard<std::mutex> hold(call.reply->lock);
    if (call.reply->abandoned) return;
    call.reply->result = result;
    call.reply->finished = true;
    SetEvent(call.reply->done);
}

LRESULT CALLBACK CommandWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_KIV_COMMAND) return DefWindowProcA(hwnd, message, wParam, lParam);
    std::unique_ptr<QueuedCall> call(reinterpret_cast<QueuedCall*>(lParam));
    Run(*call);
    return 0;
}

// The UI thread and its hidden message-only window, made by the process's first proxy.
struct UiThread {
    UiThread() : thread(GetCurrentThreadId()), window(CreateCommandWindow()) {}
    static const UiThread& Get()
    {
        static UiThread ui;
        return ui;
    }
    static HWND CreateCommandWindow()
    {
        HMODULE module = nullptr;
        GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCSTR>(&CommandWindowProc), &module);
        WNDCLASSA wc = {};
        wc.lpfnWndProc = CommandWindowProc;
        wc.hInstance = module;
        wc.lpszClassName = "KivCoreCommandWindow";
        RegisterClassA(&wc);
        return CreateWindowExA(0, wc.lpszClassName, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, module, nullptr);
    }
    DWORD thread;
    HWND window;
};

// Posts call to the UI thread's window, which then owns it; on failure it is dropped here.
bool Queue(std::unique_ptr<QueuedCall> call)
{
    call->target->AddRef();
    if (PostMessageA(UiThread::Get().window, WM_KIV_COMMAND, 0, reinterpret_cast<LPARAM>(call.get()))) {
        call.release();
        return true;
    }
    call->target->Release();
    return false;
}

std::unique_ptr<QueuedCall> Copy(IKivObject* target, const char* command, const std::vector<Value>* args)
{
    return std::unique_ptr<QueuedCall>(new QueuedCall{
        target, command, args != nullptr, args != nullptr ? *args : std::vector<Value>(), nullptr});
}

}  // namespace

CmdInvokeProxy::CmdInvokeProxy(IKivObject* sender) : m_sender(sender)
{
    UiThread::Get();
}

bool CmdInvokeProxy::SendCommand(IKivObject* target, const char* command, const std::vector<Value>* args,
                                 Value* result, DWORD timeout)
{
    if (target == nullptr || command == nullptr) return false;
    if (GetCurrentThreadId() == UiThread::Get().thread) {
        target->OnCommand(command, args, result);
        return true;
    }
    std::unique_ptr<QueuedCall> call = Copy(target, command, args);
    std::shared_ptr<Reply> reply = std::make_shared<Reply>();
    reply->wantsResult = result != nullptr;
    call->reply = reply;
    if (reply->done == nullptr || !Queue(std::move(call))) return false;
    WaitForSingleObject(reply->done, timeout);
    std::lock_guard<std::mutex> hold(reply->lock);
    if (!reply->finished) {
        reply->abandoned = true;
        return false;
    }
    if (result != nullptr) *result = reply->result;
    return true;
}

bool CmdInvokeProxy::PostCommand(IKivObject* target, const char* command, const std::vector<Value>* args)
{
    if (target == nullptr || command == nullptr) return false;
    return Queue(Copy(target, command, args));
}

}  // namespace cmd_system
