// Ids of the probe dialog's template, shared by the resource script and the tests.
#pragma once
#define IDD_PROBE 200
#define IDC_PRESS 1001
#define IDC_COMBO 1002
#define IDC_LIST 1003
