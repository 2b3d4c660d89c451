// What MFC checks and sets up before any of its headers: <windows.h> must come through MFC, and
// the Windows headers' min and max macros are defined for C++ as well, as the Windows SDK's
// <windef.h> defines them unless NOMINMAX is set (MinGW's define them for C only).
#pragma once
#ifdef _WINDOWS_
#error WINDOWS.H already included.  MFC apps must not #include <windows.h>
#endif

// The program's NOMINMAX is the one set before the first standard header: libstdc++ sets its own
// (in its os_defines.h) for its Windows targets.
#if !defined(NOMINMAX) || defined(_GLIBCXX_OS_DEFINES)
#define AFX_COMPAT_MINMAX
#endif

// MSVC's standard library names its own min and max "(min)" and "(max)", out of the macros'
// reach; libstdc++ does not, so its headers come in before the macros exist.
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <limits>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_map>
#include <vector>

#include <windows.h>

#ifdef AFX_COMPAT_MINMAX
#undef AFX_COMPAT_MINMAX
#ifndef max
#define max(a,b) (((a) > (b)) ? (a) : (b))
#endif
#ifndef min
#define min(a,b) (((a) < (b)) ? (a) : (b))
#endif
#endif
