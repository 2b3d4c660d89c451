// Shared ground of the drawing tests: the test scheme's colours, the scheme situations each test
// process is in, and canvases pre-filled with a sentinel colour that no scheme key has.
#pragma once
#include "support/busy_dc.h"
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include <afxwin.h>
#include <gtest/gtest.h>
#include <memory>

// The test scheme (tests/draw/schemes): every colour key its own value.
namespace scheme {
const COLORREF kBackground = 0x00112233;
const COLORREF kPlugBackground = 0x00223344;
const COLORREF kPlugFrame = 0x00335566;
const COLORREF kPlugSelect = 0x00446688;
const COLORREF kTitleBackground = 0x00557799;
const COLORREF kTitleText = 0x00F0E0D0;
const COLORREF kButtonNormal = 0x006688AA;
const COLORREF kButtonHover = 0x007799BB;
const COLORREF kButtonPressed = 0x0088AACC;
const COLORREF kButtonInk = 0x0000C0FF;
}  // namespace scheme

const COLORREF kSentinel = RGB(250, 0, 250);
const COLORREF kNoColor = 0xFFFFFFFF;

// Makes the named scheme of this program's catalogue the active one (the test scheme is the
// catalogue's default).
void UseScheme(const char* name);

// Suites whose process runs on the test scheme.
class TestScheme : public ::testing::Test {
protected:
    static void SetUpTestSuite() { UseScheme("test"); }
};

// Suites whose process runs on a scheme with colours but no fonts and no images.
class BareScheme : public ::testing::Test {
protected:
    static void SetUpTestSuite() { UseScheme("bare"); }
};

// Who hands the context over: a plug-in in the middle of its own painting (keeping the modes the
// documented pixels assume, or with its own modes too; see BusyDc), or a fresh context in GDI's
// defaults.
enum class Caller { Busy, BusyWithOwnModes, Fresh };

// A canvas filled with the sentinel, its DC as the caller left it, and the DC's state when the
// test began.
class Sheet {
public:
    Sheet(int width, int height, Caller caller = Caller::Busy)
        : canvas(width, height, kSentinel),
          busy(caller == Caller::Fresh ? nullptr
                                       : std::make_unique<BusyDc>(canvas.dc(), width, height,
                                                                  caller == Caller::Busy ? BusyDc::Modes::Documented
                                                                                         : BusyDc::Modes::Own)),
          check(canvas.dc())
    {
    }
    CDC* dc() { return canvas.dc(); }
    COLORREF At(int x, int y) const { return canvas.Pixel(x, y); }
    int Count(COLORREF color, const RECT& area) const { return canvas.Count(color, area); }

    DibCanvas canvas;
    std::unique_ptr<BusyDc> busy;
    DcStateCheck check;
};

namespace scheme {
const COLORREF kAxis = 0x00A0A000;
}  // namespace scheme

// Whether two sheets hold the same pixels.
bool SamePixels(const Sheet& a, const Sheet& b);

// A font of the active scheme, selected into a DC for the length of a scope.
class SchemeFontIn {
public:
    SchemeFontIn(CDC* dc, const char* key);
    ~SchemeFontIn();

private:
    HDC m_hdc;
    HGDIOBJ m_previous;
};
