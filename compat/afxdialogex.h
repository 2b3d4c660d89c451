// MFC's <afxdialogex.h>: CDialogEx, the extended dialog, here a CDialog with its constructor.
#pragma once
#include "afxwin.h"

class CDialogEx : public CDialog {
public:
    CDialogEx(UINT nIDTemplate, CWnd* pParent = NULL) : CDialog(nIDTemplate, pParent) {}
};
