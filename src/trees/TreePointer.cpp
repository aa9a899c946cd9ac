// The selection: what a press becomes, and the keys.

#include "trees/TreeSelection.h"

#include "modes/KeyState.h"
#include "modes/WindowAlive.h"
#include "trees/TreeLook.h"

#include <cstdlib>

namespace trees {

namespace {

constexpr UINT FocusAndSelect = TVIS_FOCUSED | TVIS_SELECTED;

// How long after the last of its pointer messages a press asks whether the button is still down.
constexpr DWORD PressWait = 250; // milliseconds

bool AnyButtonDown()
{
    return ::GetAsyncKeyState(VK_LBUTTON) < 0 || ::GetAsyncKeyState(VK_RBUTTON) < 0;
}

} // namespace

void TreeSelection::OnButtonDown(bool left, UINT flags, CPoint point)
{
    if (m_inLoop)
    {
        return; // the other button, while the first is still down
    }
    if (!m_multi)
    {
        m_owner.DefaultOfCurrent();
        return;
    }
    TVHITTESTINFO hit = {};
    hit.pt = point;
    const WindowAlive alive(Window());
    const auto item = HTREEITEM(m_items.Ask(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (!alive)
    {
        return; // for the width of a text the parent may be asked
    }
    const bool checks = left && (hit.flags & TVHT_ONITEMSTATEICON) != 0 &&
                        (Window().GetStyle() & TVS_CHECKBOXES) != 0;
    if ((hit.flags & (TVHT_ONITEMINDENT | TVHT_ONITEMBUTTON)) != 0 || checks)
    {
        m_owner.DefaultOfCurrent();
        return;
    }
    if (item == nullptr || (hit.flags & (TVHT_NOWHERE | TVHT_ONITEMINDENT | TVHT_ONITEMRIGHT)) != 0)
    {
        DoBanding(left, flags, point);
        return;
    }
    const WatchedItem held(m_items, item);
    DoPreSelection(item, left, flags);
    if (alive && m_multi && held.Get() != nullptr)
    {
        DoAction(item, left, flags, point);
    }
}

// What happens at once, before the press has become a click or a drag.
void TreeSelection::DoPreSelection(HTREEITEM given, bool left, UINT flags)
{
    const WindowAlive alive(Window());
    const WatchedItem item(m_items, TreeItems::Real(given));
    if (item.Get() == nullptr)
    {
        return;
    }
    const bool shift = (flags & MK_SHIFT) != 0;
    const bool control = (flags & MK_CONTROL) != 0;
    if (!shift)
    {
        if (left)
        {
            m_anchor.Set(nullptr);
        }
        else if (control)
        {
            m_anchor.Set(item.Get());
        }
        if (!control && !m_items.IsSelected(item.Get()))
        {
            const bool multi = m_multi;
            SelectAllIgnore(nullptr, false, item.Get());
            if (alive && m_multi == multi)
            {
                SetItemState(item.Get(), FocusAndSelect, FocusAndSelect, true);
            }
        }
        return;
    }
    if (!left)
    {
        return;
    }
    if (m_anchor.Get() == nullptr)
    {
        m_anchor.Set(m_items.Caret());
    }
    m_owner.SelectRange(m_anchor.Get(), item.Get(), !control);
    if (!alive)
    {
        return;
    }
    const WatchedItem anchor(m_items, m_anchor.Get());
    const bool wasSelected = m_items.IsSelected(anchor.Get());
    SetItemState(item.Get(), TVIS_FOCUSED, TVIS_FOCUSED, true);
    if (alive && anchor.Get() != item.Get())
    {
        GiveBack(anchor, wasSelected);
    }
}

// The loop --------------------------------------------------------------------------------------

// The next message for a press that goes on, not yet dispatched; ButtonUp and Moved are for the
// caller to tell apart by it. Lost also when WM_QUIT came, which stays pending.
TreeSelection::LoopEnd TreeSelection::NextOfPress(MSG& message)
{
    const WindowAlive alive(Window());
    const HWND window = Handle();
    while (alive && ::GetCapture() == window)
    {
        // A button-up that somebody else took must not keep the loop for ever.
        if (::GetTickCount() - m_pressSeen >= PressWait && !AnyButtonDown() &&
            !::PeekMessage(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_NOREMOVE))
        {
            return LoopEnd::Lost;
        }
        if (!::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, PressWait, QS_ALLINPUT);
            continue;
        }
        if (!alive)
        {
            // A message that somebody has sent was delivered first; this one is for others.
            ::TranslateMessage(&message);
            ::DispatchMessage(&message);
            break;
        }
        if (message.message == WM_QUIT)
        {
            ::PostQuitMessage(int(message.wParam));
            return LoopEnd::Lost;
        }
        if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST)
        {
            m_pressSeen = ::GetTickCount();
        }
        return message.message == WM_LBUTTONUP || message.message == WM_RBUTTONUP
                   ? LoopEnd::ButtonUp
                   : LoopEnd::Moved;
    }
    return LoopEnd::Lost;
}

// Dispatches messages until the press is a click (last is the button-up), a drag, or neither.
TreeSelection::LoopEnd TreeSelection::WaitForMove(MSG& last)
{
    const WindowAlive alive(Window());
    const CSize threshold = m_owner.GetDragThreshold();
    std::optional<CPoint> first;
    if (!alive || !BeginLoop())
    {
        return LoopEnd::Lost;
    }
    LoopEnd end = LoopEnd::Lost;
    while (alive)
    {
        end = NextOfPress(last);
        if (end != LoopEnd::Moved)
        {
            break;
        }
        ::TranslateMessage(&last);
        ::DispatchMessage(&last);
        if (alive && last.message == WM_MOUSEMOVE && last.hwnd == Handle())
        {
            const CPoint point(GET_X_LPARAM(last.lParam), GET_Y_LPARAM(last.lParam));
            if (!first)
            {
                first = point;
            }
            else if (std::abs(point.x - first->x) > threshold.cx ||
                     std::abs(point.y - first->y) > threshold.cy)
            {
                break;
            }
        }
    }
    if (!alive)
    {
        return LoopEnd::Lost;
    }
    EndLoop();
    return alive ? end : LoopEnd::Lost;
}

// False when the tree ended with it: whoever had the capture is told that it is taken.
bool TreeSelection::BeginLoop()
{
    const WindowAlive alive(Window());
    ::SetCapture(Handle());
    if (alive)
    {
        m_inLoop = true;
        m_pressSeen = ::GetTickCount();
    }
    return bool(alive);
}

void TreeSelection::EndLoop()
{
    m_inLoop = false;
    if (::GetCapture() == Handle())
    {
        ::ReleaseCapture();
    }
}

void TreeSelection::DoAction(HTREEITEM given, bool left, UINT flags, CPoint point)
{
    const WindowAlive alive(Window());
    const WatchedItem item(m_items, TreeItems::Real(given));
    if (item.Get() == nullptr || m_inLoop)
    {
        return;
    }
    MSG last = {};
    const bool multi = m_multi;
    const LoopEnd end = WaitForMove(last);
    if (!alive || m_multi != multi || end == LoopEnd::Lost)
    {
        return;
    }
    if (end == LoopEnd::Moved)
    {
        BeginDrag(item, left, point);
        return;
    }
    // Of an item that went while the finger was down nothing is selected, nor deselected.
    if (left && (flags & MK_SHIFT) == 0 && item.Get() != nullptr)
    {
        Click(item, flags);
    }
    if (alive)
    {
        TellClick(item, left, point, last);
    }
}

void TreeSelection::Click(const WatchedItem& item, UINT flags)
{
    const WindowAlive alive(Window());
    const bool multi = m_multi;
    UINT state = FocusAndSelect;
    if ((flags & MK_CONTROL) == 0)
    {
        SelectAllIgnore(nullptr, false, item.Get());
    }
    else if (m_items.IsSelected(item.Get()) || !m_owner.CanCtrlSelectItem(item.Get()))
    {
        state = TVIS_FOCUSED;
    }
    if (!alive || m_multi != multi || item.Get() == nullptr)
    {
        return;
    }
    const WatchedItem caret(m_items, m_items.Caret());
    const bool wasSelected = m_items.IsSelected(caret.Get());
    const bool other = caret.Get() != item.Get();
    SetItemState(item.Get(), state, FocusAndSelect, true);
    if (alive && other)
    {
        GiveBack(caret, wasSelected);
    }
}

void TreeSelection::TellClick(const WatchedItem& item, bool left, CPoint point, const MSG& up)
{
    const WindowAlive alive(Window());
    const HWND window = Handle();
    if (::GetFocus() != window && !TakeKeyboard())
    {
        return;
    }
    NMTREEVIEW notify = {};
    notify.hdr.code = left ? NM_CLICK : NM_RCLICK;
    if (item.Get() != nullptr)
    {
        notify.itemNew.mask = TVIF_HANDLE | TVIF_PARAM;
        notify.itemNew.hItem = item.Get();
        notify.itemNew.lParam = m_items.Data(item.Get());
    }
    notify.ptDrag = point;
    SendNotify(&notify.hdr);
    if (!alive)
    {
        return;
    }
    m_endsClick = true;
    ::DispatchMessage(&up);
    if (!alive)
    {
        return;
    }
    m_endsClick = false;
    if (!left)
    {
        ::ClientToScreen(window, &point);
        ::SendMessage(window, WM_CONTEXTMENU, WPARAM(window), MAKELPARAM(point.x, point.y));
    }
}

void TreeSelection::BeginDrag(const WatchedItem& item, bool left, CPoint point)
{
    const WindowAlive alive(Window());
    if (item.Get() == nullptr || !m_owner.CanCtrlSelectItem(item.Get()) || !alive ||
        item.Get() == nullptr)
    {
        return;
    }
    const bool multi = m_multi;
    SetItemState(item.Get(), FocusAndSelect, FocusAndSelect, true);
    if (!alive || m_multi != multi || item.Get() == nullptr ||
        (Window().GetStyle() & TVS_DISABLEDRAGDROP) != 0)
    {
        return;
    }
    NMTREEVIEW notify = {};
    notify.hdr.code = left ? TVN_BEGINDRAG : TVN_BEGINRDRAG;
    notify.itemNew.mask = TVIF_HANDLE | TVIF_PARAM;
    notify.itemNew.hItem = item.Get();
    notify.itemNew.lParam = m_items.Data(item.Get());
    notify.ptDrag = point;
    SendNotify(&notify.hdr);
}

// Keys ------------------------------------------------------------------------------------------

void TreeSelection::OnKeyDown(UINT key)
{
    const WindowAlive alive(Window());
    if (key == VK_ESCAPE && ::GetCapture() == Handle())
    {
        ::ReleaseCapture();
        if (!alive)
        {
            return;
        }
    }
    const bool shift = IsKeyDown(VK_SHIFT);
    const bool control = IsKeyDown(VK_CONTROL);
    if (m_multi && key == VK_SPACE && control && !shift)
    {
        ToggleCaret();
        return;
    }
    if (!m_multi || (key != VK_UP && key != VK_DOWN))
    {
        m_owner.DefaultOfCurrent();
        return;
    }
    const WatchedItem caret(m_items, m_items.Caret());
    if (m_anchor.Get() == nullptr)
    {
        m_anchor.Set(caret.Get());
    }
    if (!shift && !control)
    {
        m_anchor.Set(nullptr);
        m_owner.SelectAll(false, true);
        if (alive)
        {
            m_owner.DefaultOfCurrent();
        }
        return;
    }
    MoveArrow(caret, key == VK_DOWN, shift);
}

// What a click with Ctrl does, for the item that the arrows with Ctrl have reached. The platform
// would take the key for a check, so the parent is told of it from here.
void TreeSelection::ToggleCaret()
{
    const WindowAlive alive(Window());
    const WatchedItem caret(m_items, m_items.Caret());
    NMTVKEYDOWN told = {};
    told.hdr.code = TVN_KEYDOWN;
    told.wVKey = VK_SPACE;
    SendNotify(&told.hdr);
    if (alive && caret.Get() != nullptr)
    {
        m_anchor.Set(nullptr);
        Click(caret, MK_CONTROL);
    }
}

void TreeSelection::MoveArrow(const WatchedItem& caret, bool down, bool shift)
{
    const WindowAlive alive(Window());
    const WatchedItem next(
        m_items, caret.Get() == nullptr
                     ? nullptr
                     : m_items.Next(caret.Get(), down ? TVGN_NEXTVISIBLE : TVGN_PREVIOUSVISIBLE));
    const bool caretWasSelected = m_items.IsSelected(caret.Get());
    const bool nextWasSelected = m_items.IsSelected(next.Get());
    m_owner.DefaultOfCurrent();
    if (!alive || caret.Get() == nullptr)
    {
        return;
    }
    const WatchedItem target(m_items, next.Get() != nullptr ? next.Get() : caret.Get());
    if (shift)
    {
        m_owner.SelectRange(m_anchor.Get(), target.Get(), true);
    }
    else
    {
        // Where the platform has moved its caret by itself, it has selected and deselected.
        if (next.Get() != nullptr && m_items.Caret() == next.Get())
        {
            Put(next, nextWasSelected);
            if (!alive)
            {
                return;
            }
        }
        SetItemState(target.Get(), TVIS_FOCUSED, TVIS_FOCUSED, true);
        if (alive && caret.Get() != m_items.Caret())
        {
            Put(caret, caretWasSelected);
        }
    }
    if (alive)
    {
        Announce(TVN_SELCHANGED, nullptr, true);
    }
}

} // namespace trees
