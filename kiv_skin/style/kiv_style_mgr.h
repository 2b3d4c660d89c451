// The one object through which the host and all drawing code obtain the active colour scheme's
// colours, fonts, bitmaps, image lists and transparent colours by key.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>
#include <afxcmn.h>

namespace kiv_skin {

struct StyleData;

class KIV_SKIN_API KivStyleMgr {
public:
    // The process-wide manager, created on the first call and destroyed when the library unloads.
    static KivStyleMgr* GetInstance();

    // A copy shares the manager's style data and owns nothing.
    KivStyleMgr(const KivStyleMgr& other) = default;
    KivStyleMgr& operator=(const KivStyleMgr& other) = default;

    // Loads the catalogue's default style; 1 on success. Once the style data exists, a later
    // call answers 1 without loading, even after a failed first call.
    int InitStyleMgr();
    // Makes the named style active; 1 on success (and, before InitStyleMgr, for any known name
    // without loading it).
    int LoadStyle(const CString& name);
    // Runs the style dialog with this library's resources. After OK, reloads each scheme the
    // dialog saved and the chosen one if it was edited; 1 with name set to the chosen scheme
    // when that reload succeeded. Cancel, or OK on a scheme only selected, gives 0.
    int SetKivStyle(CString& name);
    // The name of the active style, as it was asked for.
    CString GetCurrentStyle() const { return m_strCurrentStyle; }

    // Resources of the active style; without style data: 0xFFFFFFFF, null, or 0 for the
    // transparent colour. Objects stay valid until the next style switch.
    COLORREF GetColor(const CString& key);
    const CFont* GetFont(const CString& key);
    const CBitmap* GetBitmap(const CString& key);
    const CImageList* GetImageList(const CString& key);
    COLORREF GetTransparentColor(const CString& key);

private:
    KivStyleMgr();
    ~KivStyleMgr();
    static void Destroy();

    int m_nInitialised;
    CString m_strCurrentStyle;
    StyleData* m_pData;
};

}  // namespace kiv_skin
