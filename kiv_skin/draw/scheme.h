// The active scheme's entries as the drawing kit reads them, at the moment it draws: through the
// style manager, so that no style data gives 0xFFFFFFFF for a colour and null for the rest.
#pragma once
#include "kiv_skin/style/color_table.h"
#include "kiv_skin/style/kiv_style_mgr.h"

namespace kiv_skin {

inline COLORREF SchemeColor(const char* key) { return KivStyleMgr::GetInstance()->GetColor(key); }

// The style data owns the objects; GDI calls take them non-const. An object whose handle is
// null counts as missing.
template <class T> T* UsableObject(const T* object)
{
    return object && object->m_hObject ? const_cast<T*>(object) : nullptr;
}

inline CFont* SchemeFont(const char* key) { return UsableObject(KivStyleMgr::GetInstance()->GetFont(key)); }

inline CBitmap* SchemeBitmap(const char* key)
{
    return UsableObject(KivStyleMgr::GetInstance()->GetBitmap(key));
}

inline COLORREF SchemeTransparentColor(const char* key)
{
    return KivStyleMgr::GetInstance()->GetTransparentColor(key);
}

}  // namespace kiv_skin
