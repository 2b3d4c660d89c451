#include "support/dc_state.h"
#include <algorithm>
#include <vector>

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

// Wine hands out freed slots last-freed first, so the slot of a single probe depends on the
// order of earlier frees, not only on how many objects live. Probes enough to use up every freed
// slot take fresh ones after them: the highest slot, less the number of probes, then counts the
// live objects whatever order they were freed in.
int GdiProbeSlot()
{
    const int kProbes = 8192;  // more than the slots any test frees
    std::vector<HBRUSH> probes;
    int highest = 0;
    for (int i = 0; i < kProbes; ++i) {
        HBRUSH probe = CreateSolidBrush(RGB(1, 2, 3));
        if (!probe) break;
        probes.push_back(probe);
        highest = std::max(highest, static_cast<int>(reinterpret_cast<UINT_PTR>(probe) & 0xFFFF));
    }
    for (auto it = probes.rbegin(); it != probes.rend(); ++it) DeleteObject(*it);
    return highest + 1 - static_cast<int>(probes.size());
}
