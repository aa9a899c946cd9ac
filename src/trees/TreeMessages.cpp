// The selection: the way of every message of a tree, first past its look and its bars, then to the
// platform, which may scroll or change what a rubber band lies on.

#include "modes/WindowAlive.h"
#include "trees/DragImage.h"
#include "trees/TreeBand.h"
#include "trees/TreeLook.h"

namespace trees {

namespace {

// Messages by which the platform may move the pixels that a band or a dragged picture lies on.
bool MovesContent(UINT message)
{
    switch (message)
    {
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_KEYDOWN:
    case WM_SIZE:
    case TVM_ENSUREVISIBLE:
    case TVM_SELECTITEM:
    case TVM_EXPAND:
    case TVM_DELETEITEM:
    case TVM_INSERTITEMA:
    case TVM_INSERTITEMW:
        return true;
    default:
        return false;
    }
}

} // namespace

LRESULT TreeSelection::Native(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_RBUTTONUP && m_endsClick)
    {
        return 0; // the platform would ask for the context menu, as the click is about to do
    }
    if (m_inLoop && (message == WM_CAPTURECHANGED || message == WM_DESTROY))
    {
        ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0); // wakes the loop
    }
    const WindowAlive alive(Window());
    if (const HTREEITEM branch = TreeItems::Real(HTREEITEM(lParam));
        message == TVM_EXPAND && branch != nullptr && Closes(branch, UINT(wParam)))
    {
        // The platform asks the parent, and us by it, only when the user closes the branch.
        const WatchedItem held(m_items, branch);
        LeaveBranch(branch);
        if (alive && held.Get() != nullptr && (wParam & TVE_COLLAPSERESET) == TVE_COLLAPSERESET &&
            m_items.Edited() != branch)
        {
            m_items.CancelEditIn(branch); // of one that goes
        }
        if (!alive || held.Get() == nullptr)
        {
            return FALSE;
        }
    }
    if (message == WM_NCDESTROY)
    {
        Reset();
        m_look->Reset();
        m_laidOut = nullptr;
    }
    std::optional<DragImageHidden> hidden; // it would scroll along
    if (IsDragImageShown() && MovesContent(message))
    {
        hidden.emplace();
    }
    LRESULT result = 0;
    if (m_look->Before(message, wParam, lParam, result) || !alive)
    {
        return result;
    }
    result = message == TVM_DELETEITEM ? DeleteItem(HTREEITEM(lParam))
                                       : m_items.Native(message, wParam, lParam);
    if (!alive)
    {
        return result;
    }
    m_look->After(message, wParam, lParam, result);
    if (!alive)
    {
        return result;
    }
    if (m_band != nullptr && MovesContent(message))
    {
        // The platform copies pixels when it scrolls, those of the band among them.
        PlaceBand();
        if (alive)
        {
            ::InvalidateRect(Handle(), nullptr, FALSE);
        }
    }
    if (alive && hidden)
    {
        Window().UpdateWindow(); // before it lies over it again
    }
    return result;
}

void TreeSelection::Paint()
{
    m_look->Paint(m_band != nullptr && m_band->stretched ? &m_band->rect : nullptr);
}

bool TreeSelection::EraseBackground()
{
    return m_look->PaintsAll() || (m_band != nullptr && m_band->stretched);
}

} // namespace trees
