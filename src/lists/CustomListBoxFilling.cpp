// The list box: many rows added one by one.
//
// For every row that is added the platform's list box shows its own bar again, which recalculates
// the frame and is taken back at once. So its redraw stays off while one row after the other is
// added, and what has to be painted is invalidated here. Whatever else happens ends the filling
// before it is handled; nobody outside can tell.

#include "CustomListBox.h"
#include "modes/WindowAlive.h"

#include <algorithm>

namespace {

constexpr LPARAM EndOfFilling = 0x0B0A2D; // tells our own WM_SETREDRAW from the host's

bool IsPartOfFilling(UINT message)
{
    switch (message)
    {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_INITSTORAGE:
    case LB_GETCOUNT:
    case LB_GETITEMDATA:
    case LB_SETITEMDATA:
        return true;
    default:
        return false;
    }
}

} // namespace

LRESULT CCustomListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_filling && !IsPartOfFilling(message))
    {
        const WindowAlive alive(*this);
        EndFilling();
        if (!alive)
        {
            return 0;
        }
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

void CCustomListBox::BeginFilling()
{
    if (m_filling || !m_redrawKnown || !m_hostRedraw || InColumns())
    {
        return;
    }
    m_filling = true;
    Ask(WM_SETREDRAW, FALSE);
    if (!m_endPosted)
    {
        // Ends the filling also when this object has let go of the window by then.
        m_endPosted = true;
        PostMessage(WM_SETREDRAW, TRUE, EndOfFilling);
    }
}

void CCustomListBox::EndFilling()
{
    const HWND window = GetSafeHwnd();
    m_filling = false;
    // Switching on invalidates everything; only what was due stays due.
    CRgn due;
    due.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(window, due, FALSE);
    Ask(WM_SETREDRAW, TRUE);
    ::ValidateRect(window, nullptr);
    ::InvalidateRgn(window, due, TRUE);
}

void CCustomListBox::InvalidateFrom(int index)
{
    CRect row;
    CRect client;
    GetClientRect(&client);
    // A row so far down that it is out of sight however low the rows are is not even looked up.
    if (m_filling && index - Ask(LB_GETTOPINDEX) <= client.Height() &&
        Ask(LB_GETITEMRECT, WPARAM(index), reinterpret_cast<LPARAM>(&row)) != LB_ERR &&
        row.top < client.bottom)
    {
        client.top = std::max(client.top, row.top);
        InvalidateRect(client, TRUE);
    }
}

LRESULT CCustomListBox::OnSetRedraw(WPARAM wParam, LPARAM lParam)
{
    if (lParam == EndOfFilling)
    {
        if (!m_endPosted)
        {
            return Default(); // of a filling that was going on when the object took the window over
        }
        m_endPosted = false;
        return 0; // the filling ended on the way here
    }
    m_redrawKnown = true;
    m_hostRedraw = wParam != FALSE;
    return OnMayScroll(wParam, lParam);
}
