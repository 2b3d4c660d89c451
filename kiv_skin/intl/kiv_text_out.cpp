#include "kiv_skin/intl/kiv_text_out.h"
#include "kiv_base/text.h"

namespace kiv_skin {
namespace {

bool HasText(const char* text) { return text != nullptr && *text != '\0'; }

HDC OutputHandle(CDC* pDC) { return pDC ? pDC->m_hDC : nullptr; }

std::wstring Wide(const char* text) { return kiv_base::text::Utf8toUtf16(text); }

CSize Measure(HDC hdc, const char* text)
{
    SIZE size = {0, 0};
    if (hdc == nullptr || !HasText(text)) return CSize(size);
    std::wstring wide = Wide(text);
    ::GetTextExtentPoint32W(hdc, wide.c_str(), int(wide.size()), &size);
    return CSize(size);
}

}  // namespace

void KivTextOut::SetCaption(CWnd* wnd, const char* text)
{
    if (text == nullptr) return;
    ::SetWindowTextW(wnd ? wnd->GetSafeHwnd() : nullptr, Wide(text).c_str());
}

void KivTextOut::SetCaption(CWnd& wnd, const char* text) { SetCaption(&wnd, text); }

void KivTextOut::GetCaption(CWnd* wnd, std::string& out)
{
    HWND hwnd = wnd ? wnd->GetSafeHwnd() : nullptr;
    int length = hwnd ? ::GetWindowTextLengthW(hwnd) : 0;
    if (length <= 0) {
        out.clear();
        return;
    }
    std::wstring buffer(size_t(length) + 1, L'\0');
    int read = ::GetWindowTextW(hwnd, &buffer[0], length + 1);
    buffer.resize(size_t(read > 0 ? read : 0));
    out = kiv_base::text::Utf16toUtf8(buffer);
}

void KivTextOut::GetCaption(CWnd& wnd, std::string& out) { GetCaption(&wnd, out); }

void KivTextOut::DrawString(CDC* pDC, int x, int y, const char* text)
{
    HDC hdc = OutputHandle(pDC);
    if (hdc == nullptr || !HasText(text)) return;
    std::wstring wide = Wide(text);
    ::TextOutW(hdc, x, y, wide.c_str(), int(wide.size()));
}

void KivTextOut::DrawString(int x, int y, const char* text) { DrawString(m_pDC, x, y, text); }

void KivTextOut::DrawString(CDC* pDC, int x, int y, UINT options, const RECT* rect, const char* text, int* dx)
{
    HDC hdc = OutputHandle(pDC);
    if (hdc == nullptr || !HasText(text)) return;
    std::wstring wide = Wide(text);
    ::ExtTextOutW(hdc, x, y, options, rect, wide.c_str(), UINT(wide.size()), dx);
}

void KivTextOut::DrawString(int x, int y, UINT options, const RECT* rect, const char* text, int* dx)
{
    DrawString(m_pDC, x, y, options, rect, text, dx);
}

void KivTextOut::DrawString(CDC* pDC, const char* text, RECT* rect, UINT format)
{
    HDC hdc = OutputHandle(pDC);
    if (hdc == nullptr || rect == nullptr || !HasText(text)) return;
    std::wstring wide = Wide(text);
    ::DrawTextW(hdc, wide.c_str(), int(wide.size()), rect, format);
}

void KivTextOut::DrawString(const char* text, RECT* rect, UINT format) { DrawString(m_pDC, text, rect, format); }

CSize KivTextOut::GetTextExtent(CDC* pDC, const char* text) { return KivTextOut(pDC).GetTextExtent(text); }

CSize KivTextOut::GetTextExtent(const char* text) const
{
    return Measure(m_pDC ? m_pDC->m_hAttribDC : nullptr, text);
}

CSize KivTextOut::GetOutputTextExtent(CDC* pDC, const char* text)
{
    return KivTextOut(pDC).GetOutputTextExtent(text);
}

CSize KivTextOut::GetOutputTextExtent(const char* text) const { return Measure(OutputHandle(m_pDC), text); }

}  // namespace kiv_skin
