// The part of MFC's <afxwin.h> that kiv_skin uses, for toolchains without MFC.
// Every class and member here exists in MFC with the same signature and behaviour.
#pragma once
#include "afxv_w32.h"
#include "afx.h"
#include "afxexcept.h"
#include "afxstr.h"
#include "afxtypes.h"
#include "afxgdi.h"
#include "afxdc.h"
#include "afxwnd.h"
#include "afxmodule.h"
#include "afxdialog.h"
#include "afxboxes.h"
#include "afxwinapp.h"
