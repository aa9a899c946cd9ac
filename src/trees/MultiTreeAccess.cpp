// The tree: what assistive programs are told.

#include "MultiTree.h"

#include "access/Rows.h"
#include "trees/TreeAccess.h"

using trees::TreeAccess;

HRESULT MultiTree::get_accChildCount(long* count)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() ? CTreeCtrl::get_accChildCount(count) : tree.Count(count);
}

HRESULT MultiTree::get_accChild(VARIANT child, IDispatch** object)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::get_accChild(child, object)
                                     : tree.Child(child, object);
}

HRESULT MultiTree::get_accName(VARIANT child, BSTR* name)
{
    if (const auto named = access::NameFromLabel(GetSafeHwnd(), child, name))
    {
        return *named;
    }
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::get_accName(child, name)
                                     : tree.Answer(child, &TreeAccess::Name, name);
}

HRESULT MultiTree::get_accValue(VARIANT child, BSTR* value)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::get_accValue(child, value)
                                     : tree.Answer(child, &TreeAccess::Level, value);
}

HRESULT MultiTree::get_accRole(VARIANT child, VARIANT* role)
{
    if (access::IsSelf(child))
    {
        return access::Give(*role, ROLE_SYSTEM_OUTLINE);
    }
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::get_accRole(child, role)
                                     : tree.Answer(child, &TreeAccess::Role, role);
}

HRESULT MultiTree::get_accState(VARIANT child, VARIANT* state)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::get_accState(child, state)
                                     : tree.Answer(child, &TreeAccess::State, state);
}

HRESULT MultiTree::get_accFocus(VARIANT* child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() || ::GetFocus() != GetSafeHwnd()
               ? CTreeCtrl::get_accFocus(child)
               : tree.Focus(child);
}

HRESULT MultiTree::get_accSelection(VARIANT* children)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() ? CTreeCtrl::get_accSelection(children)
                                       : tree.Selection(children);
}

HRESULT MultiTree::get_accDefaultAction(VARIANT child, BSTR* action)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::get_accDefaultAction(child, action)
                                     : tree.Answer(child, &TreeAccess::Action, action);
}

HRESULT MultiTree::accSelect(long flags, VARIANT child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::accSelect(flags, child)
                                     : tree.Select(flags, child);
}

HRESULT MultiTree::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child)
               ? CTreeCtrl::accLocation(left, top, width, height, child)
               : tree.Answer(child, &TreeAccess::Location, left, top, width, height);
}

HRESULT MultiTree::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    const bool within = !access::LeavesList(direction, start);
    const TreeAccess tree(*this, *m_selection);
    return !within || tree.PlatformNumbersItems() ? CTreeCtrl::accNavigate(direction, start, end)
                                                  : tree.Navigate(direction, start, end);
}

HRESULT MultiTree::accHitTest(long left, long top, VARIANT* child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() ? CTreeCtrl::accHitTest(left, top, child)
                                       : tree.HitTest(CPoint(left, top), child);
}

HRESULT MultiTree::accDoDefaultAction(VARIANT child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeCtrl::accDoDefaultAction(child)
                                     : tree.Answer(child, &TreeAccess::DoAction);
}
