// The drop-list combo: dropping and closing, pointer, keyboard and focus.

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"

#include "access/Answers.h"
#include "modes/KeyState.h"
#include "modes/PressAndHold.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"

#include <algorithm>
#include <utility>

namespace {

constexpr UINT AltDown = 0x2000;

} // namespace

// Dropping and closing --------------------------------------------------------------------------

void CCustomDropListCombo::DoDropButton()
{
    if (GetSafeHwnd() == nullptr)
    {
        CloseLeftOpen();
        return;
    }
    const WindowAlive alive(*this);
    m_expanded = !m_expanded;
    if (m_expanded)
    {
        UpdateComboLBoxPos();
    }
    if (!alive)
    {
        return;
    }
    if (CCustomComboLBox* const list = ListIfMade())
    {
        list->ShowPopup(m_expanded);
    }
    if (alive)
    {
        Repaint();
        access::Tell(m_hWnd, EVENT_OBJECT_STATECHANGE);
    }
    // Also a host that closes the list by this alone is not left without the pointer.
    if (alive && !m_expanded && ::GetCapture() == GetSafeHwnd())
    {
        ::ReleaseCapture();
    }
}

// The list of a window that was let go while it was open.
void CCustomDropListCombo::CloseLeftOpen()
{
    CCustomComboLBox* const list = ListIfMade();
    if (std::exchange(m_expanded, false) && list != nullptr)
    {
        list->ShowPopup(false);
    }
}

void CCustomDropListCombo::ToggleDropList()
{
    const WindowAlive alive(*this);
    m_listClosing = false;
    m_pickArmed = false;
    m_barHeld = false;
    DoDropButton();
    if (!alive)
    {
        return;
    }
    if (m_expanded)
    {
        SetCapture(); // the next click anywhere comes here
    }
}

void CCustomDropListCombo::ListClosed(int)
{
    const WindowAlive alive(*this);
    m_listClosing = false;
    if (m_expanded)
    {
        ToggleDropList();
    }
    if (alive && TellSelChange())
    {
        Repaint();
    }
}

// False when the combo did not survive it.
bool CCustomDropListCombo::TellSelChange()
{
    const WindowAlive alive(*this);
    const HWND parent = GetSafeHwnd() == nullptr ? nullptr : ::GetParent(GetSafeHwnd());
    if (parent != nullptr && !m_ending)
    {
        Repaint();
        access::Tell(m_hWnd, EVENT_OBJECT_VALUECHANGE);
        if (!alive)
        {
            return false;
        }
        TellCommand(m_hWnd, CBN_SELCHANGE);
    }
    return bool(alive);
}

// The pointer -----------------------------------------------------------------------------------

LRESULT CCustomDropListCombo::OnNcHitTest(CPoint point)
{
    CRect window;
    GetWindowRect(&window);
    return OnNcHitTest(window, point);
}

LRESULT CCustomDropListCombo::OnNcHitTest(const CRect& window, const CPoint& point)
{
    return window.PtInRect(point) ? HTCLIENT : HTNOWHERE;
}

LRESULT CCustomDropListCombo::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

void CCustomDropListCombo::OnLButtonDown(UINT, CPoint point)
{
    ClientToScreen(&point);
    PressAt(point);
}

void CCustomDropListCombo::OnLButtonUp(UINT, CPoint point)
{
    ClientToScreen(&point);
    ReleaseAt(point);
}

// For derived classes whose hit test knows more than the client area.

void CCustomDropListCombo::OnNcLButtonDown(UINT, CPoint point)
{
    PressAt(point);
}

void CCustomDropListCombo::OnNcLButtonUp(UINT, CPoint point)
{
    ReleaseAt(point);
}

void CCustomDropListCombo::PressAt(const CPoint& screen)
{
    const WindowAlive alive(*this);
    CCustomComboLBox* const list = ListIfMade();
    if (!m_expanded)
    {
        SetFocus();
        if (alive && ::GetFocus() == GetSafeHwnd() && !m_expanded)
        {
            ToggleDropList();
        }
        if (alive)
        {
            m_pickArmed = m_expanded; // the pointer may go on into the list and pick there
        }
        return;
    }
    if (list == nullptr || !list->HoldsPoint(screen))
    {
        ListClosed(GetCurSel());
        return;
    }
    const UINT bar = list->BarAt(screen); // which asks the list's window
    if (!alive || ListIfMade() != list)
    {
        return;
    }
    if (bar != 0)
    {
        PressListBar(bar, screen);
    }
    else
    {
        m_pickArmed = true;
        list->Track(screen);
    }
}

