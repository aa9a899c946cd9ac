#include "trees/TreeAccess.h"

#include "access/Rows.h"
#include "modes/WindowAlive.h"

namespace {

constexpr UINT CheckedImage = 2; // of a tree with check boxes

} // namespace

namespace trees {

using access::Give;
using access::GiveNothing;

// Items -----------------------------------------------------------------------------------------

bool TreeAccess::PlatformNumbersItems() const
{
    const HTREEITEM root = m_items.Root();
    return root != nullptr && m_items.Ask(TVM_MAPHTREEITEMTOACCID, WPARAM(root)) != 0;
}

bool TreeAccess::IsForPlatform(const VARIANT& child) const
{
    return access::IsSelf(child) || PlatformNumbersItems();
}

HTREEITEM TreeAccess::ItemOf(const VARIANT& child) const
{
    const auto count = long(m_items.Ask(TVM_GETCOUNT));
    if (child.vt != VT_I4 || child.lVal <= 0 || child.lVal > count)
    {
        return nullptr;
    }
    HTREEITEM item = m_items.Root();
    for (long id = 1; id < child.lVal && item != nullptr; ++id)
    {
        item = m_items.NextInBranch(item, nullptr);
    }
    return item;
}

long TreeAccess::IdOf(HTREEITEM item) const
{
    long id = 1;
    for (HTREEITEM other = m_items.Root(); other != nullptr; ++id)
    {
        if (other == item)
        {
            return id;
        }
        other = m_items.NextInBranch(other, nullptr);
    }
    return CHILDID_SELF;
}

bool TreeAccess::HasChildren(HTREEITEM item) const
{
    TVITEM asked = {};
    asked.mask = TVIF_CHILDREN;
    asked.hItem = item;
    return m_items.Ask(TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&asked)) != 0 &&
           asked.cChildren != 0;
}

// Answers ---------------------------------------------------------------------------------------

