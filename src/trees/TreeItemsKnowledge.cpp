// What is known of a tree's items without asking the platform: which are selected, and which go.

#include "trees/TreeItems.h"

#include "modes/WindowAlive.h"

#include <algorithm>

namespace trees {

void TreeItems::Learn()
{
    if (m_known && m_owner.Window().GetSafeHwnd() == nullptr)
    {
        Reset(); // the window was let go without ending
    }
    if (m_known)
    {
        FollowCaret();
        return;
    }
    // A tree that existed before us may have anything selected.
    m_selected.clear();
    for (HTREEITEM item = Root(); item != nullptr; item = NextInBranch(item, nullptr))
    {
        if (IsSelected(item))
        {
            m_selected.insert(item);
        }
    }
    m_caret = Caret();
    m_known = m_owner.Window().GetSafeHwnd() != nullptr;
}

void TreeItems::Refresh(HTREEITEM item)
{
    Hold(item, IsSelected(item));
}

void TreeItems::Hold(HTREEITEM item, bool selected)
{
    if (selected)
    {
        m_selected.insert(item);
    }
    else
    {
        m_selected.erase(item);
    }
}

// The platform selects and deselects by itself only where its caret comes and goes.
void TreeItems::FollowCaret()
{
    if (!m_known)
    {
        return;
    }
    HTREEITEM caret = Caret();
    if (IsGoing(caret))
    {
        caret = nullptr; // about to be deleted, and not to be asked about afterwards
    }
    if (caret != m_caret)
    {
        const HTREEITEM left = m_caret;
        m_caret = caret;
        if (left != nullptr)
        {
            Refresh(left);
        }
    }
    if (caret != nullptr)
    {
        Refresh(caret);
    }
}

size_t TreeItems::SelectedCount()
{
    Learn();
    return m_selected.size();
}

std::vector<HTREEITEM> TreeItems::Selected(HTREEITEM branch)
{
    Learn();
    std::vector<HTREEITEM> found;
    if (branch == nullptr)
    {
        found.assign(m_selected.begin(), m_selected.end());
    }
    else
    {
        for (const HTREEITEM item : m_selected)
        {
            if (IsWithin(item, branch))
            {
                found.push_back(item);
            }
        }
    }
    if (found.size() > 1)
    {
        // Their order is known to the tree alone.
        const size_t wanted = found.size();
        found.clear();
        for (HTREEITEM item = branch == nullptr ? Root() : branch;
             item != nullptr && found.size() < wanted; item = NextInBranch(item, branch))
        {
            if (m_selected.count(item) != 0)
            {
                found.push_back(item);
            }
        }
    }
    return found;
}

std::vector<HTREEITEM> TreeItems::Unselected(HTREEITEM branch)
{
    Learn();
    std::vector<HTREEITEM> found;
    for (HTREEITEM item = branch == nullptr ? Root() : branch; item != nullptr;
         item = NextInBranch(item, branch))
    {
        if (m_selected.count(item) == 0 && !IsGoing(item))
        {
            found.push_back(item);
        }
    }
    return found;
}

bool TreeItems::HoldsSelected(HTREEITEM item)
{
    if (!m_known)
    {
        Learn();
    }
    return m_selected.count(item) != 0;
}

HTREEITEM TreeItems::NextSelected(HTREEITEM after)
{
    Learn();
    if (after != nullptr &&
        (m_selected.empty() || (m_selected.size() == 1 && m_selected.count(after) != 0)))
    {
        return nullptr;
    }
    HTREEITEM item = after == nullptr ? Root() : NextInBranch(after, nullptr);
    while (item != nullptr && m_selected.count(item) == 0)
    {
        item = NextInBranch(item, nullptr);
    }
    return item;
}

// Deletions -------------------------------------------------------------------------------------

void TreeItems::ForgetAll()
{
    m_selected.clear();
    m_caret = nullptr;
    for (WatchedItems* watch : *m_watches)
    {
        std::fill(watch->m_items.begin(), watch->m_items.end(), nullptr);
    }
}

void TreeItems::Reset()
{
    ForgetAll();
    m_known = false;
    m_hostRedraw = true;
    m_unwritten = nullptr;
    m_going.clear();
    m_goingAll = 0;
    m_inPlatform = 0;
    m_postponed.reset();
    LetEditGo();
    m_cancelling = false;
}

// The items that go with a branch, or with what is below it.
std::vector<HTREEITEM> TreeItems::Forget(HTREEITEM branch, bool itself)
{
    const bool watched =
        std::any_of(m_watches->begin(), m_watches->end(), [](const WatchedItems* watch) {
            return std::any_of(watch->m_items.begin(), watch->m_items.end(),
                               [](HTREEITEM item) { return item != nullptr; });
        });
    if (!watched && m_selected.empty() && m_caret == nullptr && m_edited == nullptr)
    {
        return {}; // nothing is held that could go
    }
    std::vector<HTREEITEM> all;
    for (HTREEITEM item = itself ? branch : Next(branch, TVGN_CHILD); item != nullptr;
         item = NextInBranch(item, branch))
    {
        all.push_back(item);
        m_selected.erase(item);
    }
    const std::unordered_set<HTREEITEM> going(all.begin(), all.end());
    for (HTREEITEM* const held : {&m_caret, &m_edited})
    {
        if (going.count(*held) != 0)
        {
            *held = nullptr;
        }
    }
    for (WatchedItems* watch : *m_watches)
    {
        if (all.size() == 1) // as when many that were held go one by one
        {
            std::replace(watch->m_items.begin(), watch->m_items.end(), all[0], HTREEITEM());
            continue;
        }
        for (HTREEITEM& item : watch->m_items)
        {
            if (item != nullptr && going.count(item) != 0)
            {
                item = nullptr;
            }
        }
    }
    return all;
}

// The platform goes on with its old and its new caret after it has told the parent of them, so what
// the parent deletes meanwhile is only forgotten here until the platform is done.
void TreeItems::Postpone(const std::vector<HTREEITEM>& items)
{
    const HTREEITEM edited = m_edited; // whose edit is still to be cancelled
    for (const HTREEITEM each : items)
    {
        const std::vector<HTREEITEM> going = Forget(each, true);
        m_going.insert(going.begin(), going.end());
        m_going.insert(each);
    }
    m_edited = edited;
    if (m_postponed == nullptr)
    {
        m_postponed = std::make_unique<Postponed>(*this);
    }
    for (const HTREEITEM each : items)
    {
        m_postponed->items.Add(each);
    }
}

// The same for what is below a branch that is reset; the branch is closed at once.
LRESULT TreeItems::PostponeBelow(HTREEITEM branch, WPARAM action)
{
    const WPARAM close = action & ~WPARAM(TVE_COLLAPSERESET);
    const std::vector<HTREEITEM> children = Children(branch);
    if (children.empty())
    {
        return Native(TVM_EXPAND, close, LPARAM(branch));
    }
    const WindowAlive alive(m_owner.Window());
    const WatchedItem held(*this, branch);
    Postpone(children);
    m_postponed->branches.Add(branch);
    const LRESULT result = Native(TVM_EXPAND, close, LPARAM(branch));
    if (alive && held.Get() != nullptr)
    {
        WriteState(branch, 0, TVIS_EXPANDEDONCE); // its next opening asks for new ones
    }
    return result;
}

void TreeItems::DeletePostponed()
{
    const WindowAlive alive(m_owner.Window());
    const std::unique_ptr<Postponed> postponed = std::move(m_postponed);
    m_going.clear();
    const WatchedItems& items = postponed->items;
    const WatchedItems& branches = postponed->branches;
    const std::unordered_set<HTREEITEM> going(items.All().begin(), items.All().end());
    for (size_t index = 0; index < branches.Size() && alive; ++index)
    {
        if (branches[index] != nullptr &&
            std::ranges::all_of(Children(branches[index]),
                                [&](HTREEITEM child) { return going.contains(child); }))
        {
            // None is new. Without its children, but not reset, it could not be opened any more.
            m_remove(TVM_EXPAND, TVE_COLLAPSE | TVE_COLLAPSERESET, LPARAM(branches[index]));
        }
    }
    if (!alive)
    {
        return;
    }
    // Each is looked for among those that are left, of which there may be many.
    WatchedItems left(*this, {items.All().rbegin(), items.All().rend()});
    postponed->items.Set({});
    while (alive && left.Size() > 0)
    {
        if (const HTREEITEM item = left.TakeLast(); item != nullptr)
        {
            m_remove(TVM_DELETEITEM, 0, LPARAM(item));
        }
    }
}

} // namespace trees
