// The selection: changes of many items at once, ranges and branches.

#include "trees/TreeSelection.h"

#include "modes/WindowAlive.h"
#include "trees/TreeLook.h"

#include <algorithm>

namespace trees {

namespace {

constexpr UINT Select = TVIS_SELECTED;

// From here on a change of many items is shown in one repaint.
constexpr size_t ManyItems = 16;

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

// Whether any of them took the change. The parent may make it a tree of one selection on the way.
bool TreeSelection::ChangeEach(const std::vector<HTREEITEM>& items, bool select, bool notify)
{
    const WindowAlive alive(Window());
    const WatchedItems held(m_items, items);
    const BulkChange bulk(*this, items.size());
    const bool multi = m_multi;
    bool changed = false;
    for (size_t index = 0; index < held.Size() && alive && m_multi == multi; ++index)
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
            if (!m_items.IsSelected(child) && !m_items.IsGoing(child))
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
            if (!m_items.IsGoing(item))
            {
                range.push_back(item);
            }
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
    const WatchedItems asked(m_items, before);
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
    // The parent is asked once for each item, also where it has refused before the range.
    std::unordered_set<HTREEITEM> done(held.All().begin(), held.All().end());
    done.insert(asked.All().begin(), asked.All().end());
    std::vector<HTREEITEM> later = m_items.Selected();
    std::erase_if(later, [&](HTREEITEM item) { return done.count(item) != 0; });
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

} // namespace trees
