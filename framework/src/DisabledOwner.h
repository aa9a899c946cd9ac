#pragma once

#include "ThreadState.h"
#include "framework/App.h"

#include <algorithm>
#include <vector>

namespace framework {

// The top-level window that a modal window belongs to, disabled while that one runs.
class DisabledOwner
{
public:
    // parent null: the application's main window, or the modal dialog over it that the user is at.
    // Where that is another popup, it is disabled as well, but a tool window may end by itself, and
    // what it owns with it.
    explicit DisabledOwner(const CWnd* parent)
        : m_alone(parent != nullptr)
    {
        const CWnd* const meant = parent != nullptr ? parent : AfxGetMainWnd();
        m_owner = m_inUse = m_last =
            meant == nullptr ? nullptr : ::GetAncestor(meant->m_hWnd, GA_ROOT);
        const HWND popup = parent == nullptr ? ::GetLastActivePopup(m_last) : nullptr;
        if (popup != nullptr && ::IsWindowVisible(popup))
        {
            m_owner = m_inUse = popup;
        }
        while (m_owner != m_last && m_owner != nullptr && !IsModal(m_owner))
        {
            m_owner = ::GetWindow(m_owner, GW_OWNER);
        }
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    HWND Window() const { return m_owner; }

    void Disable()
    {
        // A window that is dragged or scrolled would go on to get every press.
        if (const HWND pressed = ::GetCapture(); pressed != nullptr)
        {
            ::SendMessage(pressed, WM_CANCELMODE, 0, 0);
        }
        std::vector<HWND> windows = {m_inUse};
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
        HWND next = m_inUse;
        while (next != m_last && next != nullptr && !CanBeUsed(next))
        {
            next = ::GetWindow(next, GW_OWNER);
        }
        if (CanBeUsed(next) && ::GetActiveWindow() == modal.m_hWnd)
        {
            ::SetActiveWindow(next);
        }
    }

private:
    static bool IsModal(HWND window)
    {
        const std::vector<HWND>& modal = CurrentThreadState().modalWindows;
        return std::find(modal.begin(), modal.end(), window) != modal.end();
    }
    static bool CanBeUsed(HWND window)
    {
        return ::IsWindowVisible(window) && ::IsWindowEnabled(window) && !::IsIconic(window);
    }

    bool m_alone; // what else the user can reach is left to the caller, who named the parent
    HWND m_owner = nullptr;
    HWND m_inUse = nullptr;
    HWND m_last = nullptr;        // of its owners, which the user must not reach either
    std::vector<HWND> m_disabled; // those that were not before
};

} // namespace framework
