// The command proxy: SendCommand runs the handler before it returns; PostCommand runs it later
// from the UI thread's message loop. This test's main thread is the UI thread: it builds the
// process's first proxy.
#include "core_fixture.h"
#include "kiv_core/cmd_invoke_proxy.h"
#include <gtest/gtest.h>
#include <thread>

using cmd_system::CmdInvokeProxy;
using kiv_value::Value;

namespace {

class CmdInvokeProxyTest : public ::testing::Test {
protected:
    CmdInvokeProxy proxy;
    RecordingObject target;
    int payload = 0;
};

// Pumps the calling thread's queue until done() or ten seconds have passed.
template <class Done>
void PumpUntil(Done done)
{
    DWORD start = GetTickCount();
    while (!done() && GetTickCount() - start < 10000) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        PumpMessages();
    }
}

}  // namespace

TEST_F(CmdInvokeProxyTest, SendCommandRunsTheHandlerBeforeItReturns)
{
    std::vector<Value> args{Value(&payload), Value(7)};
    Value result;
    ASSERT_TRUE(proxy.SendCommand(&target, "OnCommand_ScrollBarChanged", &args, &result, INFINITE));
    ASSERT_EQ(1u, target.calls.size());
    const RecordingObject::Call& call = target.calls[0];
    EXPECT_EQ("OnCommand_ScrollBarChanged", call.command);
    ASSERT_TRUE(call.hadArgs);
    ASSERT_EQ(2u, call.args.size());
    EXPECT_EQ(&payload, call.args[0].GetPointer());
    EXPECT_EQ(7, call.args[1].GetInt());
    EXPECT_TRUE(call.hadResult);
    EXPECT_EQ(42, result.GetInt());
    EXPECT_EQ(GetCurrentThreadId(), call.thread);
}

TEST_F(CmdInvokeProxyTest, SendCommandWithoutListOrResultPassesNulls)
{
    ASSERT_TRUE(proxy.SendCommand(&target, "OnCommand_ScrollBarChanged", nullptr, nullptr, 0xFFFFFFFF));
    ASSERT_EQ(1u, target.calls.size());
    EXPECT_FALSE(target.calls[0].hadArgs);
    EXPECT_FALSE(target.calls[0].hadResult);
}

TEST_F(CmdInvokeProxyTest, ANullTargetOrCommandIsRefused)
{
    Value result;
    EXPECT_FALSE(proxy.SendCommand(nullptr, "x", nullptr, &result, INFINITE));
    EXPECT_FALSE(proxy.SendCommand(&target, nullptr, nullptr, &result, INFINITE));
    EXPECT_FALSE(proxy.PostCommand(nullptr, "x", nullptr));
    EXPECT_FALSE(proxy.PostCommand(&target, nullptr, nullptr));
    PumpMessages();
    EXPECT_TRUE(target.calls.empty());
    EXPECT_TRUE(result.IsEmpty());
}

TEST_F(CmdInvokeProxyTest, PostCommandReturnsBeforeTheHandlerRunsAndKeepsCopies)
{
    {
        std::vector<Value> args{Value(&payload)};
        ASSERT_TRUE(CmdInvokeProxy().PostCommand(&target, "OnCommand_PluginRedraw", &args));
        args[0] = Value(nullptr);  // the caller's list changes and goes away
    }
    EXPECT_TRUE(target.calls.empty());
    EXPECT_EQ(2u, target.refs);  // the queued call holds the target
    PumpMessages();
    ASSERT_EQ(1u, target.calls.size());
    const RecordingObject::Call& call = target.calls[0];
    EXPECT_EQ("OnCommand_PluginRedraw", call.command);
    ASSERT_EQ(1u, call.args.size());
    EXPECT_EQ(&payload, call.args[0].GetPointer());
    EXPECT_FALSE(call.hadResult);
    EXPECT_EQ(GetCurrentThreadId(), call.thread);
    EXPECT_EQ(1u, target.refs);
}

TEST_F(CmdInvokeProxyTest, PostedCommandsRunInTheOrderPosted)
{
    ASSERT_TRUE(proxy.PostCommand(&target, "first", nullptr));
    ASSERT_TRUE(proxy.PostCommand(&target, "second", nullptr));
    ASSERT_TRUE(proxy.SendCommand(&target, "sent", nullptr, nullptr, INFINITE));
    ASSERT_EQ(1u, target.calls.size());
    EXPECT_EQ("sent", target.calls[0].command);
    PumpMessages();
    ASSERT_EQ(3u, target.calls.size());
    EXPECT_EQ("first", target.calls[1].command);
    EXPECT_EQ("second", target.calls[2].command);
    EXPECT_FALSE(target.calls[1].hadArgs);
}

TEST_F(CmdInvokeProxyTest, SendCommandFromAnotherThreadRunsOnTheUiThread)
{
    std::vector<Value> args{Value(&payload)};
    Value result;
    bool sent = false;
    bool finished = false;
    std::thread worker([&] {
        sent = CmdInvokeProxy().SendCommand(&target, "OnCommand_ScrollBarChanged", &args, &result, INFINITE);
        finished = true;
    });
    PumpUntil([&] { return !target.calls.empty(); });
    worker.join();
    EXPECT_TRUE(finished);
    EXPECT_TRUE(sent);
    EXPECT_EQ(42, result.GetInt());
    ASSERT_EQ(1u, target.calls.size());
    EXPECT_EQ(GetCurrentThreadId(), target.calls[0].thread);
    EXPECT_EQ(&payload, target.calls[0].args.at(0).GetPointer());
    EXPECT_TRUE(target.calls[0].hadResult);
}

// The UI thread does not pump while the worker waits: the worker gives up after its timeout, and
// the call still runs when the loop comes round, without touching the worker's result.
TEST_F(CmdInvokeProxyTest, SendCommandFromAnotherThreadHonoursTheTimeout)
{
    Value result;
    bool sent = true;
    std::thread worker([&] { sent = CmdInvokeProxy().SendCommand(&target, "late", nullptr, &result, 100); });
    worker.join();
    EXPECT_FALSE(sent);
    EXPECT_TRUE(target.calls.empty());
    PumpMessages();
    ASSERT_EQ(1u, target.calls.size());
    EXPECT_EQ("late", target.calls[0].command);
    EXPECT_TRUE(result.IsEmpty());
    EXPECT_EQ(1u, target.refs);
}
