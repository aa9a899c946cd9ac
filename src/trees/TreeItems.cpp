// The items: walking, their state and layout, and the way of messages to the platform.

#include "trees/TreeItems.h"

#include "modes/WindowAlive.h"

namespace trees {

TreeItems::TreeItems(TreeOwner& owner, Removal remove)
    : m_owner(owner)
    , m_remove(std::move(remove))
{}

TreeItems::~TreeItems()
{
    LetEditGo();
}

// Walking ---------------------------------------------------------------------------------------

HTREEITEM TreeItems::Real(HTREEITEM item)
{
    return item == TVI_ROOT || item == TVI_FIRST || item == TVI_LAST || item == TVI_SORT ? nullptr
                                                                                         : item;
}

std::vector<HTREEITEM> TreeItems::Children(HTREEITEM branch) const
{
    std::vector<HTREEITEM> children;
    for (HTREEITEM child = branch == nullptr ? Root() : Next(branch, TVGN_CHILD); child != nullptr;
         child = Next(child, TVGN_NEXT))
    {
        children.push_back(child);
    }
    return children;
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
    CRect rect;
    ItemRect(m_owner, item, textOnly, rect);
    return rect;
}

// The platform's side ---------------------------------------------------------------------------

namespace {

// What a message changes of an item's state; null when it does not.
const TVITEM* ChangeOfState(UINT message, LPARAM lParam)
{
    if ((message != TVM_SETITEMA && message != TVM_SETITEMW) || lParam == 0)
    {
        return nullptr;
    }
    const auto* const change = reinterpret_cast<const TVITEM*>(lParam); // both forms begin alike
    return (change->mask & TVIF_STATE) != 0 ? change : nullptr;
}

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

// Whether a message closes a branch and deletes what is below it.
bool ResetsBranch(UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == TVM_EXPAND && (wParam & TVE_COLLAPSERESET) == TVE_COLLAPSERESET &&
           (wParam & TVE_TOGGLE) == TVE_COLLAPSE && TreeItems::Real(HTREEITEM(lParam)) != nullptr;
}

} // namespace

// Closes it first: some platforms fault where the first row in sight goes with its branch open.
LRESULT TreeItems::ResetBranch(WPARAM action, LPARAM branch)
{
    const WindowAlive alive(m_owner.Window());
    const LRESULT closed = Ask(TVM_EXPAND, action & ~WPARAM(TVE_COLLAPSERESET), branch);
    const LRESULT reset = alive ? Ask(TVM_EXPAND, action, branch) : FALSE;
    return closed != FALSE ? closed : reset;
}

LRESULT TreeItems::Native(UINT message, WPARAM wParam, LPARAM lParam)
{
    FollowEdit(message, wParam, lParam);
    const bool caretLeaves =
        message == TVM_SELECTITEM && wParam == TVGN_CARET && HTREEITEM(lParam) != m_unwritten;
    const WindowAlive alive(m_owner.Window());
    if (!caretLeaves && m_unwritten != nullptr && message != WM_DESTROY && message != WM_NCDESTROY)
    {
        WriteUnwritten();
        if (!alive)
        {
            return 0;
        }
    }
    // The platform goes on with what it has even after it has told a parent that ends the window.
    // What it has is better lost than freed under it.
    const bool abandons =
        (message == WM_DESTROY && m_inPlatform > 0) || (message == WM_NCDESTROY && m_abandoned);
    m_abandoned = message != WM_NCDESTROY && message != WM_CREATE && (abandons || m_abandoned);
    std::vector<HTREEITEM> going;
    bool goingAll = false;
    if (m_inPlatform > 0 && message == TVM_DELETEITEM)
    {
        const HTREEITEM item = Real(HTREEITEM(lParam));
        Postpone(item != nullptr ? std::vector<HTREEITEM>{item} : Children(nullptr));
        return TRUE;
    }
    if (m_inPlatform > 0 && ResetsBranch(message, wParam, lParam))
    {
        return PostponeBelow(HTREEITEM(lParam), wParam);
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
        if (ResetsBranch(message, wParam, lParam))
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
    const TVITEM* const change = ChangeOfState(message, lParam);
    const WatchedItem changed(*this, change != nullptr ? Real(change->hItem) : nullptr);
    // The platform deselects what had its caret before it asked, also when that was moved
    // meanwhile.
    const bool asks = m_known && movesCaret && message != TVM_DELETEITEM &&
                      message != TVM_INSERTITEMA && message != TVM_INSERTITEMW;
    const WatchedItem left(*this, asks ? Caret() : nullptr);
    const bool selects = change != nullptr && (change->stateMask & TVIS_SELECTED) != 0;
    const bool tells = movesCaret || change != nullptr;
    m_inPlatform += tells;
    const LRESULT result =
        abandons ? ::DefWindowProc(m_owner.Window().GetSafeHwnd(), message, wParam, lParam)
        : ResetsBranch(message, wParam, lParam) ? ResetBranch(wParam, lParam)
                                                : Ask(message, wParam, lParam);
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
    m_inPlatform -= tells && m_inPlatform > 0;
    if ((message == TVM_EDITLABELA || message == TVM_EDITLABELW ||
         message == TVM_ENDEDITLABELNOW) &&
        Edited() == nullptr)
    {
        m_edited = nullptr; // refused, or ended without having had the focus
    }
    m_goingAll -= goingAll && m_goingAll > 0;
    if (caretLeaves && m_unwritten != nullptr)
    {
        if (Caret() == m_unwritten)
        {
            WriteUnwritten(); // the parent has refused
            if (!alive)
            {
                return result;
            }
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
    if (selects && changed.Get() != nullptr)
    {
        Refresh(changed.Get()); // the parent may have refused it
    }
    else if ((message == TVM_INSERTITEMA || message == TVM_INSERTITEMW) && result)
    {
        Refresh(HTREEITEM(result));
    }
    if (left.Get() != nullptr && !IsGoing(left.Get()))
    {
        Refresh(left.Get());
    }
    if (movesCaret || m_inPlatform > 0)
    {
        FollowCaret();
    }
    return result;
}

} // namespace trees
