// Included once by an extension DLL's DllMain source, as MFC's wizard writes it. MFC's header
// hooks the DLL's raw entry point for its own module state; this layer needs nothing there, and
// everything DllMain calls comes from <afxwin.h>.
#pragma once
#include "afxwin.h"
