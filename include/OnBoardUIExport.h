#pragma once

// Marks what the library exports; hosts see the importing form.
#if defined(ONBOARDUI_BUILD)
#define ONBOARDUI_API __declspec(dllexport)
#else
#define ONBOARDUI_API __declspec(dllimport)
#endif
