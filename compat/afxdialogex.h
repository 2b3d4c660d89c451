// MFC's <afxdialogex.h>: CDialogEx, the extended dialog, here a CDialog with its constructors and
// MFC's declarations of its background members.
#pragma once
#include "afxwin.h"

class CDialogEx : public CDialog {
public:
    CDialogEx();
    CDialogEx(UINT nIDTemplate, CWnd* pParent = NULL) : CDialog(nIDTemplate, pParent) {}
    CDialogEx(LPCSTR lpszTemplateName, CWnd* pParentWnd = NULL) : CDialog(lpszTemplateName, pParentWnd) {}

    enum BackgroundLocation { BACKGR_TILE, BACKGR_TOPLEFT, BACKGR_TOPRIGHT, BACKGR_BOTTOMLEFT, BACKGR_BOTTOMRIGHT };

    // Declared only (see the README).
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE, BOOL bAutoDestroy = TRUE,
                            BOOL bRepaint = TRUE);
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);
};
