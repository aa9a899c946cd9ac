#pragma once

// Marks what the framework's shared library exports.
#if defined(FRAMEWORK_BUILD)
#define FRAMEWORK_API __declspec(dllexport)
#else
#define FRAMEWORK_API __declspec(dllimport)
#endif
