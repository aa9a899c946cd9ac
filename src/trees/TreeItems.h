#pragma once

#include "TreeItemState.h"
#include "trees/TreeOwner.h"

#include <functional>
#include <memory>
#include <unordered_set>
#include <vector>

namespace trees {

class WatchedItems;
using WatchList = std::vector<WatchedItems*>;

// The items of a tree, by the platform's messages, and the knowledge of which are selected. The
// knowledge is kept in step with the item states by seeing every message that reaches the platform:
// whoever asks for the selected items need not walk the tree.
//
// Items are given and taken as the platform's handles; null for none.
class TreeItems
{
public:
    // A message that takes items away.
    using Removal = std::function<void(UINT message, WPARAM wParam, LPARAM lParam)>;

    // What is deleted after it had to wait goes by remove, as if it were asked for then.
    TreeItems(TreeOwner& owner, Removal remove);
    ~TreeItems();
    TreeItems(const TreeItems&) = delete;
    TreeItems& operator=(const TreeItems&) = delete;

    // Null also for the platform's constants that stand for no item (TVI_ROOT and its like).
    static HTREEITEM Real(HTREEITEM item);

    // Walking
    HTREEITEM Next(HTREEITEM item, UINT code) const
    {
        return HTREEITEM(Ask(TVM_GETNEXTITEM, code, LPARAM(item)));
    }
    HTREEITEM Root() const { return Next(nullptr, TVGN_ROOT); }
    HTREEITEM Parent(HTREEITEM item) const { return Next(item, TVGN_PARENT); }
    // Tree order, collapsed branches included. NextInBranch ends behind the last descendant of
    // branch; null is the whole tree.
    HTREEITEM NextInBranch(HTREEITEM item, HTREEITEM branch) const;
    bool IsWithin(HTREEITEM item, HTREEITEM branch) const; // or the branch itself
    // The item itself, or the collapsed ancestor that hides it.
    HTREEITEM Shown(HTREEITEM item) const;

    // State
    HTREEITEM Caret() const { return Next(nullptr, TVGN_CARET); }
    // Whose label is being edited.
    HTREEITEM Edited() const;
    // Cancels that edit before an item of branch (null: any item) goes. False when the branch or
    // the tree did not survive it: the parent is told.
    bool CancelEditIn(HTREEITEM branch);
    UINT State(HTREEITEM item, UINT mask) const
    {
        const UINT written = item == m_unwritten ? mask & ~TVIS_SELECTED : mask;
        return item == nullptr ? 0 : UINT(Ask(TVM_GETITEMSTATE, WPARAM(item), mask)) & written;
    }
    bool IsSelected(HTREEITEM item) const { return State(item, TVIS_SELECTED) != 0; }
    LPARAM Data(HTREEITEM item) const;
    // Sets state bits without asking or telling anybody. The platform may do so by itself, with
    // TVN_ITEMCHANGING and TVN_ITEMCHANGED: the change may be refused, and anything end.
    void Apply(HTREEITEM item, UINT state, UINT mask);
    // Has the platform know all that Apply was told; due before it is asked past this class.
    void WriteUnwritten();

    // Layout in client pixels; empty for an item that is hidden.
    CRect Rect(HTREEITEM item, bool textOnly) const;
    int RowHeight() const { return int(Ask(TVM_GETITEMHEIGHT)); }

    // Selection
    size_t SelectedCount();
    // In tree order; a branch of null is the whole tree. A single item is found without a walk.
    std::vector<HTREEITEM> Selected(HTREEITEM branch = nullptr);
    std::vector<HTREEITEM> Unselected(HTREEITEM branch = nullptr);
    HTREEITEM NextSelected(HTREEITEM after); // in tree order; after null: the first
    // Whether an item is there only until the platform is done, and gone for everybody else.
    bool IsGoing(HTREEITEM item) const { return m_goingAll > 0 || m_going.count(item) != 0; }
    // As IsSelected, without asking the platform.
    bool HoldsSelected(HTREEITEM item);

    // Nothing is known any more: the tree's window has ended, or another one is taken over.
    void Reset();

