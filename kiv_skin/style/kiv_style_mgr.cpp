#include "kiv_skin/style/kiv_style_mgr.h"
#include "kiv_skin/module.h"
#include "kiv_skin/style/style_data.h"

namespace kiv_skin {
namespace {

std::atomic<KivStyleMgr*> g_manager{nullptr};

}  // namespace

KivStyleMgr::KivStyleMgr() : m_nInitialised(0), m_pData(nullptr) {}

KivStyleMgr::~KivStyleMgr()
{
    delete m_pData;
    m_pData = nullptr;
}

void KivStyleMgr::Destroy() { delete g_manager.exchange(nullptr); }

KivStyleMgr* KivStyleMgr::GetInstance()
{
    return CreateOnce(g_manager, StyleManagerLock(), [] { return new KivStyleMgr; }, Destroy);
}

int KivStyleMgr::InitStyleMgr()
{
    if (m_nInitialised) return m_nInitialised;
    if (m_pData) {
        m_nInitialised = 1;  // a retry works with whatever the failed load left
        return 1;
    }
    m_pData = new StyleData;
    StyleCatalogue* catalogue = StyleCatalogue::Instance();
    if (!catalogue->LoadCatalogue() || catalogue->m_strDefaultName.IsEmpty()) return 0;
    m_strCurrentStyle = catalogue->m_strDefaultName;
    StyleEntry entry;
    if (!catalogue->FindStyle(m_strCurrentStyle, entry) || entry.name.IsEmpty()) return 0;
    if (!LoadStyleData(*m_pData, entry)) return 0;
    m_nInitialised = 1;
    return 1;
}

int KivStyleMgr::LoadStyle(const CString& name)
{
    if (name.IsEmpty()) return 0;
    CString trimmed = name;
    StyleEntry entry;
    if (!StyleCatalogue::Instance()->FindStyle(trimmed, entry)) return 0;
    if (!m_nInitialised || !m_pData) return 1;
    if (!LoadStyleData(*m_pData, entry)) return 0;
    m_strCurrentStyle = name;
    return 1;
}

COLORREF KivStyleMgr::GetColor(const CString& key)
{
    return m_pData ? LookupColor(m_pData->colors, key) : kNoColor;
}

const CFont* KivStyleMgr::GetFont(const CString& key)
{
    return m_pData ? LookupFont(m_pData->fonts, key) : nullptr;
}

const CBitmap* KivStyleMgr::GetBitmap(const CString& key)
{
    return m_pData ? m_pData->images.getBitmap(key) : nullptr;
}

const CImageList* KivStyleMgr::GetImageList(const CString& key)
{
    return m_pData ? m_pData->images.getImageList(key) : nullptr;
}

COLORREF KivStyleMgr::GetTransparentColor(const CString& key)
{
    return m_pData ? m_pData->images.getTransparentColor(key) : 0;
}

}  // namespace kiv_skin
