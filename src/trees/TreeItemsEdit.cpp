// The edit of a label: whose it is, and what the parent may do where it is told of its end.

#include "trees/TreeItems.h"

#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"

namespace trees {

HTREEITEM TreeItems::Edited() const
{
    if (Ask(TVM_GETEDITCONTROL) == 0)
    {
        return nullptr;
    }
    return m_edited != nullptr ? m_edited : Caret(); // which the user edits
}

// Some platforms keep the edit, and write what is typed to where the item was.
bool TreeItems::CancelEditIn(HTREEITEM branch)
{
    if (m_inPlatform > 0)
    {
        return true; // they wait for the platform, which may be ending the edit by itself
    }
    const HTREEITEM edited = Edited();
    if (edited == nullptr || (branch != nullptr && !IsWithin(edited, branch)))
    {
        return true;
    }
    const WindowAlive alive(m_owner.Window());
    const WatchedItem held(*this, branch);
    const Meanwhile cancelling(m_owner.Window(), m_cancelling);
    Native(TVM_ENDEDITLABELNOW, TRUE, 0);
    return alive && held.Get() == branch;
}

// Each message on its way to the platform: where the edit of a label begins, and where it has
// ended.
void TreeItems::FollowEdit(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto child = HWND(lParam);
    switch (message)
    {
    case TVM_EDITLABELA:
    case TVM_EDITLABELW:
        if (Edited() == nullptr)
        {
            m_edited = Real(HTREEITEM(lParam));
        }
        break;
    case WM_COMMAND:
        if (HIWORD(wParam) == EN_SETFOCUS && child != nullptr &&
            child == HWND(Ask(TVM_GETEDITCONTROL)))
        {
            m_edit = child;
            m_edited = m_edited != nullptr ? m_edited : Caret(); // the user's edit is of that
            ::SetWindowSubclass(m_edit, &InEdit, 0, reinterpret_cast<DWORD_PTR>(this));
        }
        break;
    case WM_PARENTNOTIFY:
        if (LOWORD(wParam) == WM_DESTROY && child == m_edit)
        {
            LetEditGo(); // later some platforms have put the edit's own procedure back
        }
        break;
    default:
        break;
    }
}

void TreeItems::LetEditGo()
{
    ::RemoveWindowSubclass(m_edit, &InEdit, 0);
    m_edit = nullptr;
    m_edited = nullptr;
}

// The keys and the loss of the focus by which the platform ends an edit pass the tree by. It tells
// the parent, and goes on with the item after that.
LRESULT CALLBACK TreeItems::InEdit(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR owner)
{
    if (message != WM_KEYDOWN && message != WM_CHAR && message != WM_KILLFOCUS)
    {
        return ::DefSubclassProc(edit, message, wParam, lParam);
    }
    auto& items = *reinterpret_cast<TreeItems*>(owner);
    if (items.m_cancelling)
    {
        return 0; // some platforms would end it once more, and take the text
    }
    const WindowAlive alive(items.m_owner.Window());
    ++items.m_inPlatform;
    const LRESULT result = ::DefSubclassProc(edit, message, wParam, lParam);
    if (alive)
    {
        items.m_inPlatform -= items.m_inPlatform > 0;
        if (items.m_inPlatform == 0 && items.m_postponed != nullptr)
        {
            items.DeletePostponed();
        }
    }
    return result;
}

} // namespace trees