void CCustomDropListCombo::ReleaseAt(const CPoint& screen)
{
    const bool armed = m_pickArmed;
    m_pickArmed = false;
    CCustomComboLBox* const list = ListIfMade();
    if (m_expanded && armed && list != nullptr)
    {
        if (const int row = list->RowAt(screen); row >= 0)
        {
            list->Pick(row);
        }
    }
}

// The other buttons do nothing but close the list when they are pressed outside of it.

void CCustomDropListCombo::OnRButtonDown(UINT, CPoint point)
{
    ClientToScreen(&point);
    PressElsewhere(point);
}

void CCustomDropListCombo::OnMButtonDown(UINT, CPoint point)
{
    ClientToScreen(&point);
    PressElsewhere(point);
}

void CCustomDropListCombo::PressElsewhere(const CPoint& screen)
{
    const CCustomComboLBox* const list = ListIfMade();
    if (m_expanded && (list == nullptr || !list->HoldsPoint(screen)))
    {
        ListClosed(GetCurSel());
    }
}

void CCustomDropListCombo::OnMouseMove(UINT flags, CPoint point)
{
    CCustomComboLBox* const list = ListIfMade();
    if (!m_expanded || list == nullptr)
    {
        CWnd::OnMouseMove(flags, point);
        return;
    }
    ClientToScreen(&point);
    list->Track(point);
}

BOOL CCustomDropListCombo::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    CCustomComboLBox* const list = ListIfMade();
    if (!m_expanded || list == nullptr)
    {
        // A closed combo lets the wheel pass: a turn meant for its window must select nothing.
        return CWnd::OnMouseWheel(flags, delta, point);
    }
    list->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(flags, delta), MAKELPARAM(point.x, point.y));
    return TRUE;
}

// A press on the list's bar is the list's, and in the standard mode the platform's, which runs a
// loop of its own with the capture. It comes back here when the press ends.
void CCustomDropListCombo::PressListBar(UINT hitTest, const CPoint& screen)
{
    const WindowAlive alive(*this);
    m_barHeld = true;
    if (::GetCapture() == GetSafeHwnd())
    {
        ::ReleaseCapture();
    }
    CCustomComboLBox* const list = alive ? ListIfMade() : nullptr;
    if (list == nullptr)
    {
        return;
    }
    const WindowAlive listAlive(*list);
    list->SendMessage(WM_NCLBUTTONDOWN, hitTest, MAKELPARAM(screen.x, screen.y));
    if (alive && (!listAlive || !list->IsBarHeld()))
    {
        BarReleased();
    }
}

void CCustomDropListCombo::BarReleased()
{
    if (m_barHeld)
    {
        m_barHeld = false;
        if (m_expanded && GetSafeHwnd() != nullptr)
        {
            SetCapture();
        }
    }
}

void CCustomDropListCombo::OnCaptureChanged(CWnd* taker)
{
    const WindowAlive alive(*this);
    CWnd::OnCaptureChanged(taker);
    // A press on the list's bar goes on, and a list that is closing tells it itself.
    if (alive && m_expanded && !m_barHeld && !m_listClosing && ::GetCapture() != GetSafeHwnd())
    {
        ListClosed(GetCurSel());
    }
}

void CCustomDropListCombo::OnCancelMode()
{
    const WindowAlive alive(*this);
    CWnd::OnCancelMode();
    if (alive && m_expanded)
    {
        ListClosed(GetCurSel());
    }
}

// The keyboard ----------------------------------------------------------------------------------

// Keys that an open list needs before a dialog takes them for its default buttons. The key that
// has closed the list stays the combo's until it is up: held, it must not close the dialog too.
bool CCustomDropListCombo::TakesKey(const MSG& key) const
{
    if (key.message != WM_KEYDOWN || (key.wParam != VK_RETURN && key.wParam != VK_ESCAPE))
    {
        return false;
    }
    return m_expanded || (key.wParam == m_closingKey && (HIWORD(key.lParam) & WasDownBefore) != 0);
}

// Characters too, though they select nothing: the dialog would press the button whose mnemonic one
// is.
UINT CCustomDropListCombo::OnGetDlgCode()
{
    constexpr UINT wanted = DLGC_WANTARROWS | DLGC_WANTCHARS;
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    return asked != nullptr && TakesKey(*asked) ? wanted | DLGC_WANTMESSAGE : wanted;
}

