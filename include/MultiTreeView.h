#pragma once

#include "OnBoardUIExport.h"
#include "TreeItemState.h"

#include <afxcview.h>
#include <afxtempl.h>

#include <YAUL.h>

#include <memory>

namespace trees {
class TreeSelection;
template <class Tree, class PlatformBase> class OwnerOf;
} // namespace trees

// The tree of many selected items as a view, which also drags them to other windows of the
// application. The selection is MultiTree's in every respect.
//
// A drag sends registered messages to the window under the pointer: Drop, or Copy with Ctrl, where
// the button is released (wParam a POINT on the screen, lParam the payload, a KArray; the pointers
// in it belong to who put them there), and Leave (0, 0) to a window that the pointer leaves. A
// window that takes the payload answers other than 0. As a target a view scrolls by itself while it
// is sent Track (wParam a POINT on the screen) near its upper or lower edge, which no view sends:
// drags of the host's own may. A derived view takes what is dropped. A window of another process is
// sent null for both pointers and takes nothing.
//
// As every view it is made on the heap and deletes itself with its window.
class ONBOARDUI_API MultiTreeView : public CTreeView
{
    DECLARE_DYNCREATE(MultiTreeView)

public:
    MultiTreeView();
    ~MultiTreeView() override;

    // @{
    // As the functions of these names of MultiTree: the same arguments and results, and the parent
    // is asked and told of the same.
    bool IsMultiSelect() const;
    void SetMultiSelect(bool multi);
    bool IsEmulatedNotify() const;
    void SetBandingHit(bool wholeRow);
    UINT GetSelectedCount() const;
    HTREEITEM GetFirstSelectedItem() const;
    HTREEITEM GetNextSelectedItem(HTREEITEM item) const;
    void GetSelectedList(CTypedPtrList<CPtrList, HTREEITEM>& list) const;
    HTREEITEM GetFocusedItem() const;
    bool IsSelected(HTREEITEM item) const;
    virtual void SelectAll(bool select, bool notify);
    // @}

    // Of what lies in branch, itself included; null: of everything.
    void SelectAllIgnore(HTREEITEM branch, bool select, HTREEITEM ignore);

    // @{
    // As the functions of these names of MultiTree.
    bool SelectChildren(HTREEITEM item, bool select, bool recurse);
    virtual void SelectRange(HTREEITEM first, HTREEITEM last, bool only);
    virtual bool CanCtrlSelectItem(HTREEITEM item);
    int SetItemState(HTREEITEM item, UINT state, UINT mask, bool notify = true);
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    bool SelectItem(HTREEITEM item);
    void FocusItem(HTREEITEM item);
    void InvalidateItem(HTREEITEM item, bool erase);
    // @}

    // The picture of a drag; without one there is no drag to be seen or tracked.
    virtual CImageList* CreateDragImage();
    // For a derived class: what kind of thing a drag carries. Nobody asks here.
    virtual int GetDragKind(int& kind);
    // Appends what an item contributes to the payload of a drag that starts. Nothing here.
    virtual void GetSelectedItems(HTREEITEM item, KArray& payload);
    // A drag has ended over the window that took it; null: nobody did, or it was cancelled.
    virtual void DragEnded(HWND accepted);
    // How far the pointer moves, in pixels, before a press becomes a drag.
    virtual CSize GetDragThreshold();
    // Pixels of the cursor's picture; the image of a drag lies beside it.
    CSize GetCursorSize() const;

    // Sends the parent a notification from this window and gives its answer; 0 without a parent.
    int _SendNotify(NMHDR* header);

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told, as of a MultiTree: an outline, named by the label before
    // it, of items with their texts; an item's value is its level from 0 on. Where the platform
    // numbers the items of its trees it answers for them itself, otherwise an item's child id is
    // its place in tree order from 1 on.
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

    // @{
    // The registered messages, the same for all views of the process; 0 before the first view.
    static UINT mnDragTrackMsg;
    static UINT mnDragLeaveMsg;
    static UINT mnDragDropMsg;
    static UINT mnDragCopyMsg;
    // @}

    // @{
    // Private messages. To TogglePeeledMessage lParam says whether the view is torn off. For
    // GetCaptionTextMessage lParam is a buffer of wParam characters in this thread, which gets the
    // caption if that fits with its final null: non-zero then.
    static constexpr UINT TogglePeeledMessage = WM_USER + 20;
    static constexpr UINT GetCaptionTextMessage = WM_USER + 21;
    // @}

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // @{
    // Press, rubber band and scrolling, as the functions of these names of MultiTree.
    void OnButtonDown(bool left, UINT flags, CPoint point);
    void DoPreSelection(HTREEITEM item, bool left, UINT flags);
    void DoAction(HTREEITEM item, bool left, UINT flags, CPoint point);
    void DoBanding(bool left, UINT flags, CPoint point);
    void UpdateSelectionForRect(const CRect& rect, UINT flags);
    int GetAutoScrollDirection(CPoint point) const;
    void DoAutoScroll();
    void StopAutoScroll();
    // @}

    // Ends a drag whose button is no longer down.
    void CheckDragState();

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* taker);
    afx_msg void OnItemExpanding(NMHDR* header, LRESULT* result);
    afx_msg void OnBeginDrag(NMHDR* header, LRESULT* result);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg LRESULT OnDragTrack(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDragLeave(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDragDrop(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDragCopy(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTogglePeeled(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetCaptionText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    KArray m_payload;      // what is being dragged
    bool m_peeled = false; // shown in a torn-off window
    std::unique_ptr<CImageList> m_dragImage;
    bool m_dragging = false;
    HWND m_dragTarget = nullptr;   // the window under the pointer at its last move
    UINT_PTR m_dragCheckTimer = 0; // 0: not running

private:
    using Owner = trees::OwnerOf<MultiTreeView, CTreeView>;
    friend Owner;
    struct DragItem;

    bool m_creating = false; // the window is being made by this object
    std::unique_ptr<Owner> m_owner;
    std::unique_ptr<trees::TreeSelection> m_selection;
    std::unique_ptr<DragItem> m_dragItem; // the item that the drag started on

    bool IsDragShown() const;
    // Whether a drag has the pointer, so that a press is nothing to the selection.
    bool HoldsPointer() const { return m_dragging && m_dragImage != nullptr; }
    void ForgetDrag();
    void CancelDrag();
};
