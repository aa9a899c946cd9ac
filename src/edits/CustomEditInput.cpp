// The edit: presses on its bar, holds, drags, keys and the on-screen keyboard.

#include "CustomEdit.h"
#include "EFB.h"
#include "OnBoardUIGeneral.h"
#include "edits/EditBars.h"
#include "modes/FlightBag.h"
#include "modes/KeyState.h"
#include "modes/PressAndHold.h"
#include "modes/PressFocus.h"
#include "modes/WindowAlive.h"

namespace {

constexpr UINT CopyCharacter = 0x03;   // Ctrl+C
constexpr UINT DeleteCharacter = 0x7F; // Ctrl+Backspace

} // namespace

// Presses and drags on the bar ------------------------------------------------------------------

LRESULT CCustomEdit::OnNcHitTest(CPoint point)
{
    const WindowAlive alive(*this);
    const LRESULT hit = Default();
    return hit == HTNOWHERE && alive && FollowMode() ? LRESULT(m_bars->HitBar(point)) : hit;
}

LRESULT CCustomEdit::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

void CCustomEdit::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    m_bars->PressNc(hitTest, point);
}

void CCustomEdit::OnNcLButtonDblClk(UINT hitTest, CPoint point)
{
    m_bars->PressNc(hitTest, point);
}

void CCustomEdit::ProcessVScroll()
{
    m_bars->Press(SB_VERT);
}

void CCustomEdit::OnNcLButtonUp(UINT, CPoint)
{
    m_bars->NcButtonUp();
}

LRESULT CCustomEdit::OnNCMouseLeave(WPARAM, LPARAM)
{
    return m_bars->NcMouseLeave();
}

void CCustomEdit::OnCaptureChanged(CWnd*)
{
    m_bars->CutOff();
}

void CCustomEdit::OnCancelMode()
{
    m_bars->CutOff();
}

void CCustomEdit::OnTimer(UINT_PTR id)
{
    m_bars->Tick(id);
}

void CCustomEdit::OnNcMouseMove(UINT, CPoint point)
{
    m_bars->NcMouseMove(point);
}

// The text and the on-screen keyboard -----------------------------------------------------------

void CCustomEdit::OnLButtonDown(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    // The platform would take the focus again from whoever has taken it back.
    const bool ends = FollowMode() && (!TakeFocusForPress(*this) || ::GetFocus() != m_hWnd);
    if (alive && !ends)
    {
        CEdit::OnLButtonDown(flags, point);
    }
}

void CCustomEdit::OnLButtonUp(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    m_bars->End();
    CEdit::OnLButtonUp(flags, point);
    if (!alive)
    {
        return;
    }
    if (FollowMode())
    {
        DrawOBScrollBars();
        if (alive)
        {
            OfferKeyboard();
        }
    }
}

void CCustomEdit::OfferKeyboard()
{
    const WindowAlive alive(*this);
    // Hidden first: a keyboard that is there already has to come afresh for this edit.
    for (const bool show : {false, true})
    {
        if (alive && !m_fauxReadOnly && m_efb != nullptr &&
            IsFlightBag(COnBoardUIGeneral::GetAppMode()))
        {
            m_efb->ShowVKB(show, VKB_FOR_EDIT, GetSafeHwnd());
        }
    }
}

void CCustomEdit::OnContextMenu(CWnd* window, CPoint point)
{
    if (!FollowMode())
    {
        CEdit::OnContextMenu(window, point);
    }
}

void CCustomEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (m_fauxReadOnly && character != CopyCharacter)
    {
        return;
    }
    const WindowAlive alive(*this);
    CEdit::OnChar(character, repeat, flags);
    if (alive && character == DeleteCharacter)
    {
        EmptyText();
    }
}

void CCustomEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const bool copies =
        IsKeyDown(VK_CONTROL) && (key == 'C' || (key == VK_INSERT && !IsKeyDown(VK_SHIFT)));
    if (m_fauxReadOnly && !copies && key != VK_CONTROL)
    {
        return;
    }
    const WindowAlive alive(*this);
    CEdit::OnKeyDown(key, repeat, flags);
    // The code of the character is F16's as a key: it is meant that this key empties the text too.
    if (alive && key == DeleteCharacter)
    {
        EmptyText();
    }
}

// An edit of many lines has every key to itself, Tab, Enter and Escape too. One that takes no key
// would keep the focus for ever.
UINT CCustomEdit::OnGetDlgCode()
{
    const WindowAlive alive(*this);
    const UINT wanted = CEdit::OnGetDlgCode();
    return alive && m_fauxReadOnly ? wanted & ~UINT(DLGC_WANTALLKEYS) : wanted;
}

// As a user would, so that the parent is told and it can be undone.
void CCustomEdit::EmptyText()
{
    if ((GetStyle() & ES_READONLY) != 0)
    {
        return;
    }
    const WindowAlive alive(*this);
    SetSel(0, -1, TRUE);
    if (alive)
    {
        ReplaceSel("", TRUE);
    }
}
