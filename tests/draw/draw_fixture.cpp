#include "draw_fixture.h"
#include "kiv_skin/style/kiv_style_mgr.h"

void UseScheme(const char* name)
{
    kiv_skin::KivStyleMgr* manager = kiv_skin::KivStyleMgr::GetInstance();
    ASSERT_EQ(1, manager->InitStyleMgr());
    ASSERT_EQ(1, manager->LoadStyle(name)) << name;
}

bool SamePixels(const Sheet& a, const Sheet& b)
{
    for (int y = 0; y < a.canvas.height(); ++y)
        for (int x = 0; x < a.canvas.width(); ++x)
            if (a.At(x, y) != b.At(x, y)) return false;
    return true;
}

SchemeFontIn::SchemeFontIn(CDC* dc, const char* key) : m_hdc(dc->m_hDC)
{
    const CFont* font = kiv_skin::KivStyleMgr::GetInstance()->GetFont(key);
    m_previous = ::SelectObject(m_hdc, font->m_hObject);
}

SchemeFontIn::~SchemeFontIn() { ::SelectObject(m_hdc, m_previous); }
