// The style editor: a modal dialog in which the user picks a colour scheme from the catalogue,
// edits its colours and fonts in a working copy and sees them in a small mock-up of a plug-in
// panel. Not exported: KivStyleMgr::SetKivStyle runs it.
#pragma once
#include "kiv_skin/style/style_data.h"
#include "kiv_skin/styledlg/style_dlg_ids.h"
#include <afxdialogex.h>
#include <afxwin.h>
#include <exception>
#include <stdexcept>
#include <vector>

namespace kiv_skin {

class CStyleDlg : public CDialogEx {
public:
    enum { IDD = IDD_STYLE_DLG };
    static const int kRowCount = 3;

    explicit CStyleDlg(CWnd* pParent = NULL);

    // Runs the dialog; an exception that one of its handlers raised ended it and is raised again
    // here, after the system's dialog code has returned.
    INT_PTR DoModal() override;

    // After DoModal, the caller reads m_vecSavedStyles, the two modified flags and m_strStyle.
    CString m_strColorKey;
    CString m_strFontKey;
    ColorList m_vecColors;
    FontNameList m_vecFontKeys;
    StyleData m_styleWork;
    std::vector<StyleEntry> m_vecStyles;
    int m_bInited;
    RECT m_rcColor;
    RECT m_rcFont;
    RECT m_rcPreview;
    RECT m_rcTitle;
    RECT m_rcRows[kRowCount];
    int m_nHotRow;
    int m_bPreviewDrawn;
    int m_nColorSel;
    COLORREF m_clrCurrent;
    int m_bColorModified;
    int m_bFontModified;
    std::vector<CString> m_vecSavedStyles;
    CString m_strStyle;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    afx_msg void OnCbnSelchangeComboStyle();
    afx_msg void OnLbnSelchangeListColor();
    afx_msg void OnLbnSelchangeListFont();
    afx_msg void OnBnClickedButtonColor();
    afx_msg void OnBnClickedButtonFont();
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    // The handlers run inside the system's dialog code, which an exception must not cross: each
    // runs its work through EndOnError, which holds the exception and ends the dialog.
    template <class Work> void EndOnError(Work work);
    void InitControls();
    void ChangeScheme();
    void SelectColorRow();
    void SelectFontRow();
    void EditColor();
    void EditFont();

    CComboBox* StyleCombo() const;
    CListBox* ColorList() const;
    CListBox* FontList() const;
    RECT ControlArea(int id, int inset, int insetTop, int insetBottom) const;
    void FillStyleCombo();
    void AskToKeepEdits();
    void LoadWorkingStyle(int index);
    bool FillColorList(int index);
    void FillFontList(int index);
    void SaveEdits();
    void RepaintColorAndPreview();
    void RepaintFontAndPreview();
    void RepaintPreview();

    // Drawing (style_dlg_preview.cpp).
    void DrawColor(CDC* pDC);
    void DrawFont(CDC* pDC);
    void DrawPreview(CDC* pDC);
    void DrawTitle(CDC* pDC, const CRect& inner);
    void DrawRows(CDC* pDC, const CRect& inner, CPen* gridPen);
    COLORREF WorkColor(const char* key) const;

    std::exception_ptr m_heldError;
};

// The element at index, or the out-of-range error "invalid vector<T> subscript": a scheme index
// beyond the colours or fonts of a scheme ends the dialog with it.
template <class T> const T& Element(const std::vector<T>& items, size_t index)
{
    if (index >= items.size()) throw std::out_of_range("invalid vector<T> subscript");
    return items[index];
}

}  // namespace kiv_skin
