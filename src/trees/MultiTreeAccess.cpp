// The tree: what assistive programs are told. TreeAnswers knows who answers what.

#include "MultiTree.h"

#include "trees/TreeAccess.h"

using Answers = trees::TreeAnswers<CTreeCtrl>;

HRESULT MultiTree::get_accChildCount(long* count)
{
    return Answers(*this, *m_selection).ChildCount(count);
}

HRESULT MultiTree::get_accChild(VARIANT child, IDispatch** object)
{
    return Answers(*this, *m_selection).Child(child, object);
}

HRESULT MultiTree::get_accName(VARIANT child, BSTR* name)
{
    return Answers(*this, *m_selection).Name(child, name);
}

HRESULT MultiTree::get_accValue(VARIANT child, BSTR* value)
{
    return Answers(*this, *m_selection).Value(child, value);
}

HRESULT MultiTree::get_accRole(VARIANT child, VARIANT* role)
{
    return Answers(*this, *m_selection).Role(child, role);
}

HRESULT MultiTree::get_accState(VARIANT child, VARIANT* state)
{
    return Answers(*this, *m_selection).State(child, state);
}

HRESULT MultiTree::get_accFocus(VARIANT* child)
{
    return Answers(*this, *m_selection).Focus(child);
}

HRESULT MultiTree::get_accSelection(VARIANT* children)
{
    return Answers(*this, *m_selection).Selection(children);
}

HRESULT MultiTree::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return Answers(*this, *m_selection).DefaultAction(child, action);
}

HRESULT MultiTree::accSelect(long flags, VARIANT child)
{
    return Answers(*this, *m_selection).Select(flags, child);
}

HRESULT MultiTree::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    return Answers(*this, *m_selection).Location(left, top, width, height, child);
}

HRESULT MultiTree::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return Answers(*this, *m_selection).Navigate(direction, start, end);
}

HRESULT MultiTree::accHitTest(long left, long top, VARIANT* child)
{
    return Answers(*this, *m_selection).HitTest(left, top, child);
}

HRESULT MultiTree::accDoDefaultAction(VARIANT child)
{
    return Answers(*this, *m_selection).DoDefaultAction(child);
}
