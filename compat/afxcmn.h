// The part of MFC's <afxcmn.h> (common controls) that kiv_skin uses: CImageList, which owns an
// image list handle and destroys it with itself.
#pragma once
#include "afxwin.h"
#include <commctrl.h>

class CImageList {
public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList() = default;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    virtual ~CImageList() { DeleteImageList(); }

    operator HIMAGELIST() const { return m_hImageList; }
    // Safe through a null pointer, as in MFC.
    HIMAGELIST GetSafeHandle() const { return this == nullptr ? nullptr : m_hImageList; }

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
    {
        m_hImageList = ::ImageList_Create(cx, cy, nFlags, nInitial, nGrow);
        return m_hImageList != nullptr;
    }
    BOOL DeleteImageList()
    {
        if (m_hImageList == nullptr) return FALSE;
        HIMAGELIST h = m_hImageList;
        m_hImageList = nullptr;
        return ::ImageList_Destroy(h);
    }
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
    {
        return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
    }
};
