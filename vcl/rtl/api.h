// What marks a declaration as part of qelhost's binary interface.
#pragma once

#if !defined(_WIN32)
/// Marks what qelhost exports. Shared objects export everything, so nothing needs marking there.
#define VCL_API
#elif defined(VCL_BUILD)
#define VCL_API __declspec(dllexport)
#else
#define VCL_API __declspec(dllimport)
#endif
