// Identifiers of the style dialog's template and controls, shared by its resource script and
// its code.
#pragma once

#define IDD_STYLE_DLG 311
#define IDC_GROUP_PREVIEW 1000
#define IDC_STATIC_COLORLIST 1003
#define IDC_LIST_FONT 1004
#define IDC_COMBO_STYLE 1005
#define IDC_LIST_COLOR 1006
#define IDC_GROUP_COLOR 1007
#define IDC_BUTTON_COLOR 1008
#define IDC_GROUP_FONT 1009
#define IDC_BUTTON_FONT 1010
