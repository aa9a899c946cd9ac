#pragma once

#include <afxcmn.h>

namespace trees {

// What the selection asks of the class that it serves: the window, the platform's own processing,
// and the operations that a derived class may override.
class TreeOwner
{
public:
    virtual CWnd& Window() = 0;
    // The platform tree's answer to a message, past every handler of ours.
    virtual LRESULT Platform(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    // Default processing of the message in progress.
    virtual LRESULT DefaultOfCurrent() = 0;

    virtual void SelectAll(bool select, bool notify) = 0;
    virtual void SelectRange(HTREEITEM first, HTREEITEM last, bool only) = 0;
    virtual bool CanCtrlSelectItem(HTREEITEM item) = 0;
    virtual CSize GetDragThreshold() = 0;

protected:
    ~TreeOwner() = default;
};

// What an item, or its text, takes in client pixels: empty, and false, for one that is hidden or
// null.
inline bool ItemRect(TreeOwner& owner, HTREEITEM item, bool textOnly, CRect& rect)
{
    rect.SetRectEmpty();
    // The message takes the item in the first bytes of the rectangle that it fills.
    ::CopyMemory(&rect, &item, sizeof(item));
    if (item != nullptr && owner.Platform(TVM_GETITEMRECT, textOnly, LPARAM(&rect)))
    {
        return true;
    }
    rect.SetRectEmpty();
    return false;
}

// The owner in terms of a tree class, which makes this its friend.
template <class Tree, class PlatformBase> class OwnerOf final : public TreeOwner
{
public:
    explicit OwnerOf(Tree& tree)
        : m_tree(tree)
    {}

    CWnd& Window() override { return m_tree; }
    LRESULT Platform(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return m_tree.PlatformBase::DefWindowProc(message, wParam, lParam);
    }
    LRESULT DefaultOfCurrent() override { return m_tree.Default(); }
    void SelectAll(bool select, bool notify) override { m_tree.SelectAll(select, notify); }
    void SelectRange(HTREEITEM first, HTREEITEM last, bool only) override
    {
        m_tree.SelectRange(first, last, only);
    }
    bool CanCtrlSelectItem(HTREEITEM item) override { return m_tree.CanCtrlSelectItem(item); }
    CSize GetDragThreshold() override { return m_tree.GetDragThreshold(); }

private:
    Tree& m_tree;
};

} // namespace trees
