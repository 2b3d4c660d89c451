// The part of MFC's <afxdlgs.h> that kiv_skin uses: CFontDialog, the common font dialog through
// ChooseFont (its m_cf points at a LOGFONT of its own, which starts as a copy of the initial font
// and receives the chosen one), and CColorDialog through ChooseColor.
#pragma once
#include "afxwin.h"
#include <commdlg.h>

class CCommonDialog : public CDialog {
public:
    explicit CCommonDialog(CWnd* pParentWnd) : CDialog(0u, pParentWnd) {}
};

class CFontDialog : public CCommonDialog {
public:
    CHOOSEFONTA m_cf;

    CFontDialog(LPLOGFONTA lplfInitial = NULL, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL)
        : CCommonDialog(pParentWnd), m_cf(), m_lf()
    {
        m_cf.lStructSize = sizeof(m_cf);
        m_cf.Flags = dwFlags;
        m_cf.lpLogFont = &m_lf;
        if (lplfInitial != nullptr) {
            m_lf = *lplfInitial;
            m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
        }
        if (pdcPrinter != nullptr) {
            m_cf.hDC = pdcPrinter->m_hAttribDC;
            m_cf.Flags |= CF_PRINTERFONTS;
        }
    }

    // Owned by the parent or else by the active window; IDOK once the user chose a font.
    INT_PTR DoModal() override
    {
        m_cf.hwndOwner = m_pParentWnd != nullptr ? m_pParentWnd->GetSafeHwnd() : ::GetActiveWindow();
        return ::ChooseFontA(&m_cf) ? IDOK : IDCANCEL;
    }
    void GetCurrentFont(LPLOGFONTA lplf) { *lplf = *m_cf.lpLogFont; }
    CString GetFaceName() const { return CString(m_cf.lpLogFont->lfFaceName); }
    int GetSize() const { return m_cf.iPointSize; }  // in tenths of a point

protected:
    LOGFONTA m_lf;
};

class CColorDialog : public CCommonDialog {
public:
    CHOOSECOLORA m_cc;

    // A colour other than 0 is the one the dialog starts with.
    CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL)
        : CCommonDialog(pParentWnd), m_cc()
    {
        m_cc.lStructSize = sizeof(m_cc);
        m_cc.lpCustColors = GetSavedCustomColors();
        m_cc.Flags = dwFlags;
        m_cc.rgbResult = clrInit;
        if (clrInit != 0) m_cc.Flags |= CC_RGBINIT;
    }

    // Owned by the parent or else by the active window; IDOK once the user chose a colour.
    INT_PTR DoModal() override
    {
        m_cc.hwndOwner = m_pParentWnd != nullptr ? m_pParentWnd->GetSafeHwnd() : ::GetActiveWindow();
        return ::ChooseColorA(&m_cc) ? IDOK : IDCANCEL;
    }
    COLORREF GetColor() const { return m_cc.rgbResult; }
    // The 16 custom colours every colour dialog of the module shares, white until the user
    // defines them.
    static COLORREF* PASCAL GetSavedCustomColors()
    {
        static COLORREF colors[16] = {RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
                                      RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
                                      RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
                                      RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255)};
        return colors;
    }
};
