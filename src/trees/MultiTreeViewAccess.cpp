// The tree view: what assistive programs are told.

#include "MultiTreeView.h"

#include "access/Rows.h"
#include "trees/TreeAccess.h"

using trees::TreeAccess;

HRESULT MultiTreeView::get_accChildCount(long* count)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() ? CTreeView::get_accChildCount(count) : tree.Count(count);
}

HRESULT MultiTreeView::get_accChild(VARIANT child, IDispatch** object)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::get_accChild(child, object)
                                     : tree.Child(child, object);
}

HRESULT MultiTreeView::get_accName(VARIANT child, BSTR* name)
{
    if (const auto named = access::NameFromLabel(GetSafeHwnd(), child, name))
    {
        return *named;
    }
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::get_accName(child, name)
                                     : tree.Answer(child, &TreeAccess::Name, name);
}

HRESULT MultiTreeView::get_accValue(VARIANT child, BSTR* value)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::get_accValue(child, value)
                                     : tree.Answer(child, &TreeAccess::Level, value);
}

HRESULT MultiTreeView::get_accRole(VARIANT child, VARIANT* role)
{
    if (access::IsSelf(child))
    {
        return access::Give(*role, ROLE_SYSTEM_OUTLINE);
    }
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::get_accRole(child, role)
                                     : tree.Answer(child, &TreeAccess::Role, role);
}

HRESULT MultiTreeView::get_accState(VARIANT child, VARIANT* state)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::get_accState(child, state)
                                     : tree.Answer(child, &TreeAccess::State, state);
}

HRESULT MultiTreeView::get_accFocus(VARIANT* child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() || ::GetFocus() != GetSafeHwnd()
               ? CTreeView::get_accFocus(child)
               : tree.Focus(child);
}

HRESULT MultiTreeView::get_accSelection(VARIANT* children)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() ? CTreeView::get_accSelection(children)
                                       : tree.Selection(children);
}

HRESULT MultiTreeView::get_accDefaultAction(VARIANT child, BSTR* action)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::get_accDefaultAction(child, action)
                                     : tree.Answer(child, &TreeAccess::Action, action);
}

HRESULT MultiTreeView::accSelect(long flags, VARIANT child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::accSelect(flags, child)
                                     : tree.Select(flags, child);
}

HRESULT MultiTreeView::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child)
               ? CTreeView::accLocation(left, top, width, height, child)
               : tree.Answer(child, &TreeAccess::Location, left, top, width, height);
}

HRESULT MultiTreeView::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    const bool within = !access::LeavesList(direction, start);
    const TreeAccess tree(*this, *m_selection);
    return !within || tree.PlatformNumbersItems() ? CTreeView::accNavigate(direction, start, end)
                                                  : tree.Navigate(direction, start, end);
}

HRESULT MultiTreeView::accHitTest(long left, long top, VARIANT* child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.PlatformNumbersItems() ? CTreeView::accHitTest(left, top, child)
                                       : tree.HitTest(CPoint(left, top), child);
}

HRESULT MultiTreeView::accDoDefaultAction(VARIANT child)
{
    const TreeAccess tree(*this, *m_selection);
    return tree.IsForPlatform(child) ? CTreeView::accDoDefaultAction(child)
                                     : tree.Answer(child, &TreeAccess::DoAction);
}
