// The list box: pointer, wheel and keys.

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "lists/ListBoxBars.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"

#include <algorithm>
#include <optional>

// Presses and drags on the bars -----------------------------------------------------------------

LRESULT CCustomListBox::OnNcHitTest(CPoint point)
{
    const WindowAlive alive(*this);
    if (FollowMode())
    {
        if (const UINT hit = m_bars->HitBar(point))
        {
            return LRESULT(hit);
        }
    }
    return alive ? Default() : HTNOWHERE;
}

LRESULT CCustomListBox::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::OnBars, screen, [this] { return Default(); });
}

void CCustomListBox::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    m_bars->PressNc(hitTest, point);
}

void CCustomListBox::OnNcLButtonDblClk(UINT hitTest, CPoint point)
{
    m_bars->PressNc(hitTest, point);
}

void CCustomListBox::ProcessVScroll()
{
    m_bars->Press(SB_VERT);
}

void CCustomListBox::ProcessHScroll()
{
    m_bars->Press(SB_HORZ);
}

void CCustomListBox::OnNcLButtonUp(UINT, CPoint)
{
    m_bars->NcButtonUp();
}

LRESULT CCustomListBox::OnNCMouseLeave(WPARAM, LPARAM)
{
    return m_bars->NcMouseLeave();
}

void CCustomListBox::OnCaptureChanged(CWnd*)
{
    m_bars->CutOff();
}

void CCustomListBox::OnCancelMode()
{
    m_bars->CutOff();
}

void CCustomListBox::OnTimer(UINT_PTR id)
{
    m_bars->Tick(id);
}

void CCustomListBox::OnNcMouseMove(UINT, CPoint point)
{
    m_bars->NcMouseMove(point);
}

void CCustomListBox::HandleMouseMoveScroll(const CPoint& point)
{
    m_bars->Drag(point);
}

// The pointer in the rows -----------------------------------------------------------------------

void CCustomListBox::OnMouseMove(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    CListBox::OnMouseMove(flags, point);
    if (alive)
    {
        HandleMouseMoveScroll(point);
        // A selection dragged past the edge scrolls the rows.
        if (alive && (flags & MK_LBUTTON) != 0 && FollowMode())
        {
            MirrorContent();
            DrawOBScrollBars();
        }
    }
}

// Where the one before takes it back, the list never has it, and the platform would take it again.
// A parent that hands it on when the list has it, as to a field above, leaves the press going on.
bool CCustomListBox::TakeFocus()
{
    if (::GetFocus() == GetSafeHwnd())
    {
        return true;
    }
    const WindowAlive alive(*this);
    m_focusCame = false;
    SetFocus();
    return alive && (m_focusCame || ::GetFocus() == GetSafeHwnd()); // heirs may have the message
}

void CCustomListBox::OnSetFocus(CWnd*)
{
    m_focusCame = true;
    Default();
}

void CCustomListBox::OnChar(UINT, UINT, UINT)
{
    const MSG& message = *GetCurrentMessage();
    OnMayScroll(message.wParam, message.lParam);
}

void CCustomListBox::OnLButtonDown(UINT flags, CPoint point)
{
    // The list of a platform's combo leaves the focus to the combo, which closes it otherwise.
    if (!COnBoardUIGeneral::InOnBoardMode() || (GetStyle() & LBS_COMBOBOX) != 0 || TakeFocus())
    {
        PressRow(flags, point);
    }
}

void CCustomListBox::PressRow(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    CListBox::OnLButtonDown(flags, point);
    if (alive && FollowMode())
    {
        MirrorContent();
        DrawOBScrollBars();
    }
}

void CCustomListBox::EndPress()
{
    m_bars->End();
    if (FollowMode())
    {
        DrawOBScrollBars();
    }
}

void CCustomListBox::OnLButtonUp(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    m_bars->End();
    CListBox::OnLButtonUp(flags, point);
    if (alive && FollowMode())
    {
        MirrorContent();
        DrawOBScrollBars();
    }
}

