#include "demo/scheme_text.h"
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
