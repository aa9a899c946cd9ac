#pragma once

// Marks what the shared library of stand-ins exports.
#if defined(SUPPORT_BUILD)
#define SUPPORT_API __declspec(dllexport)
#else
#define SUPPORT_API __declspec(dllimport)
#endif
