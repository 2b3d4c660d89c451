// The host's mouse event record, read from the bytes the host lays out.
#include "kiv_core/mouse_event.h"
#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>

static_assert(sizeof(_DMouseEvent) == 12, "x, y, message, wheel delta: 4 + 4 + 2 + 2 bytes");
static_assert(offsetof(_DMouseEvent, y) == 4 && offsetof(_DMouseEvent, message) == 8 &&
                  offsetof(_DMouseEvent, wheelDelta) == 10,
              "the host's field order");

TEST(MouseEvent, FieldsFromTheHostsBytes)
{
    // x = -3, y = 200, message = wheel, delta = -120, little-endian.
    const unsigned char bytes[12] = {0xFD, 0xFF, 0xFF, 0xFF, 0xC8, 0, 0, 0, 0x00, 0x08, 0x88, 0xFF};
    _DMouseEvent event;
    std::memcpy(&event, bytes, sizeof event);
    EXPECT_EQ(-3, event.x);
    EXPECT_EQ(200, event.y);
    EXPECT_EQ(DMOUSE_WHEEL, event.message);
    EXPECT_EQ(-120, event.wheelDelta);
}

TEST(MouseEvent, MessageCodes)
{
    EXPECT_EQ(1, DMOUSE_MOVE);
    EXPECT_EQ(2, DMOUSE_LBUTTONDOWN);
    EXPECT_EQ(4, DMOUSE_LBUTTONUP);
    EXPECT_EQ(0x800, DMOUSE_WHEEL);
}
