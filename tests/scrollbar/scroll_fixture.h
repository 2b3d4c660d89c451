// Shared ground of the scroll bar tests: the standard bar, mouse events, the message pump, host
// objects that record the commands they receive, and the private pieces the tests reach.
#pragma once
#include "draw/draw_fixture.h"
#include "kiv_core/kiv_object.h"
#include "kiv_skin/scrollbar/plugin_scroll_bar.h"
#include "support/message_pump.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

using kiv_skin::PluginScrollBar;

// The standard bar: the list area (0, 1)-(100, 101) with 10-pixel lines holds 10 of 100 lines.
// The bar is (84, 0)-(101, 102); along y its first arrow is 0-16, its track 17-85, its second
// arrow 86-101, and at position 0 the thumb covers 17-25.
const CRect kArea(0, 1, 100, 101);
const int kBarX = 92;
const int kSecondArrowY = 95;
const int kFirstArrowY = 8;
void MakeStandard(PluginScrollBar& bar, int total = 100);

_DMouseEvent MouseEvent(uint16_t message, int x, int y, int16_t wheelDelta = 0);
PluginScrollBar::MOUSEEVENT Send(PluginScrollBar& bar, uint16_t message, int x, int y, int16_t wheelDelta = 0);

// The plug-in interface identifier a redraw request carries.
extern const GUID kPluginInterface;

// A host object that records every command it receives, with the tick and, for the scroll bar's
// change, the bar's position at that moment. It answers the plug-in interface with itself.
class RecordingObject : public IKivObject {
public:
    struct Received {
        std::string command;
        DWORD tick;
        int pos;
        std::vector<kiv_value::Value> args;
        bool hadArgs;
    };

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
    ULONG STDMETHODCALLTYPE Release() override { return --refs; }
    void OnCommand(const char* command, const std::vector<kiv_value::Value>* args, kiv_value::Value* result) override;

    int Count(const char* command) const;

    const PluginScrollBar* watched = nullptr;  // whose position to record
    std::vector<Received> received;
    ULONG refs = 1;
    int pluginQueries = 0;
};

// Registers objects at paths for the length of a test.
class Registration {
public:
    Registration() = default;
    ~Registration();
    void Add(const char* path, IKivObject* object);

private:
    std::vector<IKivObject*> m_objects;
};

// An owner object registered under a parent object, both recording.
struct OwnerAndParent {
    OwnerAndParent(const char* parentPath, const char* ownerPath);
    RecordingObject owner, parent;
    Registration registration;
};

// Grabs the standard bar's thumb 3 pixels below its start (at position 0) and drags it to y 40,
// position 29; answers the drag step's result.
PluginScrollBar::MOUSEEVENT GrabThumbAndDrag(PluginScrollBar& bar);

// Makes bar a vertical bar of owner (which records bar's position) in the standard place.
void MakeOwned(PluginScrollBar& bar, RecordingObject& owner);

namespace kiv_skin {
// The private operations the tests call.
struct PluginScrollBarInternals {
    static void DrawPiece(PluginScrollBar& bar, CDC* dc, const RECT* rect, int type, int shape)
    {
        bar.DrawWekToolButton(dc, rect, static_cast<PluginScrollBar::BUTTON_TYPE>(type), shape);
    }
    static int CalcScrollInfo(PluginScrollBar& bar, int total, int pos) { return bar.CalcScrollInfo(total, pos); }
    static int ScrollTo(PluginScrollBar& bar, int pos, int nBar) { return bar.ScrollTo(pos, nBar); }
    static int HasScrollBar(PluginScrollBar& bar) { return bar.HasScrollBar(); }
    static int GetNumScrollBar(PluginScrollBar& bar) { return bar.GetNumScrollBar(); }
    static DWORD Flags(const PluginScrollBar& bar) { return bar.m_nFlags; }
    static int Page(const PluginScrollBar& bar) { return bar.m_nPage; }
    static bool RepeatRunning(const PluginScrollBar& bar) { return bar.m_timerRepeat.GetTimerId() != 0; }
    static bool DragTimerRunning(const PluginScrollBar& bar) { return bar.m_timerDrag.GetTimerId() != 0; }
};
}  // namespace kiv_skin
using Internals = kiv_skin::PluginScrollBarInternals;
