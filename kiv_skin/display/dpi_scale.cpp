#include "kiv_skin/display/dpi_scale.h"
#include <filesystem>

namespace kiv_skin {
namespace {

const int kDefaultDpi = 96;

// The current directory, narrowed in the code page the file APIs use.
std::string CurrentDirectory()
{
    std::wstring wide = std::filesystem::current_path().wstring();
    UINT codePage = AreFileApisANSI() ? CP_ACP : CP_OEMCP;
    int n = WideCharToMultiByte(codePage, 0, wide.data(), (int)wide.size(), nullptr, 0, nullptr, nullptr);
    std::string narrow(n > 0 ? n : 0, '\0');
    if (n > 0) WideCharToMultiByte(codePage, 0, wide.data(), (int)wide.size(), &narrow[0], n, nullptr, nullptr);
    return narrow;
}

}  // namespace

DPIScale::DPIScale()
    : m_bInitialised(false), m_nScale(0), m_nDeviceDpiX(kDefaultDpi), m_nDeviceDpiY(kDefaultDpi),
      m_nDesignDpiX(kDefaultDpi), m_nDesignDpiY(kDefaultDpi)
{
}

DPIScale::~DPIScale() {}

DPIScale& DPIScale::operator=(const DPIScale& other)
{
    m_bInitialised = other.m_bInitialised;
    m_nScale = other.m_nScale;
    m_nDeviceDpiX = other.m_nDeviceDpiX;
    m_nDeviceDpiY = other.m_nDeviceDpiY;
    m_nDesignDpiX = other.m_nDesignDpiX;
    m_nDesignDpiY = other.m_nDesignDpiY;
    return *this;
}

DPIScale* DPIScale::GetInstance()
{
    static DPIScale instance;
    instance.init();
    return &instance;
}

// Reads the settings once per process. The flag is set first, so that a failure (the path
// error of an unreadable current directory escapes to the caller) is not retried.
void DPIScale::init()
{
    if (m_bInitialised) return;
    m_bInitialised = true;

    std::string ini = CurrentDirectory() + "\\cfg\\dpi.ini";
    m_nScale = GetPrivateProfileIntA("Setting", "scale", 1, ini.c_str());
    m_nDesignDpiX = GetPrivateProfileIntA("Setting", "xpix", kDefaultDpi, ini.c_str());
    m_nDesignDpiY = GetPrivateProfileIntA("Setting", "ypix", kDefaultDpi, ini.c_str());

    HWND desktop = GetDesktopWindow();
    HDC screen = GetDC(desktop);
    m_nDeviceDpiX = GetDeviceCaps(screen, LOGPIXELSX);
    m_nDeviceDpiY = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(desktop, screen);
}

bool DPIScale::IsEnable() { return m_nScale != 0; }

int DPIScale::XLP2DP(int v) { return Converts() ? MulDiv(v, m_nDeviceDpiX, m_nDesignDpiX) : v; }
int DPIScale::YLP2DP(int v) { return Converts() ? MulDiv(v, m_nDeviceDpiY, m_nDesignDpiY) : v; }
int DPIScale::XDP2LP(int v) { return Converts() ? MulDiv(v, m_nDesignDpiX, m_nDeviceDpiX) : v; }
int DPIScale::YDP2LP(int v) { return Converts() ? MulDiv(v, m_nDesignDpiY, m_nDeviceDpiY) : v; }

void DPIScale::LP2DPPair(LONG& first, LONG& second)
{
    first = XLP2DP(first);
    second = YLP2DP(second);
}

void DPIScale::DP2LPPair(LONG& first, LONG& second)
{
    first = XDP2LP(first);
    second = YDP2LP(second);
}

// Each edge converts on its own, so a width may differ by one from the converted width.
CRect DPIScale::LP2DP(const CRect& rect)
{
    CRect r(rect);
    LP2DPPair(r.left, r.top);
    LP2DPPair(r.right, r.bottom);
    return r;
}

CRect DPIScale::DP2LP(const CRect& rect)
{
    CRect r(rect);
    DP2LPPair(r.left, r.top);
    DP2LPPair(r.right, r.bottom);
    return r;
}

CPoint DPIScale::LP2DP(const CPoint& point) { CPoint p(point); LP2DPPair(p.x, p.y); return p; }
CSize DPIScale::LP2DP(const CSize& size) { CSize s(size); LP2DPPair(s.cx, s.cy); return s; }
CPoint DPIScale::DP2LP(const CPoint& point) { CPoint p(point); DP2LPPair(p.x, p.y); return p; }
CSize DPIScale::DP2LP(const CSize& size) { CSize s(size); DP2LPPair(s.cx, s.cy); return s; }

}  // namespace kiv_skin
