// What the host hears: the owner's change command, sent at once, and the redraw request posted
// to the owner's parent with the plug-in interface; nothing without an owner or a parent path;
// a throttled drag's deferred report.
#include "scroll_fixture.h"

namespace {

const char* const kChanged = "OnCommand_ScrollBarChanged";
const char* const kRedraw = "OnCommand_PluginRedraw";

class ScrollNotify : public TestScheme {
protected:
    // Presses the second arrow and holds it until the first repeat has been reported.
    void HoldForOneRepeat(PluginScrollBar& bar)
    {
        Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
        EXPECT_TRUE(PumpUntil([&] { return bar.GetScrollPos() >= 2; }, 3000));
        Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
        Pump(200);  // the posted request's turn in the loop
    }

    Registration registration;
};

// The parent records how many change commands the owner had received when each request arrived.
class ParentOf : public RecordingObject {
public:
    explicit ParentOf(const RecordingObject& child) : m_child(child) {}
    void OnCommand(const char* command, const std::vector<kiv_value::Value>* args, kiv_value::Value* result) override
    {
        childChangesSeen.push_back(m_child.Count(kChanged));
        RecordingObject::OnCommand(command, args, result);
    }
    std::vector<int> childChangesSeen;

private:
    const RecordingObject& m_child;
};

TEST_F(ScrollNotify, OwnerHearsAtOnceAndItsParentIsAskedToRedrawWithThePluginInterface)
{
    RecordingObject owner;
    ParentOf parent(owner);
    RecordingObject grandparent;
    registration.Add("a", &grandparent);
    registration.Add("a\\b", &parent);
    registration.Add("a\\b\\c", &owner);
    PluginScrollBar bar;
    MakeOwned(bar, owner);

    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    ASSERT_TRUE(PumpUntil([&] { return owner.Count(kChanged) == 1; }, 3000));
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    ASSERT_TRUE(PumpUntil([&] { return parent.Count(kRedraw) == 1; }, 3000));

    ASSERT_EQ(1u, owner.received.size());
    EXPECT_EQ(kChanged, owner.received[0].command);
    EXPECT_EQ(2, owner.received[0].pos);  // the new position, while the tick runs
    EXPECT_FALSE(owner.received[0].hadArgs);
    ASSERT_EQ(1u, parent.received.size());
    EXPECT_EQ(1, parent.childChangesSeen[0]);  // posted: after the owner's command
    ASSERT_EQ(1u, parent.received[0].args.size());
    EXPECT_EQ(static_cast<IKivObject*>(&owner), parent.received[0].args[0].GetPointer());
    EXPECT_EQ(1, owner.pluginQueries);
    EXPECT_EQ(1u, owner.refs);  // the interface was released at once
    EXPECT_TRUE(grandparent.received.empty());
}

TEST_F(ScrollNotify, OwnerWithoutABackslashInItsPathGetsNoRedraw)
{
    RecordingObject owner, other;
    registration.Add("solo", &owner);
    registration.Add("other", &other);
    PluginScrollBar bar;
    MakeOwned(bar, owner);
    HoldForOneRepeat(bar);
    EXPECT_GE(owner.Count(kChanged), 1);
    EXPECT_EQ(0, owner.Count(kRedraw));
    EXPECT_TRUE(other.received.empty());
    EXPECT_EQ(0, owner.pluginQueries);
}

TEST_F(ScrollNotify, OwnerWhoseParentPathHoldsNoObjectGetsNoRedraw)
{
    RecordingObject owner;
    registration.Add("x\\y", &owner);
    PluginScrollBar bar;
    MakeOwned(bar, owner);
    HoldForOneRepeat(bar);
    EXPECT_GE(owner.Count(kChanged), 1);
    EXPECT_EQ(0, owner.Count(kRedraw));
    EXPECT_EQ(1u, owner.refs);
}

TEST_F(ScrollNotify, WithoutAnOwnerNothingIsSent)
{
    RecordingObject object, parent;
    registration.Add("p", &parent);
    registration.Add("p\\q", &object);
    PluginScrollBar bar;
    MakeStandard(bar);
    HoldForOneRepeat(bar);
    EXPECT_GE(bar.GetScrollPos(), 2);
    EXPECT_TRUE(object.received.empty());
    EXPECT_TRUE(parent.received.empty());
}

TEST_F(ScrollNotify, ImmediateDragReportsNothing)
{
    OwnerAndParent host("d", "d\\e");
    PluginScrollBar bar(true);
    MakeOwned(bar, host.owner);
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, GrabThumbAndDrag(bar));
    EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, Send(bar, DMOUSE_MOVE, kBarX, 50));
    EXPECT_EQ(44, bar.GetScrollPos());
    Pump(400);
    Send(bar, DMOUSE_LBUTTONUP, kBarX, 50);
    EXPECT_TRUE(host.owner.received.empty());
    EXPECT_TRUE(host.parent.received.empty());
}

// The first drag step applies at once; the next, within 80 ms, only moves the position and
// waits for the drag timer, whose expiry 100 ms later reports it. The two steps are timed: a pair
// that a busy machine spread over more than 80 ms is no throttled pair, and is tried again.
TEST_F(ScrollNotify, ThrottledDragDefersItsReportByAHundredMilliseconds)
{
    for (int attempt = 0; attempt < 5; ++attempt) {
        OwnerAndParent host("t", "t\\u");
        PluginScrollBar bar(false);
        MakeOwned(bar, host.owner);
        DWORD first = ::GetTickCount();
        EXPECT_EQ(PluginScrollBar::MOUSE_HANDLED, GrabThumbAndDrag(bar));
        EXPECT_EQ(29, bar.GetScrollPos());
        DWORD deferred = ::GetTickCount();
        PluginScrollBar::MOUSEEVENT second = Send(bar, DMOUSE_MOVE, kBarX, 50);
        if (::GetTickCount() - first > 80) {
            Send(bar, DMOUSE_LBUTTONUP, kBarX, 50);
            Pump(300);
            continue;
        }
        EXPECT_EQ(PluginScrollBar::MOUSE_IGNORED, second);
        EXPECT_EQ(44, bar.GetScrollPos());
        EXPECT_TRUE(Internals::DragTimerRunning(bar));
        EXPECT_TRUE(host.owner.received.empty());
        ASSERT_TRUE(PumpUntil([&] { return host.owner.Count(kChanged) == 1; }, 3000));
        DWORD delay = host.owner.received[0].tick - deferred;
        Send(bar, DMOUSE_LBUTTONUP, kBarX, 50);
        ASSERT_TRUE(PumpUntil([&] { return host.parent.Count(kRedraw) == 1; }, 3000));
        EXPECT_GE(delay, 90u);
        EXPECT_LE(delay, 1000u);
        EXPECT_EQ(44, host.owner.received[0].pos);
        EXPECT_FALSE(Internals::DragTimerRunning(bar));
        Pump(300);
        EXPECT_EQ(1, host.owner.Count(kChanged));
        return;
    }
    FAIL() << "no two drag steps came within 80 ms of each other in five attempts";
}

TEST_F(ScrollNotify, DragTimerCallbackForAnotherTimerIsIgnored)
{
    RecordingObject owner;
    registration.Add("v", &owner);
    PluginScrollBar bar(false);
    MakeOwned(bar, owner);
    bar.OnKivTimer(12345);
    EXPECT_TRUE(owner.received.empty());
}

}  // namespace
