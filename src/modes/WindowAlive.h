#pragma once

#include <afxwin.h>

// Tells after a call that leaves the library whether a window object is still there: the call may
// have destroyed the window, the object, or both. Outlives the object that it watches.
class WindowAlive
{
public:
    explicit WindowAlive(const CWnd& watched)
        : m_object(&watched)
        , m_window(watched.GetSafeHwnd())
    {}

    explicit operator bool() const
    {
        return m_window != nullptr && CWnd::FromHandlePermanent(m_window) == m_object;
    }

private:
    const CWnd* m_object; // compared, never followed
    HWND m_window;
};
