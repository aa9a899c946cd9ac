// The report list: the pointer and the wheel.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int WheelThreshold = 100; // beyond it a turn scrolls one row

} // namespace

// Presses and drags on the bars -----------------------------------------------------------------

LRESULT CCustomListCtrl::OnNcHitTest(CPoint point)
{
    if (!InOnBoard())
    {
        return Default();
    }
    m_vPart = CFauxScrollBar::PRESSED_NONE;
    m_hPart = CFauxScrollBar::PRESSED_NONE;
    const WindowAlive alive(*this);
    ResizeOBScrollBars();
    if (!alive)
    {
        return HTNOWHERE;
    }
    const UINT hit = m_bars->HitBar(point);
    if (hit == 0)
    {
        return Default();
    }
    const int axis = hit == HTVSCROLL ? SB_VERT : SB_HORZ;
    m_bars->PartOf(axis) = Bar(axis).GetLastHit();
    return LRESULT(hit);
}

LRESULT CCustomListCtrl::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::OnBars, screen, [this] { return Default(); });
}

void CCustomListCtrl::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    m_pressedRow = -1;
    m_bars->labelRow = -1;
    m_bars->PressNc(hitTest, point);
}

void CCustomListCtrl::OnNcLButtonDblClk(UINT hitTest, CPoint point)
{
    m_bars->PressNc(hitTest, point);
}

void CCustomListCtrl::ProcessVScroll()
{
    m_bars->Press(SB_VERT);
}

void CCustomListCtrl::ProcessHScroll()
{
    m_bars->Press(SB_HORZ);
}

void CCustomListCtrl::OnNcLButtonUp(UINT, CPoint)
{
    ReleaseButton();
}

// The repeat timer sees by itself that the button is up.
void CCustomListCtrl::ReleaseButton()
{
    m_bars->Forget();
    m_bars->CancelLeave();
    const WindowAlive alive(*this);
    // The platform may deselect all but the row that was pressed.
    const bool several = InOnBoard() && Ask(LVM_GETSELECTEDCOUNT) > 1;
    const std::set<int> selected = several && alive ? SelectedInSight() : std::set<int>();
    if (!alive)
    {
        return;
    }
    Default();
    if (alive && InOnBoard() && several)
    {
        std::set<int> changed;
        std::ranges::set_symmetric_difference(selected, SelectedInSight(),
                                              std::inserter(changed, changed.end()));
        if (alive)
        {
            InvalidateEach(changed);
        }
    }
    if (alive && InOnBoard())
    {
        KillTimer(m_timerInitialWaitID);
        DrawScrollBars();
    }
}

LRESULT CCustomListCtrl::OnNCMouseLeave(WPARAM, LPARAM)
{
    return m_bars->NcMouseLeave();
}

void CCustomListCtrl::OnCancelMode()
{
    m_pressedRow = -1;
    m_bars->labelRow = -1;
    m_bars->CutOff();
}

void CCustomListCtrl::OnTimer(UINT_PTR id)
{
    if (id == m_bars->LabelTimer())
    {
        EditClickedLabel();
        return;
    }
    m_bars->Tick(id);
}

void CCustomListCtrl::OnNcMouseMove(UINT hitTest, CPoint point)
{
    m_bars->NcMouseMove(point, hitTest == HTVSCROLL || hitTest == HTHSCROLL);
}

void CCustomListCtrl::OnMouseMove(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    if ((flags & MK_LBUTTON) == 0) // released, maybe somewhere else
    {
        m_pressedRow = -1;
        m_bars->labelRow = m_bars->labelAwaited ? m_bars->labelRow : -1;
    }
    if (InOnBoard() && flags == MK_LBUTTON)
    {
        HandleMouseMoveScroll(point);
    }
    if (alive)
    {
        CListCtrl::OnMouseMove(flags, point);
    }
}

void CCustomListCtrl::HandleMouseMoveScroll(const CPoint& point)
{
    m_bars->Drag(point);
}

// Wheel -----------------------------------------------------------------------------------------

BOOL CCustomListCtrl::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    const WindowAlive alive(*this);
    if (!InOnBoard())
    {
        const BOOL handled = CListCtrl::OnMouseWheel(flags, delta, point);
        if (alive)
        {
            m_bars->Forget();
        }
        return handled;
    }
    m_bars->Forget();
    // The platform would scroll its own rows, so it does not get the message.
    m_wheel += delta;
    if (m_wheel < -WheelThreshold)
    {
        m_wheel = 0;
        m_vPart = CFauxScrollBar::PRESSED_SECOND;
        PerformVScroll(SB_LINEDOWN);
    }
    else if (m_wheel > WheelThreshold)
    {
        m_wheel = 0;
        m_vPart = CFauxScrollBar::PRESSED_FIRST;
        PerformVScroll(SB_LINEUP);
    }
    return TRUE;
}
