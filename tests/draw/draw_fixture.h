// Shared ground of the drawing tests: the test scheme's colours, the scheme situations each test
// process is in, and canvases pre-filled with a sentinel colour that no scheme key has.
#pragma once
#include "support/dc_state.h"
#include "support/dib_canvas.h"
#include <afxwin.h>
#include <gtest/gtest.h>

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

// A canvas filled with the sentinel, and the state of its DC when the test began.
class Sheet {
public:
    Sheet(int width, int height) : canvas(width, height, kSentinel), check(canvas.dc()) {}
    CDC* dc() { return canvas.dc(); }
    COLORREF At(int x, int y) const { return canvas.Pixel(x, y); }
    int Count(COLORREF color, const RECT& area) const { return canvas.Count(color, area); }

    DibCanvas canvas;
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
