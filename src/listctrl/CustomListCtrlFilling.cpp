// The report list: many rows added one by one, and painting them afterwards.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "modes/WindowAlive.h"

namespace {

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
    if (m_bars->filling.GoesOn() && !IsPartOfFilling(message))
    {
        EndFilling();
    }
    else if (inserts && InOnBoard())
    {
        m_bars->filling.Begin(*this);
    }
    return bool(alive);
}

void CCustomListCtrl::EndFilling()
{
    const WindowAlive alive(*this);
    m_bars->filling.End();
    if (alive)
    {
        Invalidate(FALSE);
        m_bars->InvalidateBars(); // nothing was drawn meanwhile
        DrawBars();
    }
}

LRESULT CCustomListCtrl::OnSetRedraw(WPARAM wParam, LPARAM lParam)
{
    return m_bars->filling.IsEnd(wParam, lParam) ? 0 : Default();
}