// A press on a row selects the one that it has reached. The platform would go on with whichever row
// the other mode lays under the pointer.
void CCustomListBox::Bars::EndPlatformPress()
{
    // The list of a platform's combo has the capture for other reasons, too.
    if (::GetCapture() == m_list.GetSafeHwnd() && (m_list.GetStyle() & LBS_COMBOBOX) == 0)
    {
        CRect row;
        Ask(LB_GETITEMRECT, WPARAM(Ask(LB_GETCARETINDEX, 0, 0)), reinterpret_cast<LPARAM>(&row));
        Ask(WM_LBUTTONUP, 0, MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y));
    }
}

// Wheel and keys --------------------------------------------------------------------------------

BOOL CCustomListBox::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!onBoard)
    {
        return alive ? CListBox::OnMouseWheel(flags, delta, point) : TRUE;
    }
    // One line a turn, however far the wheel was turned.
    SendMessage(WM_VSCROLL, delta > 0 ? SB_LINEUP : SB_LINEDOWN);
    if (alive && InColumns())
    {
        SendMessage(WM_HSCROLL, delta > 0 ? SB_LINELEFT : SB_LINERIGHT); // all that moves columns
    }
    return TRUE;
}

namespace {

std::optional<int> ScrollCodeOfKey(UINT key)
{
    switch (key)
    {
    case VK_DOWN:
        return SB_LINEDOWN;
    case VK_UP:
        return SB_LINEUP;
    case VK_PRIOR:
        return SB_PAGEUP;
    case VK_NEXT:
        return SB_PAGEDOWN;
    default:
        return std::nullopt;
    }
}

} // namespace

void CCustomListBox::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const WindowAlive alive(*this);
    CListBox::OnKeyDown(key, repeat, flags);
    if (!alive || !FollowMode())
    {
        return;
    }
    MirrorContent();
    // The rows move with the key as well as the selection: it is meant, so that the bar follows
    // the keyboard at every step.
    if (const auto code = ScrollCodeOfKey(key))
    {
        SendMessage(WM_VSCROLL, WPARAM(*code));
        // Other keys leave the rows to the platform: Ctrl and Shift are held for a press on a row
        // that was scrolled to.
        if (alive && FollowMode())
        {
            KeepCaretInSight();
        }
    }
    if (alive)
    {
        DrawOBScrollBars();
    }
}

void CCustomListBox::KeepCaretInSight()
{
    const int caret = Ask(LB_GETCARETINDEX);
    if (caret < 0 || !m_vBarNeeded)
    {
        return; // all rows are in sight, or the platform scrolls by itself
    }
    CRect client;
    GetClientRect(&client);
    // The first row of all from which the caret's row is still whole.
    int first = caret;
    int height = HeightOfRow(caret);
    while (first > 0 && height + HeightOfRow(first - 1) <= client.Height())
    {
        height += HeightOfRow(--first);
    }
    const int top = Ask(LB_GETTOPINDEX);
    const int wanted = std::clamp(top, first, caret);
    if (wanted != top)
    {
        const WindowAlive alive(*this);
        Ask(LB_SETTOPINDEX, WPARAM(wanted));
        if (alive)
        {
            MirrorContent();
        }
    }
}

// Scroll messages -------------------------------------------------------------------------------

void CCustomListBox::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar == nullptr)
    {
        Scroll(SB_VERT, code, position);
    }
    else
    {
        CListBox::OnVScroll(code, position, bar);
    }
}

void CCustomListBox::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar == nullptr)
    {
        Scroll(SB_HORZ, code, position);
    }
    else
    {
        CListBox::OnHScroll(code, position, bar);
    }
}

void CCustomListBox::Scroll(int axis, UINT code, UINT position)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return;
    }
    if (!onBoard || !Needed(axis))
    {
        // Without a bar of ours the rows are the platform's to scroll.
        Default();
        return;
    }
    CFauxScrollBar& bar = Bar(axis);
    // A drag has moved the bar already. A thumb message from elsewhere has not; its position holds
    // 16 bits, so the bar's own tells a drag from it.
    const bool thumb = code == SB_THUMBPOSITION || code == SB_THUMBTRACK;
    if (thumb && LOWORD(bar.GetScrollPos()) != LOWORD(position))
    {
        bar.SetScrollPos(int(position), TRUE);
    }
    bar.HandleScroll(code, position, nullptr);
    if (MoveContent(axis))
    {
        DrawOBScrollBars();
    }
}
