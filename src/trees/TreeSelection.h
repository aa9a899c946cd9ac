#pragma once

#include "trees/TreeItems.h"

#include <afxtempl.h>

#include <memory>
#include <optional>

namespace trees {

class TreeLook;

// The selection of many items in a tree: what a click, a key, a range, a rubber band and a drag do
// to it, and what the parent is asked and told on the way. The platform's selected item is only the
// caret here; an item is selected when it has TVIS_SELECTED.
//
// Every notification and every dispatched message may delete items, clear the tree, or end window
// and object: nothing of this object is touched afterwards unless it is still there.
class TreeSelection
{
public:
    // Which part of an item the rubber band has to meet.
    enum class BandMeets
    {
        IconAndText,
        Row
    };

    static constexpr UINT_PTR BandTimer = 1011;
    static constexpr UINT BandTimerPeriod = 75; // milliseconds

    explicit TreeSelection(TreeOwner& owner);
    TreeSelection(const TreeSelection&) = delete;
    TreeSelection& operator=(const TreeSelection&) = delete;
    ~TreeSelection();

    TreeItems& Items() { return m_items; }
    bool IsMultiSelect() const { return m_multi; }
    void SetMultiSelect(bool multi);
    bool IsEmulatedNotify() const { return m_emulated; }
    void SetBandMeets(BandMeets meets) { m_bandMeets = meets; }

    // State changes
    int SetItemState(HTREEITEM item, UINT state, UINT mask, bool notify);
    UINT GetItemState(HTREEITEM item, UINT mask) const
    {
        const bool caret = item != nullptr && item == m_items.Caret();
        return m_items.State(item, mask) | (caret ? mask & TVIS_FOCUSED : 0);
    }
    bool SelectItem(HTREEITEM item);
    void FocusItem(HTREEITEM item);
    void SelectAll(bool select, bool notify);
    // What lies in branch (null: everywhere), but for one item.
    void SelectAllIgnore(HTREEITEM branch, bool select, HTREEITEM ignore);
    bool SelectChildren(HTREEITEM item, bool select, bool recurse);
    void SelectRange(HTREEITEM first, HTREEITEM last, bool only);

    void ListSelected(CTypedPtrList<CPtrList, HTREEITEM>& list);
    // The caller's to delete; null when nothing selected is in sight.
    CImageList* CreateDragImage();
    static CSize SystemDragThreshold()
    {
        return CSize(::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG));
    }

    // Fills in sender and id and asks the parent; 0 without one.
    int SendNotify(NMHDR* header);
    void InvalidateItem(HTREEITEM item, bool erase);
    void InvalidateStatesInSight();

    // Pointer and keys, each the whole handling of its message.
    void OnButtonDown(bool left, UINT flags, CPoint point);
    void DoPreSelection(HTREEITEM item, bool left, UINT flags);
    void DoAction(HTREEITEM item, bool left, UINT flags, CPoint point);
    void DoBanding(bool left, UINT flags, CPoint point);
    void UpdateSelectionForRect(const CRect& rect, UINT flags);
    void OnKeyDown(UINT key);
    void OnItemExpanding(const NMHDR* header);
    void OnFocusChanged();

    // Auto-scroll. point is in client pixels.
    int GetAutoScrollDirection(CPoint point);
    // The timer scrolls a rubber band while there is one, otherwise one line in direction.
    void StartAutoScroll(UINT_PTR id, UINT period, int direction);
    void DoAutoScroll();
    void StopAutoScroll();
    bool IsAutoScroll(UINT_PTR timer) const { return timer != 0 && timer == m_scrollTimer; }

    // At the begin of each window, made or taken over.
    void BeginWindow();
    void Paint();
    bool EraseBackground();
    LRESULT Native(UINT message, WPARAM wParam, LPARAM lParam);

private:
    struct Band;
    class BulkChange;
    enum class LoopEnd
    {
        ButtonUp,
        Moved,
        Lost, // the capture, the window or the application
    };

    TreeOwner& m_owner;
    TreeItems m_items;
    std::unique_ptr<TreeLook> m_look;
    bool m_multi = true;
    bool m_emulated = false; // a notification of ours is being sent
    bool m_bulk = false;     // many items change
    BandMeets m_bandMeets = BandMeets::IconAndText;
    WatchedItem m_anchor; // the fixed end of ranges
    UINT_PTR m_scrollTimer = 0;
    int m_scrollDirection = 0;
    bool m_inLoop = false;    // waiting for what a press becomes
    bool m_endsClick = false; // the button-up of a click is being dispatched
    DWORD m_pressSeen = 0;    // tick count of the press's last pointer message
    Band* m_band = nullptr;   // lives in DoBanding
    HWND m_laidOut = nullptr; // the window that the look is of

    CWnd& Window() const { return m_owner.Window(); }
    HWND Handle() const { return Window().GetSafeHwnd(); }

    bool SetCaret(HTREEITEM item);
    bool Put(const WatchedItem& item, bool selected);
    bool ClearFocus(const WatchedItem& item, bool wasSelected, UINT state, UINT& mask);
    bool TakeFocus(const WatchedItem& item, bool wasSelected, UINT& state, UINT& mask);
    int Announce(UINT code, HTREEITEM item, bool selecting);
    bool ChangeEach(const std::vector<HTREEITEM>& items, bool select, bool notify);
    bool Closes(HTREEITEM item, UINT action) const;
    void LeaveBranch(HTREEITEM item);
    LRESULT DeleteItem(HTREEITEM item);
    void GiveBack(const WatchedItem& previous, bool wasSelected);

    LoopEnd NextOfPress(MSG& message);
    LoopEnd WaitForMove(MSG& last);
    void Reset();
    template <class Take> void TakeWithoutSelecting(const Take& take, bool always);
    bool TakeKeyboard();
    bool BeginLoop();
    void EndLoop();
    void Click(const WatchedItem& item, UINT flags);
    void TellClick(const WatchedItem& item, bool left, CPoint point, const MSG& up);
    void BeginDrag(const WatchedItem& item, bool left, CPoint point);
    void ToggleCaret();
    void MoveArrow(const WatchedItem& caret, bool down, bool shift);

    CRect BandBox(HTREEITEM item) const;
    std::vector<HTREEITEM> ItemsMeeting(const CRect& rect);
    CPoint ContentOrigin() const;
    LoopEnd RunBand(Band& band, MSG& last);
    void MoveBand();
    void PlaceBand();
    void RestoreBeforeBand(Band& band);
    void ScrollForBand();
};

} // namespace trees
