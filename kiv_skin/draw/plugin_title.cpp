#include "kiv_skin/draw/plugin_title.h"
#include "kiv_base/text.h"
#include "kiv_skin/draw/scheme.h"

namespace kiv_skin {
namespace {

const UINT kCentredLine = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

}  // namespace

PluginTitle::PluginTitle(const char* title)
{
    if (title != nullptr) m_strTitle = title;
}

int PluginTitle::GetAreaHeight(CDC* dc)
{
    if (dc == nullptr) return 0;
    CFont* font = SchemeFont("PLUG_TITLE");
    if (font == nullptr) return 0;
    CFont* previous = dc->SelectObject(font);
    TEXTMETRICA metrics = {};
    dc->GetTextMetrics(&metrics);
    dc->SelectObject(previous);
    return metrics.tmHeight + 2;
}

void PluginTitle::Draw(CDC* dc, const CRect& area)
{
    COLORREF background = SchemeColor("PLUG_TITLE_BGCOLOR");
    COLORREF ink = SchemeColor("PLUG_TITLE_TEXT");
    CFont* font = SchemeFont("PLUG_TITLE");
    if (font == nullptr) return;
    CFont* previousFont = dc->SelectObject(font);
    TEXTMETRICA metrics = {};
    dc->GetTextMetrics(&metrics);
    CRect band(area.left, area.top, area.right, area.top + metrics.tmHeight + 2);
    dc->FillSolidRect(&band, background);
    COLORREF previousInk = dc->SetTextColor(ink);
    if (dc->GetSafeHdc() != nullptr && !m_strTitle.empty()) {
        std::wstring title = kiv_base::text::Utf8toUtf16(m_strTitle);
        ::DrawTextW(dc->m_hDC, title.c_str(), static_cast<int>(title.size()), &band, kCentredLine);
    }
    dc->SetTextColor(previousInk);
    dc->SelectObject(previousFont);
}

}  // namespace kiv_skin
