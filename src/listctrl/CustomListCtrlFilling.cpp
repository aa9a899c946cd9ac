// The report list: many rows added one by one.
//
// For every row that is added the platform's list shows its own bar again, which is taken back at
// once. So its redraw stays off while one row after the other is added. Whatever else happens ends
// the filling before it is handled; nobody outside can tell.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "modes/WindowAlive.h"

namespace {

constexpr LPARAM EndOfFilling = 0x0B0A2D; // tells our own WM_SETREDRAW from the host's

bool IsPartOfFilling(UINT message)
{
    switch (message)
    {
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_SETITEMA:
    case LVM_SETITEMW:
    case LVM_SETITEMTEXTA:
    case LVM_SETITEMTEXTW:
    case LVM_GETITEMA:
    case LVM_GETITEMW:
    case LVM_GETITEMCOUNT:
    case LVM_GETITEMRECT:
    case LVM_GETITEMSTATE:
    case LVM_GETHEADER:
        return true;
    default:
        return false;
    }
}

} // namespace

// False when the list did not survive it.
bool CCustomListCtrl::FollowFilling(UINT message)
{
    const WindowAlive alive(*this);
    const bool inserts = message == LVM_INSERTITEMA || message == LVM_INSERTITEMW;
    if (m_filling && !IsPartOfFilling(message))
    {
        EndFilling();
    }
    else if (inserts && !m_filling && m_redrawKnown && m_hostRedraw && InOnBoard())
    {
        m_filling = true;
        Ask(WM_SETREDRAW, FALSE);
        if (!m_endPosted)
        {
            // Ends the filling also when this object has let go of the window by then.
            m_endPosted = true;
            PostMessage(WM_SETREDRAW, TRUE, EndOfFilling);
        }
    }
    return bool(alive);
}

void CCustomListCtrl::EndFilling()
{
    m_filling = false;
    const WindowAlive alive(*this);
    Ask(WM_SETREDRAW, TRUE);
    if (alive)
    {
        Invalidate(FALSE);
        m_bars->InvalidateBars(); // nothing was drawn meanwhile
        DrawBars();
    }
}

LRESULT CCustomListCtrl::OnSetRedraw(WPARAM wParam, LPARAM lParam)
{
    if (lParam == EndOfFilling)
    {
        m_endPosted = false;
        return 0; // the filling ended on the way here
    }
    m_redrawKnown = true;
    m_hostRedraw = wParam != FALSE;
    return Default();
}
