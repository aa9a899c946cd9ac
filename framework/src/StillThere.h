#pragma once

#include "framework/Wnd.h"

namespace framework {

// Tells after a call that leaves the framework whether a window object is still what it was: the
// call may have destroyed the window or deleted the object. Outlives the object that it watches.
class StillThere
{
public:
    explicit StillThere(const CWnd& watched)
        : m_object(&watched)
        , m_window(watched.m_hWnd)
    {}

    explicit operator bool() const { return CWnd::FromHandlePermanent(m_window) == m_object; }

private:
    const CWnd* m_object; // compared, never followed
    HWND m_window;
};

} // namespace framework
