// 10,000 repaints and 10,000 mouse sequences lose no GDI object: a fresh object's handle slot
// stays where it was.
#include "scroll_fixture.h"

namespace {

void MouseSequence(PluginScrollBar& bar)
{
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, kSecondArrowY);
    Send(bar, DMOUSE_LBUTTONUP, kBarX, kSecondArrowY);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 70);
    Send(bar, DMOUSE_MOVE, 20, 20);
    Send(bar, DMOUSE_LBUTTONDOWN, kBarX, 20);
    Send(bar, DMOUSE_MOVE, kBarX, 60);
    Send(bar, DMOUSE_MOVE, kBarX, 20);
    Send(bar, DMOUSE_LBUTTONUP, kBarX, 20);
    Send(bar, DMOUSE_WHEEL, 0, 0, -120);
    Send(bar, DMOUSE_WHEEL, 0, 0, 120);
}

class ScrollLeak : public TestScheme {};

TEST_F(ScrollLeak, RepaintsAndMouseSequencesKeepTheGdiCountFlat)
{
    Sheet sheet(120, 110);
    PluginScrollBar bar, horizontal, throttled(false);
    MakeStandard(bar);
    horizontal.Create(nullptr, PluginScrollBar::BORDER_NONE, 0);
    horizontal.SetScrollInfo(CRect(0, 0, 110, 100), 10, 100, 0);
    MakeStandard(throttled);
    for (int i = 0; i < 20; ++i) bar.Draw(sheet.dc());  // first-use allocations
    int before = GdiProbeSlot();
    for (int i = 0; i < 10000; ++i) {
        bar.SetScrollPos(i % 3 == 0 ? 7 : -5);
        bar.Draw(sheet.dc());
        horizontal.Draw(sheet.dc());
    }
    for (int i = 0; i < 10000; ++i) {
        MouseSequence(bar);
        MouseSequence(throttled);
    }
    Pump(300);
    EXPECT_EQ(before, GdiProbeSlot());
    EXPECT_TRUE(sheet.check.Unchanged());
}

}  // namespace
