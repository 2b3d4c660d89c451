#include "support/dc_state.h"
#include <algorithm>
#include <vector>

namespace {

std::vector<char> ClipRegionData(HDC hdc, bool& clipped)
{
    HRGN region = CreateRectRgn(0, 0, 0, 0);
    clipped = GetClipRgn(hdc, region) == 1;
    std::vector<char> data;
    if (clipped) {
        data.resize(GetRegionData(region, 0, nullptr));
        GetRegionData(region, static_cast<DWORD>(data.size()), reinterpret_cast<RGNDATA*>(data.data()));
    }
    DeleteObject(region);
    return data;
}

bool Same(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }
bool Same(SIZE a, SIZE b) { return a.cx == b.cx && a.cy == b.cy; }

}  // namespace

DcState DcState::Capture(HDC hdc)
{
    DcState s;
    s.pen = GetCurrentObject(hdc, OBJ_PEN);
    s.brush = GetCurrentObject(hdc, OBJ_BRUSH);
    s.font = GetCurrentObject(hdc, OBJ_FONT);
    s.bitmap = GetCurrentObject(hdc, OBJ_BITMAP);
    s.textColor = GetTextColor(hdc);
    s.bkColor = GetBkColor(hdc);
    s.bkMode = GetBkMode(hdc);
    s.textAlign = GetTextAlign(hdc);
    s.rop2 = GetROP2(hdc);
    s.mapMode = GetMapMode(hdc);
    s.stretchMode = GetStretchBltMode(hdc);
    s.fillMode = GetPolyFillMode(hdc);
    s.charExtra = GetTextCharacterExtra(hdc);
    s.arcDirection = GetArcDirection(hdc);
    s.graphicsMode = GetGraphicsMode(hdc);
    s.layout = GetLayout(hdc);
    s.palette = GetCurrentObject(hdc, OBJ_PAL);
    GetCurrentPositionEx(hdc, &s.position);
    GetBrushOrgEx(hdc, &s.brushOrigin);
    GetViewportOrgEx(hdc, &s.viewportOrigin);
    GetWindowOrgEx(hdc, &s.windowOrigin);
    GetViewportExtEx(hdc, &s.viewportExtent);
    GetWindowExtEx(hdc, &s.windowExtent);
    s.clipRegion = ClipRegionData(hdc, s.clipped);
    return s;
}

std::string DcState::Differences(const DcState& o) const
{
    std::string d;
    auto note = [&d](bool same, const char* what) {
        if (!same) d += d.empty() ? what : std::string(", ") + what;
    };
    note(pen == o.pen, "pen");
    note(brush == o.brush, "brush");
    note(font == o.font, "font");
    note(bitmap == o.bitmap, "bitmap");
    note(textColor == o.textColor, "text colour");
    note(bkColor == o.bkColor, "background colour");
    note(bkMode == o.bkMode, "background mode");
    note(textAlign == o.textAlign, "text alignment");
    note(rop2 == o.rop2, "ROP2 mode");
    note(mapMode == o.mapMode, "map mode");
    note(stretchMode == o.stretchMode, "stretch mode");
    note(fillMode == o.fillMode, "polygon fill mode");
    note(charExtra == o.charExtra, "character extra");
    note(arcDirection == o.arcDirection, "arc direction");
    note(graphicsMode == o.graphicsMode, "graphics mode");
    note(layout == o.layout, "layout");
    note(palette == o.palette, "palette");
    note(Same(position, o.position), "current position");
    note(Same(brushOrigin, o.brushOrigin), "brush origin");
    note(Same(viewportOrigin, o.viewportOrigin), "viewport origin");
    note(Same(windowOrigin, o.windowOrigin), "window origin");
    note(Same(viewportExtent, o.viewportExtent), "viewport extent");
    note(Same(windowExtent, o.windowExtent), "window extent");
    note(clipped == o.clipped && clipRegion == o.clipRegion, "clip region");
    return d;
}

DcStateCheck::DcStateCheck(CDC* dc)
    : m_output(dc->m_hDC), m_attrib(dc->m_hAttribDC), m_outputBefore(DcState::Capture(dc->m_hDC)),
      m_attribBefore(DcState::Capture(dc->m_hAttribDC))
{
}

::testing::AssertionResult DcStateCheck::Unchanged() const
{
    std::string output = DcState::Capture(m_output).Differences(m_outputBefore);
    std::string attrib = DcState::Capture(m_attrib).Differences(m_attribBefore);
    if (output.empty() && attrib.empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "changed on the output handle: [" << output
                                         << "], on the attribute handle: [" << attrib << "]";
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
        highest = (std::max)(highest, static_cast<int>(reinterpret_cast<UINT_PTR>(probe) & 0xFFFF));
    }
    for (auto it = probes.rbegin(); it != probes.rend(); ++it) DeleteObject(*it);
    return highest + 1 - static_cast<int>(probes.size());
}