HRESULT TreeAccess::Name(HTREEITEM item, BSTR* name) const
{
    constexpr int longest = 512;
    WCHAR text[longest] = {};
    TVITEMW asked = {};
    asked.mask = TVIF_TEXT;
    asked.hItem = item;
    asked.pszText = text;
    asked.cchTextMax = longest;
    m_items.Ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    *name = ::SysAllocString(asked.pszText == nullptr ? L"" : asked.pszText);
    return *name == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT TreeAccess::Level(HTREEITEM item, BSTR* value) const
{
    int level = 0;
    while ((item = m_items.Parent(item)) != nullptr)
    {
        ++level;
    }
    CString text;
    text.Format("%d", level);
    return Give(*value, text);
}

HRESULT TreeAccess::State(HTREEITEM item, VARIANT* state) const
{
    const WindowAlive alive(m_window);
    const bool branch = HasChildren(item); // its owner may be asked
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    CRect client;
    m_window.GetClientRect(&client);
    long more = STATE_SYSTEM_SELECTABLE;
    if (branch)
    {
        const bool open = m_items.State(item, TVIS_EXPANDED) != 0;
        more |= open ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    }
    if ((m_window.GetStyle() & TVS_CHECKBOXES) != 0 &&
        m_items.State(item, TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(CheckedImage))
    {
        more |= STATE_SYSTEM_CHECKED;
    }
    if (m_selection.IsMultiSelect())
    {
        more |= STATE_SYSTEM_MULTISELECTABLE | STATE_SYSTEM_EXTSELECTABLE;
    }
    return access::GiveState(
        *state, m_window,
        {.selected = m_items.IsSelected(item),
         .caret = item == m_items.Caret(),
         .inSight = CRect().IntersectRect(m_items.Rect(item, false), client) != FALSE,
         .more = more});
}

HRESULT TreeAccess::Role(HTREEITEM, VARIANT* role) const
{
    return Give(*role, ROLE_SYSTEM_OUTLINEITEM);
}

HRESULT TreeAccess::Count(long* count) const
{
    *count = long(m_items.Ask(TVM_GETCOUNT));
    return S_OK;
}

HRESULT TreeAccess::Child(const VARIANT& child, IDispatch** object) const
{
    *object = nullptr;
    return ItemOf(child) == nullptr ? E_INVALIDARG : S_FALSE;
}

HRESULT TreeAccess::Focus(VARIANT* child) const
{
    return Give(*child, IdOf(m_items.Caret()));
}

HRESULT TreeAccess::Selection(VARIANT* children) const
{
    std::vector<int> rows;
    int row = 0;
    HTREEITEM item = m_items.SelectedCount() > 0 ? m_items.Root() : nullptr;
    for (; item != nullptr; item = m_items.NextInBranch(item, nullptr), ++row)
    {
        if (m_items.HoldsSelected(item))
        {
            rows.push_back(row);
        }
    }
    return access::GiveRows(*children, rows);
}

HRESULT TreeAccess::Location(HTREEITEM item, long* left, long* top, long* width, long* height) const
{
    const CRect place = m_items.Rect(item, true);
    const HRESULT given = access::GivePlace(m_window, place, left, top, width, height);
    return place.IsRectEmpty() ? S_FALSE : given; // hidden in a closed branch
}

HRESULT TreeAccess::HitTest(const CPoint& screen, VARIANT* child) const
{
    CPoint point = screen;
    if (!access::IsInClient(m_window, point))
    {
        return GiveNothing(*child);
    }
    TVHITTESTINFO hit = {};
    hit.pt = point;
    const auto item = HTREEITEM(m_items.Ask(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return Give(*child, item == nullptr ? CHILDID_SELF : IdOf(item));
}

// A step from an item to another, or from the tree to its first or last branch.
HRESULT TreeAccess::Navigate(long direction, const VARIANT& start, VARIANT* end) const
{
    const bool fromTree = access::IsSelf(start);
    const HTREEITEM from = fromTree ? nullptr : ItemOf(start);
    if (!fromTree && from == nullptr)
    {
        return E_INVALIDARG;
    }
    HTREEITEM to = nullptr;
    switch (direction)
    {
    case NAVDIR_FIRSTCHILD:
    case NAVDIR_LASTCHILD:
        to = fromTree ? m_items.Root() : m_items.Next(from, TVGN_CHILD);
        while (direction == NAVDIR_LASTCHILD && to != nullptr &&
               m_items.Next(to, TVGN_NEXT) != nullptr)
        {
            to = m_items.Next(to, TVGN_NEXT);
        }
        break;
    case NAVDIR_NEXT:
        to = m_items.Next(from, TVGN_NEXT);
        break;
    case NAVDIR_PREVIOUS:
        to = m_items.Next(from, TVGN_PREVIOUS);
        break;
    case NAVDIR_DOWN:
        to = m_items.Next(from, TVGN_NEXTVISIBLE);
        break;
    case NAVDIR_UP:
        to = m_items.Next(from, TVGN_PREVIOUSVISIBLE);
        break;
    case NAVDIR_LEFT:
        to = m_items.Parent(from);
        break;
    default:
        break;
    }
    return to == nullptr ? GiveNothing(*end) : Give(*end, IdOf(to));
}

// Working items ---------------------------------------------------------------------------------

HRESULT TreeAccess::Select(long flags, const VARIANT& child) const
{
    const HTREEITEM item = ItemOf(child);
    if (item == nullptr)
    {
        return E_INVALIDARG;
    }
    const bool many = m_selection.IsMultiSelect();
    if (const HRESULT kept = access::KeptFromSelecting(m_window, flags, many); FAILED(kept))
    {
        return kept;
    }
    const WindowAlive alive(m_window);
    const WatchedItem watched(m_items, item);
    if ((flags & SELFLAG_TAKEFOCUS) != 0)
    {
        m_window.SetFocus();
        if (alive && watched.Get() != nullptr && m_selection.IsMultiSelect())
        {
            m_selection.FocusItem(watched.Get());
        }
    }
    const bool selects = (flags & ~long(SELFLAG_TAKEFOCUS)) != 0;
    const bool alone =
        (flags & SELFLAG_TAKESELECTION) != 0 || (!selects && !m_selection.IsMultiSelect());
    if (alive && watched.Get() != nullptr && alone)
    {
        m_selection.SelectItem(watched.Get());
    }
    else if (alive && watched.Get() != nullptr && selects)
    {
        const bool removes = (flags & SELFLAG_REMOVESELECTION) != 0;
        m_selection.SetItemState(watched.Get(), removes ? 0U : UINT(TVIS_SELECTED), TVIS_SELECTED,
                                 true);
    }
    return alive ? S_OK : CO_E_OBJNOTCONNECTED;
}

HRESULT TreeAccess::Action(HTREEITEM item, BSTR* action) const
{
    const WindowAlive alive(m_window);
    const bool branch = HasChildren(item);
    if (!alive || !branch)
    {
        *action = nullptr;
        return alive ? S_FALSE : CO_E_OBJNOTCONNECTED;
    }
    return Give(*action, m_items.State(item, TVIS_EXPANDED) != 0 ? "Collapse" : "Expand");
}

HRESULT TreeAccess::DoAction(HTREEITEM item) const
{
    const WindowAlive alive(m_window);
    const bool branch = HasChildren(item);
    if (!alive || !branch || IsOutOfReach(m_window.GetSafeHwnd()))
    {
        return alive ? DISP_E_MEMBERNOTFOUND : CO_E_OBJNOTCONNECTED;
    }
    m_window.SendMessage(TVM_EXPAND, TVE_TOGGLE, LPARAM(item));
    return S_OK;
}

} // namespace trees
