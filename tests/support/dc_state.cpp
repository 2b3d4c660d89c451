#include "support/dc_state.h"

DcState DcState::Capture(HDC hdc)
{
    return {GetCurrentObject(hdc, OBJ_PEN),  GetCurrentObject(hdc, OBJ_BRUSH),
            GetCurrentObject(hdc, OBJ_FONT), GetCurrentObject(hdc, OBJ_BITMAP),
            GetTextColor(hdc), GetBkColor(hdc), GetBkMode(hdc), GetTextAlign(hdc)};
}

bool DcState::operator==(const DcState& o) const
{
    return pen == o.pen && brush == o.brush && font == o.font && bitmap == o.bitmap &&
           textColor == o.textColor && bkColor == o.bkColor && bkMode == o.bkMode &&
           textAlign == o.textAlign;
}

::testing::AssertionResult DcStateCheck::Unchanged() const
{
    DcState now = DcState::Capture(m_hdc);
    if (now == m_before) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "DC state changed: pen " << (now.pen == m_before.pen) << ", brush "
           << (now.brush == m_before.brush) << ", font " << (now.font == m_before.font)
           << ", bitmap " << (now.bitmap == m_before.bitmap) << ", text colour "
           << (now.textColor == m_before.textColor) << ", background colour "
           << (now.bkColor == m_before.bkColor) << ", background mode "
           << (now.bkMode == m_before.bkMode) << ", text alignment "
           << (now.textAlign == m_before.textAlign) << " (1 = unchanged)";
}

int GdiProbeSlot()
{
    HBRUSH probe = CreateSolidBrush(RGB(1, 2, 3));
    int slot = static_cast<int>(reinterpret_cast<UINT_PTR>(probe) & 0xFFFF);
    DeleteObject(probe);
    return slot;
}
