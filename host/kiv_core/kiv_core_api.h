// Import/export declaration of the host's core library.
#pragma once
#ifdef KIV_CORE_BUILD
#define KIV_CORE_API __declspec(dllexport)
#else
#define KIV_CORE_API __declspec(dllimport)
#endif
