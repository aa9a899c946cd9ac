#pragma once

// Objects of a control's own class for windows that the platform made by itself, such as the header
// of a list. They own nothing and last until the thread is idle, like the plain stand-ins.

#include "framework/Wnd.h"

#include <memory>

namespace framework {

// The permanent object if it is of the class, else a temporary one, made by make when there is
// none yet. Null for null.
CWnd* TypedWindow(HWND window, const CRuntimeClass* wanted, std::unique_ptr<CWnd> (*make)());

template <class Class> Class* WindowAs(HWND window)
{
    return static_cast<Class*>(
        TypedWindow(window, RUNTIME_CLASS(Class),
                    []() -> std::unique_ptr<CWnd> { return std::make_unique<Class>(); }));
}

// Drops them for the calling thread.
void DeleteTemporaryTypedWindows();

} // namespace framework
