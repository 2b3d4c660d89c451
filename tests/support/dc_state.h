// What a drawing operation must leave as it found it in the caller's DC, and GDI leak probes.
#pragma once
#include <afxwin.h>
#include <gtest/gtest.h>

struct DcState {
    HGDIOBJ pen, brush, font, bitmap;
    COLORREF textColor, bkColor;
    int bkMode;
    UINT textAlign;

    static DcState Capture(HDC hdc);
    bool operator==(const DcState& o) const;
};

// Captures a DC's state when made; Verify() fails the test if anything differs since.
class DcStateCheck {
public:
    explicit DcStateCheck(CDC* dc) : m_hdc(dc->m_hDC), m_before(DcState::Capture(dc->m_hDC)) {}
    ::testing::AssertionResult Unchanged() const;

private:
    HDC m_hdc;
    DcState m_before;
};

// A count of live GDI objects read from the handle slots that new objects get: stays put while
// nothing leaks, grows by one per leaked object (GetGuiResources is a stub under Wine).
int GdiProbeSlot();
