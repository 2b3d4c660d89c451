#include "draw_fixture.h"
#include "kiv_skin/style/kiv_style_mgr.h"

void UseScheme(const char* name)
{
    kiv_skin::KivStyleMgr* manager = kiv_skin::KivStyleMgr::GetInstance();
    ASSERT_EQ(1, manager->InitStyleMgr());
    ASSERT_EQ(1, manager->LoadStyle(name)) << name;
}
