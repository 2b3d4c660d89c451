#include "demo/scheme_text.h"
#include "kiv_base/text.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/intl/kiv_text_out.h"
#include "kiv_skin/style/kiv_style_mgr.h"

using kiv_skin::KivStyleMgr;
using kiv_skin::KivTextOut;

COLORREF SchemeColor(const char* key)
{
    return KivStyleMgr::GetInstance()->GetColor(key);
}

CFont* SchemeFont(const char* key)
{
    // The style data owns the font; GDI calls take it non-const.
    return const_cast<CFont*>(KivStyleMgr::GetInstance()->GetFont(key));
}

SchemeTextStyle::SchemeTextStyle(CDC* dc, const char* fontKey, COLORREF color)
    : m_dc(dc), m_font(SchemeFont(fontKey))
{
    if (m_font) m_previousFont = dc->SelectObject(m_font);
    m_previousColor = dc->SetTextColor(color);
    m_previousMode = dc->SetBkMode(TRANSPARENT);
}

SchemeTextStyle::~SchemeTextStyle()
{
    m_dc->SetBkMode(m_previousMode);
    m_dc->SetTextColor(m_previousColor);
    if (m_font) m_dc->SelectObject(m_previousFont);
}

void WriteText(CDC* dc, const char* text, CRect box, const char* fontKey, COLORREF color, UINT format)
{
    SchemeTextStyle style(dc, fontKey, color);
    KivTextOut::DrawString(dc, text, &box, format | DT_NOPREFIX);
}

int TextWidth(CDC* dc, const char* text, const char* fontKey)
{
    SchemeTextStyle style(dc, fontKey, dc->GetTextColor());
    return KivTextOut::GetTextExtent(dc, text).cx;
}

int LineHeight(CDC* dc, const char* fontKey)
{
    SchemeTextStyle style(dc, fontKey, dc->GetTextColor());
    TEXTMETRICA metrics = {};
    dc->GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

std::string Utf8ToAnsi(const char* utf8)
{
    std::wstring wide = kiv_base::text::Utf8toUtf16(utf8);
    int n = ::WideCharToMultiByte(CP_ACP, 0, wide.c_str(), static_cast<int>(wide.size()), nullptr, 0, nullptr, nullptr);
    std::string ansi(n > 0 ? n : 0, '\0');
    if (n > 0)
        ::WideCharToMultiByte(CP_ACP, 0, wide.c_str(), static_cast<int>(wide.size()), &ansi[0], n, nullptr, nullptr);
    return ansi;
}

void WriteRichText(CDC* dc, const char* markup, const CRect& box, const char* fontKey, COLORREF color)
{
    int top = (box.Height() - LineHeight(dc, fontKey)) / 2;
    SchemeTextStyle style(dc, fontKey, color);
    kiv_skin::KivDraw::DrawRichText(dc, &box, Utf8ToAnsi(markup).c_str(), CRect(0, top, 0, 0), 0, 100);
}
