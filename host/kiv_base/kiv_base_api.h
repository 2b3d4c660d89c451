// Import/export declaration of the host's base library.
#pragma once
#ifdef KIV_BASE_BUILD
#define KIV_BASE_API __declspec(dllexport)
#else
#define KIV_BASE_API __declspec(dllimport)
#endif
