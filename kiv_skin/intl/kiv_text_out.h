// Drawing, measuring and window captions for texts kept as narrow UTF-8 strings: each text is
// converted to UTF-16 and goes through the wide platform call, whatever the ANSI code page.
// Lengths given to those calls count UTF-16 code units. Drawing uses the context's output
// handle; GetTextExtent measures with its attribute handle, GetOutputTextExtent with the output.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <string>

namespace kiv_skin {

class KIV_SKIN_API KivTextOut {
public:
    explicit KivTextOut(CDC* pDC) : m_pDC(pDC) {}

    // A null text leaves the caption as it is; an empty one clears it.
    static void SetCaption(CWnd* wnd, const char* text);
    static void SetCaption(CWnd& wnd, const char* text);
    // The caption in UTF-8; out is emptied when there is no window or no caption.
    static void GetCaption(CWnd* wnd, std::string& out);
    static void GetCaption(CWnd& wnd, std::string& out);

    // TextOutW at (x, y).
    static void DrawString(CDC* pDC, int x, int y, const char* text);
    void DrawString(int x, int y, const char* text);
    // ExtTextOutW; dx, if given, holds one advance per UTF-16 code unit of the text.
    static void DrawString(CDC* pDC, int x, int y, UINT options, const RECT* rect, const char* text, int* dx);
    void DrawString(int x, int y, UINT options, const RECT* rect, const char* text, int* dx);
    // DrawTextW into rect with the DT_ format flags.
    static void DrawString(CDC* pDC, const char* text, RECT* rect, UINT format);
    void DrawString(const char* text, RECT* rect, UINT format);

    // Size of the text in logical units; (0, 0) without a context, a handle or a text.
    static CSize GetTextExtent(CDC* pDC, const char* text);
    CSize GetTextExtent(const char* text) const;
    static CSize GetOutputTextExtent(CDC* pDC, const char* text);
    CSize GetOutputTextExtent(const char* text) const;

private:
    CDC* m_pDC;
};

}  // namespace kiv_skin
