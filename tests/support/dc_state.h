// What a drawing operation must leave as it found it in the caller's DC, and GDI leak probes.
#pragma once
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Everything of one DC handle that a drawing routine could disturb and a caller would notice.
struct DcState {
    HGDIOBJ pen, brush, font, bitmap;
    COLORREF textColor, bkColor;
    int bkMode;
    UINT textAlign;
    int rop2, mapMode, stretchMode, fillMode, charExtra, arcDirection, graphicsMode;
    DWORD layout;
    HGDIOBJ palette;
    POINT position, brushOrigin, viewportOrigin, windowOrigin;
    SIZE viewportExtent, windowExtent;
    bool clipped;
    std::vector<char> clipRegion;  // the clip region's data, empty when there is none

    static DcState Capture(HDC hdc);
    // The names of what differs from o, or empty.
    std::string Differences(const DcState& o) const;
};

// Captures the state of a CDC's output and attribute handles when made; Unchanged() fails the
// test if anything differs since.
class DcStateCheck {
public:
    explicit DcStateCheck(CDC* dc);
    ::testing::AssertionResult Unchanged() const;

private:
    HDC m_output, m_attrib;
    DcState m_outputBefore, m_attribBefore;
};

// A count of live GDI objects read from the handle slots that new objects get: stays put while
// nothing leaks, grows by one per leaked object (GetGuiResources is a stub under Wine).
int GdiProbeSlot();
