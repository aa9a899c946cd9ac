// The selection: state changes, their notifications, ranges and branches.

#include "trees/TreeSelection.h"

#include "modes/WindowAlive.h"
#include "trees/DragImage.h"
#include "trees/TreeLook.h"

#include <GMSUtil.h>

#include <algorithm>

namespace trees {

namespace {

constexpr UINT Focus = TVIS_FOCUSED;
constexpr UINT Select = TVIS_SELECTED;

// From here on a change of many items is shown in one repaint.
constexpr size_t ManyItems = 16;

bool CaretMovesDeselect()
{
    static const bool vistaOrHigher = IsVistaOrHigher();
    return vistaOrHigher;
}

} // namespace

// Holds the platform's painting back while many items change, unless the host does so already.
class TreeSelection::BulkChange
{
public:
    BulkChange(TreeSelection& selection, size_t items)
        : m_selection(selection)
        , m_alive(selection.Window())
        , m_active(items >= ManyItems && !selection.m_bulk && selection.m_items.PaintsChanges())
    {
        if (m_active)
        {
            selection.m_bulk = true;
            selection.m_items.Ask(WM_SETREDRAW, FALSE);
        }
    }
    BulkChange(const BulkChange&) = delete;
    BulkChange& operator=(const BulkChange&) = delete;
    ~BulkChange()
    {
        if (!m_active || !m_alive)
        {
            return;
        }
        m_selection.m_bulk = false;
        if (m_selection.m_items.PaintsChanges())
        {
            m_selection.m_items.Ask(WM_SETREDRAW, TRUE);
            ::InvalidateRect(m_selection.Handle(), nullptr, TRUE);
        }
    }

private:
    TreeSelection& m_selection; // not touched unless the window is alive
    const WindowAlive m_alive;
    const bool m_active;
};

TreeSelection::TreeSelection(TreeOwner& owner)
    : m_owner(owner)
    , m_items(owner)
    , m_look(std::make_unique<TreeLook>(m_items, owner))
    , m_anchor(m_items)
{}

TreeSelection::~TreeSelection() = default;

void TreeSelection::SetMultiSelect(bool multi)
{
    if (m_multi && !multi && Handle() != nullptr)
    {
        // What a plain tree can show: its caret, selected.
        const WindowAlive alive(Window());
        const WatchedItem caret(m_items, m_items.Caret());
        SelectAllIgnore(nullptr, false, caret.Get());
        if (!alive)
        {
            return;
        }
        if (caret.Get() != nullptr)
        {
            m_items.Apply(caret.Get(), Select, Select);
        }
        m_anchor.Set(nullptr);
    }
    m_multi = multi;
}

// Notifications ---------------------------------------------------------------------------------

int TreeSelection::SendNotify(NMHDR* header)
{
    const HWND window = Handle();
    const HWND parent = window == nullptr ? nullptr : ::GetParent(window);
    if (header == nullptr || parent == nullptr)
    {
        return 0;
    }
    header->hwndFrom = window;
    header->idFrom = UINT_PTR(::GetDlgCtrlID(window));
    const WindowAlive alive(Window());
    const bool outer = m_emulated;
    m_emulated = true;
    const LRESULT answer =
        ::SendMessage(parent, WM_NOTIFY, header->idFrom, reinterpret_cast<LPARAM>(header));
    if (alive)
    {
        m_emulated = outer;
    }
    return int(answer);
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

// Takes the caret from an item that has it. False when that or everything went wrong.
bool TreeSelection::ClearFocus(const WatchedItem& item, bool wasSelected, UINT state, UINT& mask)
{
    const WindowAlive alive(Window());
    if (!SetCaret(nullptr) || !alive || item.Get() == nullptr)
    {
        return false;
    }
    // The platform has deselected the item with the caret.
    if ((mask & Select) == 0)
    {
        if (wasSelected)
        {
            m_items.Apply(item.Get(), Select, Select);
        }
    }
    else if ((state & Select) != 0)
    {
        m_items.Apply(item.Get(), Select, Select);
        mask &= ~Select;
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
        if (!alive)
        {
            return false;
        }
        if (caret.Get() != nullptr)
        {
            m_items.Apply(caret.Get(), Select, Select);
        }
        if (!m_bulk)
        {
            Window().UpdateWindow();
        }
        if (!alive || item.Get() == nullptr)
        {
            return false;
        }
    }
    if (!SetCaret(item.Get()) || !alive || item.Get() == nullptr)
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
            if (Announce(TVN_SELCHANGING, item.Get(), selecting) != 0 || !alive ||
                item.Get() == nullptr)
            {
                return FALSE;
            }
            m_items.Apply(item.Get(), state & Select, Select);
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
    if (CaretMovesDeselect() && wasSelected && previous.Get() != nullptr)
    {
        m_items.Apply(previous.Get(), Select, Select);
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
    return none ? SetCaret(nullptr)
                : SetItemState(item.Get(), Focus | Select, Focus | Select, true) != FALSE;
}

// Many items ------------------------------------------------------------------------------------

// Whether any of them took the change.
bool TreeSelection::ChangeEach(const std::vector<HTREEITEM>& items, bool select, bool notify)
{
    const WindowAlive alive(Window());
    const WatchedItems held(m_items, items);
    const BulkChange bulk(*this, items.size());
    bool changed = false;
    for (size_t index = 0; index < held.Size() && alive; ++index)
    {
        if (held[index] != nullptr &&
            SetItemState(held[index], select ? Select : 0, Select, notify))
        {
            changed = true;
        }
    }
    return changed;
}

namespace {

std::vector<HTREEITEM> Without(std::vector<HTREEITEM> items, HTREEITEM item)
{
    std::erase(items, item);
    return items;
}

} // namespace

void TreeSelection::SelectAll(bool select, bool notify)
{
    if (m_multi)
    {
        ChangeEach(select ? m_items.Unselected() : m_items.Selected(), select, notify);
    }
    else if (!select)
    {
        SetCaret(nullptr);
    }
}

void TreeSelection::SelectAllIgnore(HTREEITEM branch, bool select, HTREEITEM ignore)
{
    if (m_multi)
    {
        branch = TreeItems::Real(branch);
        ChangeEach(Without(select ? m_items.Unselected(branch) : m_items.Selected(branch), ignore),
                   select, true);
    }
}

bool TreeSelection::SelectChildren(HTREEITEM given, bool select, bool recurse)
{
    if (!m_multi)
    {
        return false;
    }
    const HTREEITEM item = TreeItems::Real(given);
    std::vector<HTREEITEM> items;
    if (recurse || !select)
    {
        items = Without(select ? m_items.Unselected(item) : m_items.Selected(item), item);
        if (!recurse)
        {
            std::erase_if(items, [&](HTREEITEM below) { return m_items.Parent(below) != item; });
        }
    }
    else
    {
        for (HTREEITEM child = item == nullptr ? m_items.Root() : m_items.Next(item, TVGN_CHILD);
             child != nullptr; child = m_items.Next(child, TVGN_NEXT))
        {
            if (!m_items.IsSelected(child))
            {
                items.push_back(child);
            }
        }
    }
    return ChangeEach(items, select, true);
}

void TreeSelection::SelectRange(HTREEITEM first, HTREEITEM last, bool only)
{
    // An end that a collapsed branch hides is where the user sees it: at the branch.
    first = m_items.Shown(TreeItems::Real(first));
    last = m_items.Shown(TreeItems::Real(last));
    first = first == nullptr ? last : first;
    last = last == nullptr ? first : last;
    if (!m_multi || first == nullptr)
    {
        return;
    }
    std::vector<HTREEITEM> before;
    std::vector<HTREEITEM> range;
    bool inside = false;
    for (HTREEITEM item = m_items.Root(); item != nullptr;
         item = m_items.Next(item, TVGN_NEXTVISIBLE))
    {
        const bool end = item == first || item == last;
        if (inside || end)
        {
            range.push_back(item);
            if (end && (inside || first == last))
            {
                break;
            }
            inside = true;
        }
        else if (only && m_items.HoldsSelected(item))
        {
            before.push_back(item);
        }
    }
    const WindowAlive alive(Window());
    const WatchedItems held(m_items, range);
    const BulkChange bulk(*this, before.size() + range.size() + m_items.SelectedCount());
    ChangeEach(before, false, false);
    if (!alive)
    {
        return;
    }
    ChangeEach(held.All(), true, false);
    if (!alive || !only)
    {
        return;
    }
    const std::unordered_set<HTREEITEM> inRange(held.All().begin(), held.All().end());
    std::vector<HTREEITEM> later = m_items.Selected();
    std::erase_if(later, [&](HTREEITEM item) { return inRange.count(item) != 0; });
    ChangeEach(later, false, false);
}

void TreeSelection::ListSelected(CTypedPtrList<CPtrList, HTREEITEM>& list)
{
    list.RemoveAll();
    for (const HTREEITEM item : m_items.Selected())
    {
        list.AddTail(item);
    }
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

void TreeSelection::InvalidateSelectedInSight()
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
        if (m_items.IsSelected(item))
        {
            ::InvalidateRect(Handle(), &rect, TRUE);
        }
    }
}

void TreeSelection::OnFocusChanged()
{
    InvalidateSelectedInSight();
    m_owner.DefaultOfCurrent();
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
    default:
        return false;
    }
}

// A closed branch hides no selection.
void TreeSelection::LeaveBranch(HTREEITEM item)
{
    const WindowAlive alive(Window());
    const WatchedItem held(m_items, item);
    if (m_multi && SelectChildren(item, false, true) && alive && held.Get() != nullptr &&
        !m_items.IsSelected(held.Get()))
    {
        SetCaret(nullptr);
    }
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
