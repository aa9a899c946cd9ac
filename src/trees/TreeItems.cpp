#include "trees/TreeItems.h"

#include "modes/WindowAlive.h"

#include <algorithm>

namespace trees {

TreeItems::TreeItems(TreeOwner& owner)
    : m_owner(owner)
{}

TreeItems::~TreeItems() = default;

// Walking ---------------------------------------------------------------------------------------

HTREEITEM TreeItems::Real(HTREEITEM item)
{
    return item == TVI_ROOT || item == TVI_FIRST || item == TVI_LAST || item == TVI_SORT ? nullptr
                                                                                         : item;
}

HTREEITEM TreeItems::NextInBranch(HTREEITEM item, HTREEITEM branch) const
{
    if (const HTREEITEM child = Next(item, TVGN_CHILD))
    {
        return child;
    }
    while (item != nullptr && item != branch)
    {
        if (const HTREEITEM next = Next(item, TVGN_NEXT))
        {
            return next;
        }
        item = Parent(item);
    }
    return nullptr;
}

bool TreeItems::IsWithin(HTREEITEM item, HTREEITEM branch) const
{
    while (item != nullptr && item != branch)
    {
        item = Parent(item);
    }
    return item != nullptr;
}

HTREEITEM TreeItems::Shown(HTREEITEM item) const
{
    HTREEITEM shown = item;
    for (HTREEITEM parent = item == nullptr ? nullptr : Parent(item); parent != nullptr;
         parent = Parent(parent))
    {
        if (State(parent, TVIS_EXPANDED) == 0)
        {
            shown = parent;
        }
    }
    return shown;
}

// State and layout ------------------------------------------------------------------------------

LPARAM TreeItems::Data(HTREEITEM item) const
{
    TVITEM data = {};
    data.mask = TVIF_HANDLE | TVIF_PARAM;
    data.hItem = item;
    return Ask(TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&data)) ? data.lParam : 0;
}

void TreeItems::Apply(HTREEITEM item, UINT state, UINT mask)
{
    if (m_known && m_inPlatform == 0 && mask == TVIS_SELECTED &&
        HoldsSelected(item) == (state != 0))
    {
        return; // what it costs the platform grows with the tree, even for no change
    }
    if (m_known && m_inPlatform == 0 && mask == TVIS_SELECTED && state == 0 && item == Caret())
    {
        // As a rule the caret is about to leave the item, and takes its selection along for
        // nothing.
        const CRect row = Rect(item, false);
        Hold(item, false);
        m_unwritten = item;
        ::InvalidateRect(m_owner.Window().GetSafeHwnd(), &row, TRUE);
        return;
    }
    WriteState(item, state, mask);
}

// Before anybody could see that an item is still selected at the platform.
void TreeItems::WriteUnwritten()
{
    if (m_unwritten != nullptr)
    {
        const HTREEITEM item = m_unwritten;
        m_unwritten = nullptr;
        WriteState(item, 0, TVIS_SELECTED);
    }
}

void TreeItems::WriteState(HTREEITEM item, UINT state, UINT mask)
{
    TVITEM data = {};
    data.mask = TVIF_HANDLE | TVIF_STATE;
    data.hItem = item;
    data.state = state;
    data.stateMask = mask;
    Native(TVM_SETITEM, 0, reinterpret_cast<LPARAM>(&data));
}

CRect TreeItems::Rect(HTREEITEM item, bool textOnly) const
{
    CRect rect(0, 0, 0, 0);
    // The message takes the item in the first bytes of the rectangle that it fills.
    ::CopyMemory(&rect, &item, sizeof(HTREEITEM));
    return item != nullptr && Ask(TVM_GETITEMRECT, textOnly, reinterpret_cast<LPARAM>(&rect))
               ? rect
               : CRect(0, 0, 0, 0);
}

// The knowledge of what is selected -------------------------------------------------------------

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
}

