// A device context as a plug-in hands it over in the middle of its own painting: its own pen, a
// hatched brush and its own font selected, its own text and background colours, transparent
// text, baseline alignment, a ROP2 other than copy, winding fill, halftone stretching, a clip
// region, a moved brush origin and current position, and character extra. What a drawing
// operation restores, it must restore to this, not to GDI's defaults.
//
// The library draws with the caller's ROP2, stretching mode and text alignment, so the pixels it
// is documented to draw assume copying, GDI's default stretching and top-left text. A caller that
// wants those pixels keeps these three modes as they are (Modes::Documented); Modes::Own sets them
// to its own as well, for tests of what is restored rather than of what is drawn.
#pragma once
#include <afxwin.h>
#include <vector>

class BusyDc {
public:
    enum class Modes { Documented, Own };

    // Makes both handles of the context of a width x height surface busy, with the same objects
    // selected in each (as the framework's selections keep them); its clip region cuts nothing.
    BusyDc(CDC* dc, int width, int height, Modes modes);
    ~BusyDc();
    BusyDc(const BusyDc&) = delete;
    BusyDc& operator=(const BusyDc&) = delete;

    static const COLORREF kInk = RGB(1, 2, 3);
    static const COLORREF kPaper = RGB(4, 5, 6);
    static const int kRop2 = R2_MERGEPENNOT;

private:
    struct Handle {
        HDC hdc;
        HGDIOBJ oldPen = nullptr, oldBrush = nullptr, oldFont = nullptr;
    };
    void MakeBusy(Handle& h, int width, int height, Modes modes);

    HPEN m_pen;
    HBRUSH m_brush;
    HFONT m_font;
    std::vector<Handle> m_handles;
};
