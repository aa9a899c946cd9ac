#pragma once

#include "framework/Wnd.h"

namespace framework {

// Makes the common controls' window classes known, once for the process. FALSE if it fails.
FRAMEWORK_API BOOL UseCommonControls();

} // namespace framework

#define FRAMEWORK_COMMON_CONTROL_CREATE(className)                                                 \
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)                      \
    {                                                                                              \
        return CreateEx(0, style, rect, parent, id);                                               \
    }                                                                                              \
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)     \
    {                                                                                              \
        return framework::UseCommonControls() &&                                                   \
               CWnd::CreateEx(exStyle, className, nullptr, style, rect, parent, id);               \
    }