// The items that go with a branch, or with what is below it.
std::vector<HTREEITEM> TreeItems::Forget(HTREEITEM branch, bool itself)
{
    const bool watched =
        std::any_of(m_watches->begin(), m_watches->end(), [](const WatchedItems* watch) {
            return std::any_of(watch->m_items.begin(), watch->m_items.end(),
                               [](HTREEITEM item) { return item != nullptr; });
        });
    if (!watched && m_selected.empty() && m_caret == nullptr)
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
    if (going.count(m_caret) != 0)
    {
        m_caret = nullptr;
    }
    for (WatchedItems* watch : *m_watches)
    {
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
LRESULT TreeItems::Postpone(HTREEITEM item)
{
    std::vector<HTREEITEM> items = {item};
    if (item == nullptr)
    {
        items.clear();
        for (HTREEITEM top = Root(); top != nullptr; top = Next(top, TVGN_NEXT))
        {
            items.push_back(top);
        }
    }
    for (const HTREEITEM each : items)
    {
        const std::vector<HTREEITEM> going = Forget(each, true);
        m_going.insert(going.begin(), going.end());
        m_going.insert(each);
    }
    if (m_postponed == nullptr)
    {
        m_postponed = std::make_unique<WatchedItems>(*this, std::vector<HTREEITEM>());
    }
    std::vector<HTREEITEM> all = m_postponed->All();
    all.insert(all.end(), items.begin(), items.end());
    m_postponed->Set(std::move(all));
    return TRUE;
}

void TreeItems::DeletePostponed()
{
    const WindowAlive alive(m_owner.Window());
    const std::unique_ptr<WatchedItems> postponed = std::move(m_postponed);
    m_going.clear();
    for (size_t index = 0; index < postponed->Size() && alive; ++index)
    {
        if ((*postponed)[index] != nullptr)
        {
            Native(TVM_DELETEITEM, 0, LPARAM((*postponed)[index]));
        }
    }
}

// The platform's side ---------------------------------------------------------------------------

namespace {

// Whether the platform may move its caret, and with it the selection, while it handles a message.
bool MovesCaret(UINT message)
{
    switch (message)
    {
    case TVM_SELECTITEM:
    case TVM_DELETEITEM:
    case TVM_EXPAND:
    case TVM_INSERTITEMA:
    case TVM_INSERTITEMW:
    case TVM_EDITLABELA:
    case TVM_EDITLABELW:
    case TVM_ENDEDITLABELNOW:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_SETFOCUS:
    case WM_TIMER:
        return true;
    default:
        return false;
    }
}

} // namespace

LRESULT TreeItems::Native(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool caretLeaves =
        message == TVM_SELECTITEM && wParam == TVGN_CARET && HTREEITEM(lParam) != m_unwritten;
    if (!caretLeaves && message != WM_DESTROY && message != WM_NCDESTROY)
    {
        WriteUnwritten();
    }
    // The platform goes on with what it has even after it has told a parent that ends the window.
    // What it has is better lost than freed under it.
    const bool abandons =
        (message == WM_DESTROY && m_inPlatform > 0) || (message == WM_NCDESTROY && m_abandoned);
    m_abandoned = message != WM_NCDESTROY && message != WM_CREATE && (abandons || m_abandoned);
    std::vector<HTREEITEM> going;
    bool goingAll = false;
    if (message == TVM_DELETEITEM && m_inPlatform > 0)
    {
        return Postpone(Real(HTREEITEM(lParam)));
    }
    switch (message)
    {
    case TVM_DELETEITEM:
        if (const HTREEITEM item = Real(HTREEITEM(lParam)); item != nullptr)
        {
            going = Forget(item, true);
        }
        else
        {
            goingAll = true;
            ForgetAll();
        }
        break;
    case TVM_EXPAND:
        if ((wParam & TVE_COLLAPSERESET) == TVE_COLLAPSERESET && lParam != 0)
        {
            going = Forget(HTREEITEM(lParam), false);
        }
        break;
    case WM_CREATE:
        ForgetAll();
        m_known = true; // a new tree is empty
        break;
    case WM_DESTROY:
    case WM_NCDESTROY:
        // The items stay for whoever asks while the window ends, but nothing may be held of them.
        Reset();
        break;
    case WM_SETREDRAW:
        m_hostRedraw = wParam != FALSE;
        break;
    default:
        break;
    }
    m_going.insert(going.begin(), going.end());
    m_goingAll += goingAll;
    const bool movesCaret = MovesCaret(message);
    const WindowAlive alive(m_owner.Window());
    m_inPlatform += movesCaret;
    const LRESULT result =
        abandons ? ::DefWindowProc(m_owner.Window().GetSafeHwnd(), message, wParam, lParam)
                 : m_owner.Platform(message, wParam, lParam);
    if (!alive)
    {
        return result;
    }
    if (message == WM_NCDESTROY)
    {
        Reset(); // whoever asked while the items went has had them counted again
        return result;
    }
    // Both may have begun anew meanwhile.
    m_inPlatform -= movesCaret && m_inPlatform > 0;
    m_goingAll -= goingAll && m_goingAll > 0;
    if (caretLeaves && m_unwritten != nullptr)
    {
        if (Caret() == m_unwritten)
        {
            WriteUnwritten(); // the parent has refused
        }
        m_unwritten = nullptr;
    }
    for (const HTREEITEM item : going)
    {
        m_going.erase(item);
    }
    if (m_inPlatform == 0 && m_postponed != nullptr)
    {
        DeletePostponed();
        if (!alive)
        {
            return result;
        }
    }
    if (!m_known)
    {
        return result;
    }
    if ((message == TVM_SETITEMA || message == TVM_SETITEMW) && result && lParam != 0)
    {
        // Both forms begin alike.
        const auto& item = *reinterpret_cast<const TVITEM*>(lParam);
        if ((item.mask & TVIF_STATE) != 0 && (item.stateMask & TVIS_SELECTED) != 0)
        {
            Hold(item.hItem, (item.state & TVIS_SELECTED) != 0);
        }
    }
    else if ((message == TVM_INSERTITEMA || message == TVM_INSERTITEMW) && result)
    {
        Refresh(HTREEITEM(result));
    }
    if (movesCaret || m_inPlatform > 0)
    {
        FollowCaret();
    }
    return result;
}

} // namespace trees
