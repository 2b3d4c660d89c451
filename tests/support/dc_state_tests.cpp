// The state check itself: each field it watches is reported, by its name alone, when a change
// touches only that field.
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

using Change = std::pair<const char*, std::function<void(HDC)>>;

// Objects a change selects; deleted once the canvas that held them is gone.
struct Objects {
    HPEN pen = ::CreatePen(PS_SOLID, 2, RGB(1, 2, 3));
    HBRUSH brush = ::CreateHatchBrush(HS_CROSS, RGB(4, 5, 6));
    HFONT font = ::CreateFontA(13, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "DejaVu Sans");
    HBITMAP bitmap = ::CreateBitmap(4, 4, 1, 32, nullptr);
    HPALETTE palette;
    Objects()
    {
        struct { LOGPALETTE head; PALETTEENTRY more[1]; } p = {{0x300, 2, {{1, 2, 3, 0}}}, {{4, 5, 6, 0}}};
        palette = ::CreatePalette(&p.head);
    }
    ~Objects()
    {
        for (HGDIOBJ o : {static_cast<HGDIOBJ>(pen), static_cast<HGDIOBJ>(brush), static_cast<HGDIOBJ>(font),
                          static_cast<HGDIOBJ>(bitmap), static_cast<HGDIOBJ>(palette)})
            ::DeleteObject(o);
    }
};

std::vector<Change> Changes(const Objects& o)
{
    return {
        {"pen", [&o](HDC dc) { ::SelectObject(dc, o.pen); }},
        {"brush", [&o](HDC dc) { ::SelectObject(dc, o.brush); }},
        {"font", [&o](HDC dc) { ::SelectObject(dc, o.font); }},
        {"bitmap", [&o](HDC dc) { ::SelectObject(dc, o.bitmap); }},
        {"text colour", [](HDC dc) { ::SetTextColor(dc, RGB(9, 8, 7)); }},
        {"background colour", [](HDC dc) { ::SetBkColor(dc, RGB(9, 8, 7)); }},
        {"background mode", [](HDC dc) { ::SetBkMode(dc, TRANSPARENT); }},
        {"text alignment", [](HDC dc) { ::SetTextAlign(dc, TA_BASELINE); }},
        {"ROP2 mode", [](HDC dc) { ::SetROP2(dc, R2_XORPEN); }},
        {"map mode", [](HDC dc) { ::SetMapMode(dc, MM_ANISOTROPIC); }},
        {"stretch mode", [](HDC dc) { ::SetStretchBltMode(dc, HALFTONE); }},
        {"polygon fill mode", [](HDC dc) { ::SetPolyFillMode(dc, WINDING); }},
        {"character extra", [](HDC dc) { ::SetTextCharacterExtra(dc, 3); }},
        {"arc direction", [](HDC dc) { ::SetArcDirection(dc, AD_CLOCKWISE); }},
        {"graphics mode", [](HDC dc) { ::SetGraphicsMode(dc, GM_ADVANCED); }},
        {"palette", [&o](HDC dc) { ::SelectPalette(dc, o.palette, FALSE); }},
        {"current position", [](HDC dc) { ::MoveToEx(dc, 5, 6, nullptr); }},
        {"brush origin", [](HDC dc) { ::SetBrushOrgEx(dc, 2, 3, nullptr); }},
        {"viewport origin", [](HDC dc) { ::SetViewportOrgEx(dc, 4, 5, nullptr); }},
        {"window origin", [](HDC dc) { ::SetWindowOrgEx(dc, 4, 5, nullptr); }},
        {"clip region", [](HDC dc) { ::IntersectClipRect(dc, 1, 1, 5, 5); }},
    };
}

// Extents change only in a mode that has them, and a right-to-left layout moves the context to
// that mode: the mode is set before the state is taken.
std::vector<Change> AnisotropicChanges()
{
    return {
        {"layout", [](HDC dc) { ::SetLayout(dc, LAYOUT_RTL); }},
        {"viewport extent", [](HDC dc) { ::SetViewportExtEx(dc, 30, 40, nullptr); }},
        {"window extent", [](HDC dc) { ::SetWindowExtEx(dc, 30, 40, nullptr); }},
    };
}

std::string DifferenceAfter(const Change& change, int mapMode)
{
    DibCanvas canvas(8, 8);
    HDC dc = canvas.dc()->m_hDC;
    ::SetMapMode(dc, mapMode);
    HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN), brush = ::GetCurrentObject(dc, OBJ_BRUSH);
    HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT), bitmap = ::GetCurrentObject(dc, OBJ_BITMAP);
    HGDIOBJ palette = ::GetCurrentObject(dc, OBJ_PAL);
    DcState before = DcState::Capture(dc);
    change.second(dc);
    std::string d = DcState::Capture(dc).Differences(before);
    // Hand the canvas back as it was made, so that it frees its own bitmap.
    ::SelectObject(dc, pen);
    ::SelectObject(dc, brush);
    ::SelectObject(dc, font);
    ::SelectObject(dc, bitmap);
    ::SelectPalette(dc, static_cast<HPALETTE>(palette), FALSE);
    return d;
}

}  // namespace

TEST(DcStateCheck, EachWatchedFieldIsReportedAloneWhenOnlyItChanges)
{
    Objects objects;
    for (const Change& change : Changes(objects)) EXPECT_EQ(change.first, DifferenceAfter(change, MM_TEXT));
    for (const Change& change : AnisotropicChanges()) EXPECT_EQ(change.first, DifferenceAfter(change, MM_ANISOTROPIC));
}

TEST(DcStateCheck, NothingChangedIsNothingReported)
{
    DibCanvas canvas(8, 8);
    DcState before = DcState::Capture(canvas.dc()->m_hDC);
    EXPECT_EQ("", DcState::Capture(canvas.dc()->m_hDC).Differences(before));
}
