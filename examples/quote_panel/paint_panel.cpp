// Stands in for the host: loads the sample schemes installed beside it, paints the plug-in's
// panel scrolled to its third quote into a 24-bit bitmap and writes it to panel.bmp (or the file
// named as the argument).
#include "quote_panel.h"
#include <afxwin.h>
#include <kiv_skin/style/kiv_style_mgr.h>
#include <cstdio>

namespace {

const int kWidth = 240, kHeight = 120;

bool WriteBmp(const char* path, const BITMAPINFO& info, const void* pixels)
{
    const DWORD size = info.bmiHeader.biSizeImage;
    BITMAPFILEHEADER file = {0x4D42, DWORD(sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) + size), 0, 0,
                             DWORD(sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER))};
    FILE* out = std::fopen(path, "wb");
    if (!out) return false;
    bool written = std::fwrite(&file, sizeof file, 1, out) == 1 &&
                   std::fwrite(&info.bmiHeader, sizeof info.bmiHeader, 1, out) == 1 &&
                   std::fwrite(pixels, size, 1, out) == 1;
    return std::fclose(out) == 0 && written;
}

}  // namespace

// A console program with MFC support, as the plug-in's host is an MFC program.
CWinApp theApp;

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), 0)) {
        std::printf("paint_panel: MFC did not initialise\n");
        return 1;
    }
    kiv_skin::KivStyleMgr* styles = kiv_skin::KivStyleMgr::GetInstance();
    if (!styles->InitStyleMgr()) {
        std::printf("paint_panel: the schemes beside the program did not load\n");
        return 1;
    }
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = kWidth;
    info.bmiHeader.biHeight = kHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    info.bmiHeader.biSizeImage = DWORD((kWidth * 3 + 3) / 4 * 4 * kHeight);
    void* pixels = nullptr;
    HDC dc = ::CreateCompatibleDC(nullptr);
    HBITMAP bitmap = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    HGDIOBJ old = ::SelectObject(dc, bitmap);
    const RECT area = {0, 0, kWidth, kHeight};
    PaintQuotePanel(dc, &area, 2);
    ::GdiFlush();
    const char* path = argc > 1 ? argv[1] : "panel.bmp";
    const bool written = WriteBmp(path, info, pixels);
    ::SelectObject(dc, old);
    ::DeleteObject(bitmap);
    ::DeleteDC(dc);
    std::printf("paint_panel: scheme %s, %s %s\n", (const char*)styles->GetCurrentStyle(), path, written ? "written" : "not written");
    return written ? 0 : 1;
}
