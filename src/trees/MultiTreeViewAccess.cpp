// The tree view: what assistive programs are told. TreeAnswers knows who answers what.

#include "MultiTreeView.h"

#include "trees/TreeAccess.h"

using Answers = trees::TreeAnswers<CTreeView>;

HRESULT MultiTreeView::get_accChildCount(long* count)
{
    return Answers(*this, *m_selection).ChildCount(count);
}

HRESULT MultiTreeView::get_accChild(VARIANT child, IDispatch** object)
{
    return Answers(*this, *m_selection).Child(child, object);
}

HRESULT MultiTreeView::get_accName(VARIANT child, BSTR* name)
{
    return Answers(*this, *m_selection).Name(child, name);
}

HRESULT MultiTreeView::get_accValue(VARIANT child, BSTR* value)
{
    return Answers(*this, *m_selection).Value(child, value);
}

HRESULT MultiTreeView::get_accRole(VARIANT child, VARIANT* role)
{
    return Answers(*this, *m_selection).Role(child, role);
}

HRESULT MultiTreeView::get_accState(VARIANT child, VARIANT* state)
{
    return Answers(*this, *m_selection).State(child, state);
}

HRESULT MultiTreeView::get_accFocus(VARIANT* child)
{
    return Answers(*this, *m_selection).Focus(child);
}

HRESULT MultiTreeView::get_accSelection(VARIANT* children)
{
    return Answers(*this, *m_selection).Selection(children);
}

HRESULT MultiTreeView::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return Answers(*this, *m_selection).DefaultAction(child, action);
}

HRESULT MultiTreeView::accSelect(long flags, VARIANT child)
{
    return Answers(*this, *m_selection).Select(flags, child);
}

HRESULT MultiTreeView::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    return Answers(*this, *m_selection).Location(left, top, width, height, child);
}

HRESULT MultiTreeView::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return Answers(*this, *m_selection).Navigate(direction, start, end);
}

HRESULT MultiTreeView::accHitTest(long left, long top, VARIANT* child)
{
    return Answers(*this, *m_selection).HitTest(left, top, child);
}

HRESULT MultiTreeView::accDoDefaultAction(VARIANT child)
{
    return Answers(*this, *m_selection).DoDefaultAction(child);
}
