#pragma once

// Many rows added one by one.
//
// For every row that is added the platform's control shows its own bar again, which recalculates
// the frame and is taken back at once. So its redraw stays off while one row after the other is
// added, and the control paints afterwards what has to be. Whatever else happens ends the filling
// before it is handled; nobody outside can tell.

#include "modes/WindowAlive.h"
#include "scroll/BarHost.h"

namespace scroll {

class Filling
{
public:
    // Asks the control's platform past every handler of ours.
    explicit Filling(BarHost& host)
        : m_host(host)
    {}

    // The control has another window.
    void BeginAfresh()
    {
        m_on = m_endPosted = m_redrawKnown = false;
        m_hostRedraw = true;
    }
    // Whether the platform's redraw is on is known only of a window that was made by us, and after
    // the host has said so.
    void SetRedrawKnown(bool known) { m_redrawKnown = known; }

    bool GoesOn() const { return m_on; }

    // A row is to be added. Nothing while the host has the redraw off.
    void Begin(CWnd& window)
    {
        if (m_on || !m_redrawKnown || !m_hostRedraw)
        {
            return;
        }
        m_on = true;
        const WindowAlive alive(window);
        m_host.Ask(WM_SETREDRAW, FALSE);
        if (alive && !m_endPosted)
        {
            // Ends the filling also when the control has let go of the window by then.
            m_endPosted = true;
            window.PostMessage(WM_SETREDRAW, TRUE, EndMark);
        }
    }

    // The platform's redraw is on again; it may have invalidated everything.
    void End()
    {
        m_on = false;
        m_host.Ask(WM_SETREDRAW, TRUE);
    }

    // WM_SETREDRAW: whether it is only the message that ends a filling, on the way to which the
    // filling has ended.
    bool IsEnd(WPARAM redraw, LPARAM lParam)
    {
        if (lParam == EndMark)
        {
            // Not posted: of a filling that went on when the control took the window over.
            const bool ours = m_endPosted;
            m_endPosted = false;
            return ours;
        }
        m_redrawKnown = true;
        m_hostRedraw = redraw != FALSE;
        return false;
    }

private:
    static constexpr LPARAM EndMark = 0x0B0A2D; // tells our own WM_SETREDRAW from the host's

    BarHost& m_host;
    bool m_on = false;
    bool m_endPosted = false;   // the message that ends it is on its way
    bool m_hostRedraw = true;   // the host's WM_SETREDRAW
    bool m_redrawKnown = false; // that the platform's redraw is the host's
};

} // namespace scroll
