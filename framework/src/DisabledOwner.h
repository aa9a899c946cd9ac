#pragma once

#include "ThreadState.h"
#include "framework/App.h"

#include <vector>

namespace framework {

// The top-level window that a modal window belongs to, disabled while that one runs.
class DisabledOwner
{
public:
    // parent null: the window that the user is at, of those that belong to the application's main
    // window, or that one itself.
    explicit DisabledOwner(const CWnd* parent)
        : m_alone(parent != nullptr)
    {
        const CWnd* const meant = parent != nullptr ? parent : AfxGetMainWnd();
        m_window = m_last = meant == nullptr ? nullptr : ::GetAncestor(meant->m_hWnd, GA_ROOT);
        const HWND popup = parent == nullptr ? ::GetLastActivePopup(m_window) : nullptr;
        if (popup != nullptr && ::IsWindowVisible(popup))
        {
            m_window = popup;
        }
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    HWND Window() const { return m_window; }

    void Disable()
    {
        // A window that is dragged or scrolled would go on to get every press.
        if (const HWND pressed = ::GetCapture(); pressed != nullptr)
        {
            ::SendMessage(pressed, WM_CANCELMODE, 0, 0);
        }
        std::vector<HWND> windows = {m_window};
        while (windows.back() != nullptr && windows.back() != m_last)
        {
            windows.push_back(::GetWindow(windows.back(), GW_OWNER));
        }
        if (!m_alone)
        {
            // Nor may the loops outside be told to end under this one.
            const std::vector<HWND>& outside = CurrentThreadState().modalWindows;
            windows.insert(windows.end(), outside.begin(), outside.end());
        }
        for (const HWND window : windows)
        {
            if (::IsWindowEnabled(window))
            {
                m_disabled.push_back(window);
                ::EnableWindow(window, FALSE);
            }
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
        for (const HWND window : m_disabled)
        {
            ::EnableWindow(window, TRUE);
        }
        if (::IsWindowEnabled(m_window) && ::GetActiveWindow() == modal.m_hWnd)
        {
            ::SetActiveWindow(m_window);
        }
    }

private:
    bool m_alone; // what else the user can reach is left to the caller, who named the parent
    HWND m_window = nullptr;
    HWND m_last = nullptr;        // of its owners, which the user must not reach either
    std::vector<HWND> m_disabled; // those that were not before
};

} // namespace framework
