#pragma once

#include "framework/App.h"

namespace framework {

// The top-level window that a modal window belongs to, disabled while that one runs.
class DisabledOwner
{
public:
    // parent null: the application's main window.
    explicit DisabledOwner(const CWnd* parent)
    {
        const CWnd* const meant = parent != nullptr ? parent : AfxGetMainWnd();
        m_window = meant == nullptr ? nullptr : ::GetAncestor(meant->m_hWnd, GA_ROOT);
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    HWND Window() const { return m_window; }

    void Disable()
    {
        m_disabled = m_window != nullptr && ::IsWindowEnabled(m_window);
        if (m_disabled)
        {
            ::EnableWindow(m_window, FALSE);
        }
    }

    // Before the modal window goes, so that the owner is the one activated next. Leaves the
    // activation to another window that has it by now.
    void EnableAgain(CWnd& modal)
    {
        if (modal.m_hWnd != nullptr)
        {
            modal.SetWindowPos(nullptr, 0, 0, 0, 0,
                               SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE |
                                   SWP_NOZORDER);
        }
        if (m_disabled && ::IsWindow(m_window))
        {
            ::EnableWindow(m_window, TRUE);
            if (::GetActiveWindow() == modal.m_hWnd)
            {
                ::SetActiveWindow(m_window);
            }
        }
    }

private:
    HWND m_window = nullptr;
    bool m_disabled = false;
};

} // namespace framework