    // Every message on its way to the platform's tree comes through here.
    LRESULT Native(UINT message, WPARAM wParam, LPARAM lParam);

    bool PaintsChanges() const { return m_hostRedraw; }

    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return m_owner.Platform(message, wParam, lParam);
    }

private:
    struct Postponed;

    TreeOwner& m_owner;
    const Removal m_remove;
    bool m_known = false;            // m_selected is what the item states say
    bool m_hostRedraw = true;        // the host's WM_SETREDRAW
    HTREEITEM m_caret = nullptr;     // when the knowledge was last brought into step
    HTREEITEM m_unwritten = nullptr; // the caret, deselected here and not yet at the platform
    std::unordered_set<HTREEITEM> m_selected;
    std::unordered_set<HTREEITEM> m_going;  // being deleted by the platform
    int m_goingAll = 0;                     // depth of deletions of everything
    int m_inPlatform = 0;                   // depth of messages in which the parent is told
    std::unique_ptr<Postponed> m_postponed; // to be deleted when that is over
    bool m_abandoned = false;               // the platform's tree does not hear of the window's end
    HWND m_edit = nullptr;                  // of a label
    HTREEITEM m_edited = nullptr;           // whose edit a message has begun, not the user
    bool m_cancelling = false;              // that edit
    // Outlives this object if a watch does.
    std::shared_ptr<WatchList> m_watches = std::make_shared<WatchList>();

    void WriteState(HTREEITEM item, UINT state, UINT mask);
    void Learn();
    void Refresh(HTREEITEM item);
    void Hold(HTREEITEM item, bool selected);
    void FollowCaret();
    std::vector<HTREEITEM> Forget(HTREEITEM branch, bool itself);
    void ForgetAll();
    void FollowEdit(UINT message, WPARAM wParam, LPARAM lParam);
    void LetEditGo();
    LRESULT ResetBranch(WPARAM action, LPARAM branch);
    static LRESULT CALLBACK InEdit(HWND edit, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR id, DWORD_PTR items);
    std::vector<HTREEITEM> Children(HTREEITEM branch) const; // of null: the topmost items
    void Postpone(const std::vector<HTREEITEM>& items);
    LRESULT PostponeBelow(HTREEITEM branch, WPARAM action);
    void DeletePostponed();

    friend class WatchedItems;
};

// Items that are held over calls that leave the library: an entry becomes null when its item is
// deleted. May outlive the tree.
class WatchedItems
{
public:
    WatchedItems(TreeItems& tree, std::vector<HTREEITEM> items)
        : m_list(tree.m_watches)
        , m_items(std::move(items))
    {
        m_list->push_back(this);
    }
    WatchedItems(const WatchedItems&) = delete;
    WatchedItems& operator=(const WatchedItems&) = delete;
    ~WatchedItems() { std::erase(*m_list, this); }

    size_t Size() const { return m_items.size(); }
    HTREEITEM operator[](size_t index) const { return m_items[index]; }
    const std::vector<HTREEITEM>& All() const { return m_items; }
    void Add(HTREEITEM item) { m_items.push_back(item); }
    void Set(std::vector<HTREEITEM> items) { m_items = std::move(items); }
    HTREEITEM TakeLast()
    {
        const HTREEITEM last = m_items.back();
        m_items.pop_back();
        return last;
    }

private:
    std::shared_ptr<WatchList> m_list;
    std::vector<HTREEITEM> m_items;

    friend class TreeItems;
};

struct TreeItems::Postponed
{
    explicit Postponed(TreeItems& tree)
        : items(tree, {})
        , branches(tree, {})
    {}
    WatchedItems items;
    WatchedItems branches; // that are reset: all that was below them is among the items
};

// One such item.
class WatchedItem
{
public:
    explicit WatchedItem(TreeItems& tree, HTREEITEM item = nullptr)
        : m_items(tree, {item})
    {}
    HTREEITEM Get() const { return m_items[0]; }
    void Set(HTREEITEM item) { m_items.Set({item}); }

private:
    WatchedItems m_items;
};

} // namespace trees
