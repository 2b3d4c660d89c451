// The mouse event record the host forwards to a plug-in's parts, in the host's layout.
#pragma once
#include <cstdint>

enum DMOUSEMESSAGE : uint16_t {
    DMOUSE_MOVE = 0x1,
    DMOUSE_LBUTTONDOWN = 0x2,
    DMOUSE_LBUTTONUP = 0x4,
    DMOUSE_WHEEL = 0x800,
};

struct _DMouseEvent {
    int32_t x;           // client coordinates of the plug-in's area
    int32_t y;
    uint16_t message;    // one of DMOUSEMESSAGE
    int16_t wheelDelta;  // for DMOUSE_WHEEL: positive away from the user
};
