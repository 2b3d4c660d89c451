// Import/export declaration of kiv_skin.dll.
#pragma once
#ifdef KIV_SKIN_BUILD
#define KIV_SKIN_API __declspec(dllexport)
#else
#define KIV_SKIN_API __declspec(dllimport)
#endif
