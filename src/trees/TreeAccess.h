#pragma once

// What a tree answers to assistive programs of its items.

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

} // namespace trees
