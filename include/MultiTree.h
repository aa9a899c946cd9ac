#pragma once

#include "OnBoardUIExport.h"
#include "TreeItemState.h"

#include <afxcmn.h>
#include <afxtempl.h>

#include <YAUL.h>

#include <memory>

namespace trees {
class TreeSelection;
template <class Tree, class PlatformBase> class OwnerOf;
} // namespace trees

// A tree in which many items can be selected: by clicks and arrow keys with Shift and Ctrl, and
// with a rubber band drawn from empty space. The platform's selected item is only the caret (the
// focus) here; an item is selected when it has TVIS_SELECTED. The parent is asked before each
// change by TVN_SELCHANGING and may refuse it, and told afterwards by TVN_SELCHANGED, as with the
// platform's tree. It may delete items, the tree's window or the tree itself in any of them.
//
// In an on-board mode the tree has the library's colours and font, and rows and levels for a
// finger; it follows mode changes both ways by itself. A height of rows and an indent that the host
// sets, at any time, are those of the standard mode, and the least ones on-board.
//
// Items are the platform's handles; null, and the constants that stand for no item, are nothing to
// be done. Points and rectangles are in client pixels.
class ONBOARDUI_API MultiTree : public CTreeCtrl
{
    DECLARE_DYNCREATE(MultiTree)

public:
    MultiTree();
    ~MultiTree() override;

    // Takes over a tree that is already on a dialog. False when there is none, or when it or this
    // object is taken.
    bool SubclassTreeCtrlId(UINT id, CWnd* parent);

    // @{
    // Without multiple selection the tree is the platform's. Switching it off leaves the caret
    // selected and nothing else.
    bool IsMultiSelect() const;
    void SetMultiSelect(bool multi);
    // @}

    // Whether the notification in progress was made here rather than by the platform.
    bool IsEmulatedNotify() const;
    // What of an item a rubber band has to meet: its whole row, or its icon and text (the default).
    void SetBandingHit(bool wholeRow);

    // How many items are selected, those in collapsed branches too.
    UINT GetSelectedCount() const;
    // The first of them in tree order; null when nothing is selected.
    HTREEITEM GetFirstSelectedItem() const;
    // The one after an item, which need not be selected itself; null after the last and for null.
    HTREEITEM GetNextSelectedItem(HTREEITEM item) const;
    void GetSelectedList(CTypedPtrList<CPtrList, HTREEITEM>& list) const; // replaces its content
    // The item with the caret; null for none.
    HTREEITEM GetFocusedItem() const;

    // @{
    // Select or deselect all items, or all but one. Items that are as wanted already are left
    // alone. notify false: the parent is asked, not told; SelectAllIgnore tells it. Without
    // multiple selection SelectAll(false) takes the caret away, and all else is nothing to be done.
    void SelectAll(bool select, bool notify);
    void SelectAllIgnore(bool select, HTREEITEM ignore);
    // @}

    // The children of an item (null: the topmost items), or all below it. Whether any has changed.
    bool SelectChildren(HTREEITEM item, bool select, bool recurse);
    // Selects from one item to another as the user sees them, whichever comes first; only: and
    // deselects the others. An end hidden in a collapsed branch stands for that branch, and a null
    // one for the other end. The parent is asked and not told.
    virtual void SelectRange(HTREEITEM first, HTREEITEM last, bool only);
    // False for what is no item. For hosts: the tree's own rules go by the items' states.
    virtual bool IsSelected(HTREEITEM item) const;
    // Whether the user may add an item to the selection with Ctrl, by a click or by Space, and drag
    // it: not null.
    virtual bool CanCtrlSelectItem(HTREEITEM item);

    // Changes state bits. TVIS_FOCUSED moves the caret without selecting; TVIS_SELECTED asks and
    // tells the parent, as above. FALSE when it is refused.
    int SetItemState(HTREEITEM item, UINT state, UINT mask, bool notify = true);
    UINT GetItemState(HTREEITEM item, UINT mask) const; // the caret's has TVIS_FOCUSED
    // Selects an item alone and gives it the caret; null: nothing is selected and no caret.
    bool SelectItem(HTREEITEM item);
    // Moves the caret alone; null takes it away. Without multiple selection the caret is the
    // platform's, and stays.
    void FocusItem(HTREEITEM item);
    // Has the item's row painted again, erased before if so wished; nothing for one out of sight.
    void InvalidateItem(HTREEITEM item, bool erase);

    // The icons and texts of the selected items in sight as one picture for a drag. The list is the
    // caller's to delete; null when nothing selected is in sight.
    virtual CImageList* CreateDragImage();
    // @{
    // For a derived class that drags after TVN_BEGINDRAG: what kind of thing a drag carries, what
    // it carries of this item (appended), and its end over the window that took it, or null. Nobody
    // calls them here, and they do nothing.
    virtual int GetDragKind(int& kind);
    virtual void GetSelectedItems(HTREEITEM item, KArray& payload);
    virtual void DragEnded(HWND accepted);
    // @}
    // How far the pointer moves, in pixels, before a press becomes a drag.
    virtual CSize GetDragThreshold();
    // Pixels of the cursor's picture; the image of a drag may lie beside it.
    CSize GetCursorSize() const;

    // Sends the parent a notification from this window and gives its answer; 0 without a parent.
    int _SendNotify(NMHDR* header);

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: an outline, named by the label before it, of items with
    // their texts; an item's value is its level from 0 on. Where the platform numbers the items of
    // its trees it answers for them itself, otherwise an item's child id is its place in tree order
    // from 1 on.
    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accValue(VARIANT child, BSTR* value) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accFocus(VARIANT* child) override;
    HRESULT get_accSelection(VARIANT* children) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    // @}

    // Selects as the user does: the parent is asked and told.
    HRESULT accSelect(long flags, VARIANT child) override;

    // @{
    // Where an item is on the screen, in pixels; its neighbours, parent and children; the item at a
    // point of the screen, or the tree itself where there is none. E_INVALIDARG for an item that is
    // not there.
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    // @}

    // Opens or closes a branch.
    HRESULT accDoDefaultAction(VARIANT child) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // @{
    // A press, from its message on: OnButtonDown takes it, DoPreSelection selects what the press
    // itself selects, DoAction waits whether it becomes a click or a drag, DoBanding runs a rubber
    // band from empty space, and UpdateSelectionForRect selects what the band meets, with
    // MK_CONTROL besides what was selected. They return when it is over and may find the tree gone.
    void OnButtonDown(bool left, UINT flags, CPoint point);
    void DoPreSelection(HTREEITEM item, bool left, UINT flags);
    void DoAction(HTREEITEM item, bool left, UINT flags, CPoint point);
    void DoBanding(bool left, UINT flags, CPoint point);
    void UpdateSelectionForRect(const CRect& rect, UINT flags);
    // @}

    // -1 near the upper edge, +1 near the lower one, while there is more that way; otherwise 0.
    int GetAutoScrollDirection(CPoint point) const;
    // A step of the scrolling in progress: of a rubber band as the pointer asks, else of one line.
    void DoAutoScroll();
    // Ends the scrolling and its timer.
    void StopAutoScroll();

    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* taker);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnItemExpanding(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    using Owner = trees::OwnerOf<MultiTree, CTreeCtrl>;
    friend Owner;

    bool m_creating = false; // the window is being made by this object
    std::unique_ptr<Owner> m_owner;
    std::unique_ptr<trees::TreeSelection> m_selection;
};
