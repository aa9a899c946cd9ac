// The report list: the edit of labels, from the click that begins it to its end.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/LabelEdit.h"
#include "modes/WindowAlive.h"

#include <utility>

// The platform would begin an edit by itself some time after a click, and select its row: that of
// an earlier click, or of one before the list was scrolled. On-board the list waits by itself, and
// the platform's knows of no labels that can be edited, but while one is: that is not disturbed.
void CCustomListCtrl::LetPlatformEdit(bool lets)
{
    STYLESTRUCT styles = {GetStyle(), GetStyle()};
    if (!lets && Ask(LVM_GETEDITCONTROL) != 0)
    {
        return; // until the next press
    }
    if (std::exchange(m_bars->editsLabels, lets) != lets && (styles.styleNew & LVS_EDITLABELS) != 0)
    {
        OnStyleChanged(GWL_STYLE, &styles);
    }
}

void CCustomListCtrl::OnStyleChanged(int which, LPSTYLESTRUCT styles)
{
    if (styles == nullptr)
    {
        return; // nothing is said to have changed
    }
    STYLESTRUCT known = *styles;
    if (which == GWL_STYLE && !m_bars->editsLabels)
    {
        known.styleNew &= ~DWORD{LVS_EDITLABELS};
    }
    const WindowAlive alive(*this);
    Ask(WM_STYLECHANGED, WPARAM(which), reinterpret_cast<LPARAM>(&known));
    if (alive && which == GWL_STYLE &&
        ((styles->styleOld ^ styles->styleNew) & LVS_TYPEMASK) != 0 && InOnBoard())
    {
        FitLastColumn(); // of a report again
    }
}

// The edit of a label begins as the platform's does, by the click on a row that was selected
// before. In a scrolled list that knows of a click on another row.
void CCustomListCtrl::AwaitLabelEdit(const CPoint& point)
{
    const WindowAlive alive(*this); // an owner may be asked for the label
    CRect label(LVIR_LABEL, 0, 0, 0);
    const bool known = Ask(LVM_GETITEMRECT, WPARAM(m_bars->labelRow), LPARAM(&label)) != 0;
    if (!alive)
    {
        return;
    }
    label.OffsetRect(m_drawOffset);
    if (!known || !label.PtInRect(point) || (GetStyle() & LVS_EDITLABELS) == 0 ||
        SetTimer(m_bars->LabelTimer(), ::GetDoubleClickTime(), nullptr) == 0)
    {
        m_bars->labelRow = -1;
    }
    m_bars->labelAwaited = m_bars->labelRow >= 0;
}

void CCustomListCtrl::EditClickedLabel()
{
    const WindowAlive alive(*this);
    KillTimer(m_bars->LabelTimer());
    const int row = std::exchange(m_bars->labelRow, -1);
    if (InOnBoard() && row >= 0 && row < int(Ask(LVM_GETITEMCOUNT)) &&
        ::GetFocus() == GetSafeHwnd() && IsSelected(row) && alive)
    {
        SendMessage(LVM_EDITLABELW, WPARAM(row)); // as the platform's own click, for any letters
    }
}

// Its row and the beginning of its column come into sight first.
LRESULT CCustomListCtrl::OnEditLabel(WPARAM wParam, LPARAM)
{
    const WindowAlive alive(*this);
    const int row = int(wParam);
    m_labelDue = InOnBoard();
    if (m_labelDue && row >= 0 && row < int(Ask(LVM_GETITEMCOUNT)))
    {
        CRect heading;
        CRect client;
        GetClientRect(&client);
        BringIntoSight(row);
        if (alive && m_scrollUnit.cx > 0 && HeaderItemRect(0, heading) &&
            (heading.left + m_drawOffset.x < 0 || heading.left + m_drawOffset.x >= client.right))
        {
            MoveTo(SB_HORZ, int(heading.left / m_scrollUnit.cx));
        }
    }
    if (alive)
    {
        LetPlatformEdit(true);
    }
    const LRESULT edit = alive ? Default() : 0;
    if (alive && m_bars->IsLaidOut())
    {
        LetPlatformEdit(false);
    }
    return alive ? edit : 0;
}

// The edit of a label stays with its row, which has the focus, when the rows become higher or less
// high; it ends when the row is not in sight any more, unless it is to be brought there.
void CCustomListCtrl::FollowLabelEdit(bool bring)
{
    const auto edit = HWND(Ask(LVM_GETEDITCONTROL));
    const int row = edit == nullptr ? -1 : NextRow(-1, LVNI_FOCUSED);
    CRect label(LVIR_LABEL, 0, 0, 0);
    const WindowAlive alive(*this);
    if (edit == nullptr || (row >= 0 && !Ask(LVM_GETITEMRECT, WPARAM(row), LPARAM(&label))))
    {
        return;
    }
    if (alive && bring && row >= 0 && m_vBar.ShowScrollBar())
    {
        MoveTo(SB_VERT, listctrl::TopToShow(row, TopRow(), RowsInSight()));
    }
    if (!alive)
    {
        return;
    }
    label.OffsetRect(m_drawOffset);
    CRect area;
    GetClientRect(&area);
    area.top = HeaderBottom();
    if (!PlaceLabelEdit(edit, label, area, Ask(WM_GETFONT)))
    {
        EndLabelEdit();
    }
}

// The row is painted anew as it shows the focus.
void CCustomListCtrl::EndLabelEdit()
{
    m_bars->labelRow = -1;
    ::EndLabelEdit(*this, Ask(LVM_GETEDITCONTROL));
}
