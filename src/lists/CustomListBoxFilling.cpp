// The list box: many rows added one by one, and what of them has to be painted.

#include "CustomListBox.h"
#include "lists/ListBoxBars.h"
#include "modes/WindowAlive.h"

#include <algorithm>

namespace {

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
    if (m_bars->filling.GoesOn() && !IsPartOfFilling(message))
    {
        const WindowAlive alive(*this);
        EndFilling();
        if (!alive)
        {
            return 0;
        }
    }
    if (message == WM_ERASEBKGND && m_bars->endsFilling)
    {
        return TRUE; // what is to be seen stays, and what is due is erased in its time
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

void CCustomListBox::BeginFilling()
{
    // When its redraw comes back the platform takes rows that differ to be as low as a line of text
    // and scrolls back a list that is near its end.
    const bool scrollsBack = (GetStyle() & LBS_OWNERDRAWVARIABLE) != 0 && Ask(LB_GETTOPINDEX) > 0;
    if (!InColumns() && !scrollsBack)
    {
        m_bars->filling.Begin(*this);
    }
}

void CCustomListBox::EndFilling()
{
    const HWND window = GetSafeHwnd();
    // Switching on invalidates everything, and shows the platform's bar, at which the system erases
    // it at once; only what was due stays due.
    CRgn due;
    due.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(window, due, FALSE);
    const WindowAlive alive(*this);
    m_bars->endsFilling = true;
    m_bars->filling.End();
    if (alive)
    {
        m_bars->endsFilling = false;
    }
    ::ValidateRect(window, nullptr);
    ::InvalidateRgn(window, due, TRUE);
}

void CCustomListBox::InvalidateFrom(int index)
{
    CRect row;
    CRect client;
    GetClientRect(&client);
    // A row so far down that it is out of sight however low the rows are is not even looked up.
    if (m_bars->filling.GoesOn() && index - Ask(LB_GETTOPINDEX) <= client.Height() &&
        Ask(LB_GETITEMRECT, WPARAM(index), reinterpret_cast<LPARAM>(&row)) != LB_ERR &&
        row.top < client.bottom)
    {
        client.top = std::max(client.top, row.top);
        InvalidateRect(client, TRUE);
    }
}

LRESULT CCustomListBox::OnSetRedraw(WPARAM wParam, LPARAM lParam)
{
    return m_bars->filling.IsEnd(wParam, lParam) ? 0 : OnMayScroll(wParam, lParam);
}
