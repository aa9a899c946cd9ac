// The selection: the state of one item, its notifications, and what is in sight.

#include "trees/TreeSelection.h"

#include "modes/Meanwhile.h"
#include "modes/TakenOver.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"
#include "trees/DragImage.h"
#include "trees/TreeLook.h"

#include <GMSUtil.h>

#include <algorithm>

namespace trees {

namespace {

constexpr UINT Focus = TVIS_FOCUSED;
constexpr UINT Select = TVIS_SELECTED;

bool CaretMovesDeselect()
{
    static const bool vistaOrHigher = IsVistaOrHigher();
    return vistaOrHigher;
}

} // namespace

TreeSelection::TreeSelection(TreeOwner& owner)
    : m_owner(owner)
    , m_items(owner, [this](UINT message, WPARAM wParam,
                            LPARAM lParam) { Native(message, wParam, lParam); })
    , m_look(std::make_unique<TreeLook>(m_items, owner))
    , m_anchor(m_items)
{}

TreeSelection::~TreeSelection() = default;

// What belongs to one window ends with it: the object may get another one. The loops and calls that
// are still on the stack find their window gone and touch nothing here.
void TreeSelection::Reset()
{
    m_items.Reset();
    m_emulated = false;
    m_bulk = false;
    m_scrollTimer = 0;
    m_scrollDirection = 0;
    m_inLoop = false;
    m_endsClick = false;
    m_band = nullptr;
}

void TreeSelection::BeginWindow()
{
    Reset();
    if (m_laidOut != Handle())
    {
        m_look->Reset();
        m_laidOut = Handle();
    }
    ShowTakenOver(Window());
}

void TreeSelection::SetMultiSelect(bool multi)
{
    if (m_multi && !multi && Handle() != nullptr)
    {
        const WindowAlive alive(Window());
        if (m_inLoop && ::GetCapture() == Handle())
        {
            ::ReleaseCapture(); // what is pressed becomes nothing of many
        }
        if (!alive)
        {
            return;
        }
        // What a plain tree can show: its caret, selected.
        const WatchedItem caret(m_items, m_items.Caret());
        SelectAllIgnore(nullptr, false, caret.Get());
        if (!alive)
        {
            return;
        }
        Put(caret, true);
        if (!alive)
        {
            return;
        }
        m_anchor.Set(nullptr);
    }
    m_multi = multi;
}

// Notifications ---------------------------------------------------------------------------------

int TreeSelection::SendNotify(NMHDR* header)
{
    const HWND window = Handle();
    if (header == nullptr || window == nullptr || ::GetParent(window) == nullptr)
    {
        return 0;
    }
    const Meanwhile emulated(Window(), m_emulated);
    return int(TellNotify(window, *header));
}

// Asks (TVN_SELCHANGING) or tells (TVN_SELCHANGED) that an item is being selected or deselected.
int TreeSelection::Announce(UINT code, HTREEITEM item, bool selecting)
{
    NMTREEVIEW notify = {};
    notify.hdr.code = code;
    if (item != nullptr)
    {
        TVITEM& side = selecting ? notify.itemNew : notify.itemOld;
        side.mask = TVIF_HANDLE | TVIF_PARAM;
        side.hItem = item;
        side.lParam = m_items.Data(item);
    }
    return SendNotify(&notify.hdr);
}

// One item --------------------------------------------------------------------------------------

// The platform asks and tells the parent by itself. False when the parent refused.
bool TreeSelection::SetCaret(HTREEITEM item)
{
    const WindowAlive alive(Window());
    Native(TVM_SELECTITEM, TVGN_CARET, LPARAM(item));
    return alive && m_items.Caret() == item;
}

// Selects or deselects an item without asking, or being told of, anything here. False when item or
// tree did not survive it: the platform may tell the parent.
bool TreeSelection::Put(const WatchedItem& item, bool selected)
{
    const WindowAlive alive(Window());
    if (item.Get() != nullptr)
    {
        m_items.Apply(item.Get(), selected ? Select : 0, Select);
    }
    // Where the host has made it a tree of one selection meanwhile, that is the caret.
    if (alive && selected && !m_multi && item.Get() != nullptr && item.Get() != m_items.Caret())
    {
        m_items.Apply(item.Get(), 0, Select);
    }
    return alive && item.Get() != nullptr;
}

// Takes the caret from an item that has it. False when the item did not survive it.
bool TreeSelection::ClearFocus(const WatchedItem& item, bool wasSelected, UINT state, UINT& mask)
{
    const WindowAlive alive(Window());
    SetCaret(nullptr); // the parent may refuse it; what else is asked for is done all the same
    if (!alive || item.Get() == nullptr)
    {
        return false;
    }
    // The platform has deselected the item with the caret.
    if ((mask & Select) == 0)
    {
        return !wasSelected || Put(item, true);
    }
    if ((state & Select) != 0)
    {
        mask &= ~Select;
        return Put(item, true);
    }
    return true;
}

// Gives the caret to an item that has it not; the platform selects the item with it.
bool TreeSelection::TakeFocus(const WatchedItem& item, bool wasSelected, UINT& state, UINT& mask)
{
    const WindowAlive alive(Window());
    const WatchedItem caret(m_items, m_items.Caret());
    if (m_items.IsSelected(caret.Get()))
    {
        SetCaret(nullptr);
        if (alive && !m_multi) // the host has made it a tree of one selection
        {
            SetCaret(item.Get());
            return false;
        }
        if (!alive)
        {
            return false;
        }
        Put(caret, true);
        if (alive && !m_bulk)
        {
            Window().UpdateWindow();
        }
        if (!alive || item.Get() == nullptr)
        {
            return false;
        }
    }
    if (!SetCaret(item.Get()) || !alive || !m_multi || item.Get() == nullptr)
    {
        return false;
    }
    if ((mask & Select) == 0)
    {
        if (!wasSelected)
        {
            mask |= Select;
            state &= ~Select;
        }
    }
    else if ((state & Select) != 0)
    {
        mask &= ~Select;
    }
    return true;
}

int TreeSelection::SetItemState(HTREEITEM given, UINT state, UINT mask, bool notify)
{
    const WatchedItem item(m_items, TreeItems::Real(given));
    if (item.Get() == nullptr || Handle() == nullptr)
    {
        return FALSE;
    }
    const WindowAlive alive(Window());
    if (m_multi && (mask & (Focus | Select)) != 0)
    {
        const bool isCaret = (mask & Focus) != 0 && item.Get() == m_items.Caret();
        const bool wasSelected = (mask & Focus) != 0 && m_items.IsSelected(item.Get());
        if ((mask & Focus) != 0 && (state & Focus) == 0 && isCaret)
        {
            if (!ClearFocus(item, wasSelected, state, mask))
            {
                return FALSE;
            }
        }
        else if ((mask & state & Focus) != 0 && !isCaret)
        {
            if (!TakeFocus(item, wasSelected, state, mask))
            {
                return FALSE;
            }
        }
        mask &= ~Focus;
        if ((mask & Select) != 0)
        {
            const bool selecting = (state & Select) != 0;
            if (Announce(TVN_SELCHANGING, item.Get(), selecting) != 0 || !alive || !m_multi ||
                item.Get() == nullptr)
            {
                return FALSE;
            }
            if (!Put(item, selecting))
            {
                return TRUE; // nothing is left to tell of
            }
            if (m_items.IsSelected(item.Get()) != selecting)
            {
                return FALSE; // refused when the platform asked
            }
            if (notify)
            {
                Announce(TVN_SELCHANGED, item.Get(), selecting);
                if (!alive || item.Get() == nullptr)
                {
                    return TRUE; // it was done; the rest has nothing left to be done to
                }
            }
            mask &= ~Select;
        }
        if (mask == 0)
        {
            return TRUE;
        }
    }
    TVITEM change = {};
    change.mask = TVIF_HANDLE | TVIF_STATE;
    change.hItem = item.Get();
    change.state = state;
    change.stateMask = mask;
    return int(Native(TVM_SETITEM, 0, reinterpret_cast<LPARAM>(&change)));
}

// Gives an item that the caret has left its selection back: the platform takes it away from there
// on the systems where this is needed.
void TreeSelection::GiveBack(const WatchedItem& previous, bool wasSelected)
{
    if (CaretMovesDeselect() && wasSelected && m_multi)
    {
        Put(previous, true);
    }
}

void TreeSelection::FocusItem(HTREEITEM given)
{
    const HTREEITEM item = TreeItems::Real(given);
    const WindowAlive alive(Window());
    const WatchedItem caret(m_items, m_items.Caret());
    if (item == nullptr)
    {
        SetItemState(caret.Get(), 0, Focus, true);
        return;
    }
    const bool wasSelected = m_items.IsSelected(caret.Get());
    const bool other = caret.Get() != item;
    SetItemState(item, Focus, Focus, true);
    if (alive && other)
    {
        GiveBack(caret, wasSelected);
    }
}

bool TreeSelection::SelectItem(HTREEITEM given)
{
    const WindowAlive alive(Window());
    const WatchedItem item(m_items, TreeItems::Real(given));
    if (!m_multi)
    {
        return SetCaret(item.Get());
    }
    const bool none = item.Get() == nullptr;
    m_anchor.Set(nullptr);
    SelectAllIgnore(nullptr, false, item.Get());
    if (!alive)
    {
        return false;
    }
    return none || !m_multi
               ? SetCaret(item.Get())
               : SetItemState(item.Get(), Focus | Select, Focus | Select, true) != FALSE;
}

// In sight --------------------------------------------------------------------------------------

void TreeSelection::InvalidateItem(HTREEITEM item, bool erase)
{
    const CRect rect = m_items.Rect(TreeItems::Real(item), false);
    if (!rect.IsRectEmpty())
    {
        ::InvalidateRect(Handle(), &rect, erase);
    }
}

// What is drawn otherwise with and without the keyboard focus.
void TreeSelection::InvalidateStatesInSight()
{
    CRect client;
    Window().GetClientRect(&client);
    for (HTREEITEM item = m_items.Next(nullptr, TVGN_FIRSTVISIBLE); item != nullptr;
         item = m_items.Next(item, TVGN_NEXTVISIBLE))
    {
        const CRect rect = m_items.Rect(item, false);
        if (rect.top >= client.bottom)
        {
            break;
        }
        if (m_items.State(item, Focus | Select) != 0)
        {
            ::InvalidateRect(Handle(), &rect, TRUE);
        }
    }
}

// The keyboard focus ----------------------------------------------------------------------------

// Without a caret the platform gives its own to the first item in sight with the focus, selects
// that, and tells so. Here the caret comes alone; as a rule only where something is selected.
template <class Take> void TreeSelection::TakeWithoutSelecting(const Take& take, bool always)
{
    const WindowAlive alive(Window());
    const WatchedItem first(
        m_items, m_items.Caret() != nullptr ? nullptr : m_items.Next(nullptr, TVGN_FIRSTVISIBLE));
    const bool keeps = m_multi && first.Get() != nullptr && !m_items.IsSelected(first.Get()) &&
                       (always || m_items.SelectedCount() > 0);
    take();
    // The parent was told that it is selected, and may have seen to the selection by itself.
    if (keeps && alive && m_multi && first.Get() != nullptr && first.Get() == m_items.Caret() &&
        m_items.IsSelected(first.Get()) && (always || m_items.SelectedCount() > 1) &&
        Put(first, false))
    {
        Announce(TVN_SELCHANGED, first.Get(), false);
    }
}

// Takes the keyboard focus and leaves the selection as it is. False when the window went by that.
bool TreeSelection::TakeKeyboard()
{
    const WindowAlive alive(Window());
    TakeWithoutSelecting([this] { ::SetFocus(Handle()); }, true);
    return bool(alive);
}

void TreeSelection::OnFocusChanged()
{
    InvalidateStatesInSight();
    TakeWithoutSelecting([this] { m_owner.DefaultOfCurrent(); }, false);
}

CImageList* TreeSelection::CreateDragImage()
{
    return ComposeDragImage(m_items, *m_look, Window());
}

// Whether an action of TVM_EXPAND or its notification closes the branch.
bool TreeSelection::Closes(HTREEITEM item, UINT action) const
{
    switch (action & TVE_TOGGLE)
    {
    case TVE_COLLAPSE:
        return true;
    case TVE_TOGGLE:
        return m_items.State(item, TVIS_EXPANDED) != 0;
    case TVE_EXPAND:
        return false;
    default:
        return (action & TVE_COLLAPSERESET) != 0;
    }
}

// A closed branch hides no selection. The caret goes with it, but not what is selected elsewhere.
void TreeSelection::LeaveBranch(HTREEITEM item)
{
    const WindowAlive alive(Window());
    const WatchedItem held(m_items, item);
    bool leaves = m_multi && SelectChildren(item, false, true);
    if (!alive || held.Get() == nullptr || m_items.IsSelected(held.Get()))
    {
        return;
    }
    if (const HTREEITEM below = m_items.Caret(); m_multi && !leaves && below != item &&
                                                 !m_items.IsSelected(below) &&
                                                 m_items.IsWithin(below, item))
    {
        // The platform would select the branch with the caret, and tell nobody.
        SetItemState(item, Focus, Focus, true);
        leaves = alive && held.Get() != nullptr && m_items.Caret() == below; // refused
    }
    if (leaves && m_multi)
    {
        const WatchedItem caret(m_items, m_items.Caret());
        const bool elsewhere =
            m_items.IsSelected(caret.Get()) && !m_items.IsWithin(caret.Get(), item);
        SetCaret(nullptr);
        if (alive && elsewhere)
        {
            Put(caret, true);
        }
    }
}

// With an item that has the caret, or hides it, the platform makes a neighbour the caret and
// selects that. Where more is selected the caret comes alone: whoever deletes one by one what is
// selected would delete others.
LRESULT TreeSelection::DeleteItem(HTREEITEM item)
{
    const WindowAlive alive(Window());
    if (!m_items.CancelEditIn(TreeItems::Real(item)))
    {
        return TRUE; // the parent has deleted it itself
    }
    WatchedItems heirs(m_items, {});
    if (m_multi && m_items.IsWithin(m_items.Caret(), TreeItems::Real(item)))
    {
        for (const UINT code : {TVGN_NEXT, TVGN_PREVIOUS, TVGN_PARENT})
        {
            const HTREEITEM heir = m_items.Next(item, code);
            heirs.Add(m_items.IsSelected(heir) ? nullptr : heir);
        }
    }
    const LRESULT result = m_items.Native(TVM_DELETEITEM, 0, LPARAM(item));
    if (!alive || !m_multi || heirs.Size() == 0)
    {
        return result;
    }
    const WatchedItem caret(m_items, m_items.Caret());
    if (caret.Get() != nullptr && std::ranges::count(heirs.All(), caret.Get()) != 0 &&
        m_items.IsSelected(caret.Get()) && m_items.SelectedCount() > 1 && Put(caret, false))
    {
        Announce(TVN_SELCHANGED, caret.Get(), false);
    }
    return result;
}

void TreeSelection::OnItemExpanding(const NMHDR* header)
{
    const auto& notify = *reinterpret_cast<const NMTREEVIEW*>(header);
    const HTREEITEM item = notify.itemNew.hItem;
    if (item != nullptr && Closes(item, notify.action))
    {
        LeaveBranch(item);
    }
}

} // namespace trees
