#pragma once

// What a tree answers to assistive programs of its items.

#include "access/Rows.h"
#include "modes/WindowAlive.h"
#include "trees/TreeSelection.h"

#include <oleacc.h>

namespace trees {

// Made for one question. An item's child id is its place in tree order from 1 on, so that every
// question walks the items before it.
class TreeAccess
{
public:
    TreeAccess(CWnd& window, TreeSelection& selection)
        : m_window(window)
        , m_selection(selection)
        , m_items(selection.Items())
    {}

    // Whether the question is about the window, or about items that the platform numbers: such a
    // platform answers it, and names the same numbers in the events that it raises.
    bool IsForPlatform(const VARIANT& child) const;
    bool PlatformNumbersItems() const;

    // The item of a child id, or null.
    HTREEITEM ItemOf(const VARIANT& child) const;
    long IdOf(HTREEITEM item) const; // CHILDID_SELF for none

    // The answer to a question about the item of a child id.
    template <class... Places>
    HRESULT Answer(const VARIANT& child,
                   HRESULT (TreeAccess::*question)(HTREEITEM, Places*...) const,
                   Places*... places) const
    {
        const HTREEITEM item = ItemOf(child);
        return item == nullptr ? E_INVALIDARG : (this->*question)(item, places...);
    }
    HRESULT Name(HTREEITEM item, BSTR* name) const;
    HRESULT Role(HTREEITEM item, VARIANT* role) const;
    HRESULT Level(HTREEITEM item, BSTR* value) const;
    HRESULT State(HTREEITEM item, VARIANT* state) const;
    HRESULT Count(long* count) const;
    HRESULT Child(const VARIANT& child, IDispatch** object) const;
    HRESULT Focus(VARIANT* child) const;
    HRESULT Selection(VARIANT* children) const;
    HRESULT Action(HTREEITEM item, BSTR* action) const;
    HRESULT Location(HTREEITEM item, long* left, long* top, long* width, long* height) const;
    HRESULT Navigate(long direction, const VARIANT& start, VARIANT* end) const;
    HRESULT HitTest(const CPoint& screen, VARIANT* child) const;
    HRESULT DoAction(HTREEITEM item) const;
    HRESULT Select(long flags, const VARIANT& child) const;

private:
    CWnd& m_window;
    TreeSelection& m_selection;
    TreeItems& m_items;

    bool HasChildren(HTREEITEM item) const;
};

// Who answers a question: TreeAccess, or the platform's base class that the tree's class derives
// from. Made for one question, and answers the one that is named alike.
template <class Platform> class TreeAnswers
{
public:
    TreeAnswers(Platform& tree, TreeSelection& selection)
        : m_tree(tree)
        , m_access(tree, selection)
    {}

    HRESULT ChildCount(long* count) const
    {
        return m_access.PlatformNumbersItems() ? m_tree.Platform::get_accChildCount(count)
                                               : m_access.Count(count);
    }
    HRESULT Child(const VARIANT& child, IDispatch** object) const
    {
        return m_access.IsForPlatform(child) ? m_tree.Platform::get_accChild(child, object)
                                             : m_access.Child(child, object);
    }
    HRESULT Name(const VARIANT& child, BSTR* name) const
    {
        const WindowAlive alive(m_tree); // the label may end it
        const auto named = access::NameFromLabel(m_tree.GetSafeHwnd(), child, name);
        if (named || !alive)
        {
            return named ? *named : CO_E_OBJNOTCONNECTED;
        }
        return m_access.IsForPlatform(child) ? m_tree.Platform::get_accName(child, name)
                                             : m_access.Answer(child, &TreeAccess::Name, name);
    }
    HRESULT Value(const VARIANT& child, BSTR* value) const
    {
        return m_access.IsForPlatform(child) ? m_tree.Platform::get_accValue(child, value)
                                             : m_access.Answer(child, &TreeAccess::Level, value);
    }
    HRESULT Role(const VARIANT& child, VARIANT* role) const
    {
        if (access::IsSelf(child))
        {
            return access::Give(*role, ROLE_SYSTEM_OUTLINE);
        }
        return m_access.IsForPlatform(child) ? m_tree.Platform::get_accRole(child, role)
                                             : m_access.Answer(child, &TreeAccess::Role, role);
    }
    HRESULT State(const VARIANT& child, VARIANT* state) const
    {
        return m_access.IsForPlatform(child)
                   ? access::GiveWindowState<Platform>(m_tree, child, state)
                   : m_access.Answer(child, &TreeAccess::State, state);
    }
    HRESULT Focus(VARIANT* child) const
    {
        return m_access.PlatformNumbersItems() || ::GetFocus() != m_tree.GetSafeHwnd()
                   ? m_tree.Platform::get_accFocus(child)
                   : m_access.Focus(child);
    }
    HRESULT Selection(VARIANT* children) const
    {
        return m_access.PlatformNumbersItems() ? m_tree.Platform::get_accSelection(children)
                                               : m_access.Selection(children);
    }
    HRESULT DefaultAction(const VARIANT& child, BSTR* action) const
    {
        return m_access.IsForPlatform(child) ? m_tree.Platform::get_accDefaultAction(child, action)
                                             : m_access.Answer(child, &TreeAccess::Action, action);
    }
    HRESULT Select(long flags, const VARIANT& child) const
    {
        return m_access.IsForPlatform(child) ? m_tree.Platform::accSelect(flags, child)
                                             : m_access.Select(flags, child);
    }
    HRESULT Location(long* left, long* top, long* width, long* height, const VARIANT& child) const
    {
        return m_access.IsForPlatform(child)
                   ? m_tree.Platform::accLocation(left, top, width, height, child)
                   : m_access.Answer(child, &TreeAccess::Location, left, top, width, height);
    }
    HRESULT Navigate(long direction, const VARIANT& start, VARIANT* end) const
    {
        const bool within = !access::LeavesList(direction, start);
        return !within || m_access.PlatformNumbersItems()
                   ? m_tree.Platform::accNavigate(direction, start, end)
                   : m_access.Navigate(direction, start, end);
    }
    HRESULT HitTest(long left, long top, VARIANT* child) const
    {
        return m_access.PlatformNumbersItems() ? m_tree.Platform::accHitTest(left, top, child)
                                               : m_access.HitTest(CPoint(left, top), child);
    }
    HRESULT DoDefaultAction(const VARIANT& child) const
    {
        return m_access.IsForPlatform(child) ? m_tree.Platform::accDoDefaultAction(child)
                                             : m_access.Answer(child, &TreeAccess::DoAction);
    }

private:
    Platform& m_tree;
    TreeAccess m_access;
};

} // namespace trees