BOOL CCustomDropListCombo::PreTranslateMessage(MSG* message)
{
    if (message != nullptr && message->hwnd == GetSafeHwnd() && TakesKey(*message))
    {
        ::DispatchMessage(message);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(message);
}

void CCustomDropListCombo::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key >= VK_PRIOR && key <= VK_DOWN)
    {
        MoveSelection(key);
        return;
    }
    if (key != VK_RETURN && key != VK_ESCAPE)
    {
        CWnd::OnKeyDown(key, repeat, flags);
        return;
    }
    if (key == m_closingKey && (flags & WasDownBefore) != 0)
    {
        return;
    }
    m_closingKey = 0;
    if (!m_expanded)
    {
        CWnd::OnKeyDown(key, repeat, flags);
        return;
    }
    m_closingKey = key;
    CCustomComboLBox* const list = ListIfMade();
    if (key == VK_RETURN && list != nullptr)
    {
        list->Pick(list->GetHighlightedRow());
    }
    else
    {
        ListClosed(GetCurSel());
    }
}

void CCustomDropListCombo::OnKeyUp(UINT key, UINT repeat, UINT flags)
{
    if (key == m_closingKey)
    {
        m_closingKey = 0;
    }
    CWnd::OnKeyUp(key, repeat, flags);
}

// Without a selection the keys do nothing: it is meant, so that a combo that shows nothing does not
// take on an item by accident.
void CCustomDropListCombo::MoveSelection(UINT key)
{
    CCustomComboLBox* const list = ListIfMade();
    const int selected = GetCurSel();
    if (list == nullptr || selected < 0)
    {
        return;
    }
    const int last = list->GetCount() - 1;
    const int page = std::max(1, list->GetActualListHeight() / list->GetItemHeight());
    int wanted = selected;
    switch (key)
    {
    case VK_UP:
    case VK_LEFT:
        --wanted;
        break;
    case VK_DOWN:
    case VK_RIGHT:
        ++wanted;
        break;
    case VK_HOME:
        wanted = 0;
        break;
    case VK_END:
        wanted = last;
        break;
    case VK_PRIOR:
        wanted -= page;
        break;
    case VK_NEXT:
        wanted += page;
        break;
    default:
        break;
    }
    const WindowAlive alive(*this);
    list->EndTrack();
    list->SetCurSel(std::clamp(wanted, 0, std::max(0, last)));
    // Also at either end: a key that moves the selection is told, wherever it ends up.
    if (alive && TellSelChange())
    {
        Repaint();
    }
}

void CCustomDropListCombo::OnSysKeyDown(UINT key, UINT repeat, UINT flags)
{
    // The platform is told also of the key that opens the list: or it takes Alt, if that is let go
    // first, for Alt struck by itself, and its menu would close the list again.
    const WindowAlive alive(*this);
    CWnd::OnSysKeyDown(key, repeat, flags);
    if (!alive || key != VK_DOWN || (flags & AltDown) == 0 || (flags & WasDownBefore) != 0)
    {
        return; // held, it would flicker
    }
    if (m_expanded)
    {
        ListClosed(GetCurSel());
    }
    else
    {
        ToggleDropList();
    }
}

void CCustomDropListCombo::OnSysKeyUp(UINT key, UINT repeat, UINT flags)
{
    CWnd::OnSysKeyUp(key, repeat, flags);
}

// Focus and state -------------------------------------------------------------------------------

void CCustomDropListCombo::OnSetFocus(CWnd*)
{
    m_hasFocus = true;
    Repaint();
}

void CCustomDropListCombo::OnKillFocus(CWnd*)
{
    const WindowAlive alive(*this);
    m_hasFocus = false;
    m_closingKey = 0;
    ListClosed(GetCurSel());
    if (alive)
    {
        Repaint();
    }
}

BOOL CCustomDropListCombo::EnableWindow(int enable)
{
    return CWnd::EnableWindow(enable);
}

void CCustomDropListCombo::OnEnable(BOOL enable)
{
    const WindowAlive alive(*this);
    CWnd::OnEnable(enable);
    if (alive && !enable && m_expanded)
    {
        ListClosed(GetCurSel());
    }
    if (alive)
    {
        Repaint();
    }
}

void CCustomDropListCombo::OnShowWindow(BOOL show, UINT status)
{
    const WindowAlive alive(*this);
    CWnd::OnShowWindow(show, status);
    if (alive && !show && m_expanded)
    {
        ListClosed(GetCurSel());
    }
}
