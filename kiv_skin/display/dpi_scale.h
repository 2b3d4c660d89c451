// Conversion between logical units (the pixel sizes plug-in layouts are designed in) and
// device pixels of the screen, at the design DPI read from "\cfg\dpi.ini" under the current
// working directory.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>

namespace kiv_skin {

class KIV_SKIN_API DPIScale {
public:
    // The process-wide instance; reads the settings on the first call.
    static DPIScale* GetInstance();

    ~DPIScale();
    DPIScale& operator=(const DPIScale& other);

    // True when the "scale" setting is not 0, although only a positive one converts.
    bool IsEnable();

    int XLP2DP(int v);
    int YLP2DP(int v);
    int XDP2LP(int v);
    int YDP2LP(int v);

    CRect LP2DP(const CRect& rect);
    CPoint LP2DP(const CPoint& point);
    CSize LP2DP(const CSize& size);
    CRect DP2LP(const CRect& rect);
    CPoint DP2LP(const CPoint& point);
    CSize DP2LP(const CSize& size);

private:
    DPIScale();
    void init();
    bool Converts() const { return m_nScale > 0; }
    // Points and sizes: the first member along x, the second along y.
    void LP2DPPair(LONG& first, LONG& second);
    void DP2LPPair(LONG& first, LONG& second);

    bool m_bInitialised;
    int m_nScale;
    int m_nDeviceDpiX;
    int m_nDeviceDpiY;
    int m_nDesignDpiX;
    int m_nDesignDpiY;
};

}  // namespace kiv_skin
