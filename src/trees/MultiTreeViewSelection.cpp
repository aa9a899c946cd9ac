// The tree view: selection and look, which are MultiTree's.

#include "MultiTreeView.h"

#include "trees/DragImage.h"
#include "trees/TreeSelection.h"

using trees::TreeItems;
using trees::TreeSelection;

// Selection -------------------------------------------------------------------------------------

bool MultiTreeView::IsMultiSelect() const
{
    return m_selection->IsMultiSelect();
}

void MultiTreeView::SetMultiSelect(bool multi)
{
    m_selection->SetMultiSelect(multi);
}

bool MultiTreeView::IsEmulatedNotify() const
{
    return m_selection->IsEmulatedNotify();
}

void MultiTreeView::SetBandingHit(bool wholeRow)
{
    m_selection->SetBandMeets(wholeRow ? TreeSelection::BandMeets::Row
                                       : TreeSelection::BandMeets::IconAndText);
}

UINT MultiTreeView::GetSelectedCount() const
{
    return UINT(m_selection->Items().SelectedCount());
}

HTREEITEM MultiTreeView::GetFirstSelectedItem() const
{
    return m_selection->Items().NextSelected(nullptr);
}

HTREEITEM MultiTreeView::GetNextSelectedItem(HTREEITEM item) const
{
    item = TreeItems::Real(item);
    return item == nullptr ? nullptr : m_selection->Items().NextSelected(item);
}

void MultiTreeView::GetSelectedList(CTypedPtrList<CPtrList, HTREEITEM>& list) const
{
    m_selection->ListSelected(list);
}

HTREEITEM MultiTreeView::GetFocusedItem() const
{
    return m_selection->Items().Caret();
}

void MultiTreeView::SelectAll(bool select, bool notify)
{
    m_selection->SelectAll(select, notify);
}

void MultiTreeView::SelectAllIgnore(HTREEITEM branch, bool select, HTREEITEM ignore)
{
    m_selection->SelectAllIgnore(branch, select, ignore);
}

bool MultiTreeView::SelectChildren(HTREEITEM item, bool select, bool recurse)
{
    return m_selection->SelectChildren(item, select, recurse);
}

void MultiTreeView::SelectRange(HTREEITEM first, HTREEITEM last, bool only)
{
    m_selection->SelectRange(first, last, only);
}

bool MultiTreeView::IsSelected(HTREEITEM item) const
{
    return m_selection->Items().IsSelected(TreeItems::Real(item));
}

bool MultiTreeView::CanCtrlSelectItem(HTREEITEM item)
{
    return TreeItems::Real(item) != nullptr;
}

int MultiTreeView::SetItemState(HTREEITEM item, UINT state, UINT mask, bool notify)
{
    return m_selection->SetItemState(item, state, mask, notify);
}

UINT MultiTreeView::GetItemState(HTREEITEM item, UINT mask) const
{
    return m_selection->GetItemState(TreeItems::Real(item), mask);
}

bool MultiTreeView::SelectItem(HTREEITEM item)
{
    return m_selection->SelectItem(item);
}

void MultiTreeView::FocusItem(HTREEITEM item)
{
    m_selection->FocusItem(item);
}

void MultiTreeView::InvalidateItem(HTREEITEM item, bool erase)
{
    m_selection->InvalidateItem(item, erase);
}

int MultiTreeView::_SendNotify(NMHDR* header)
{
    return m_selection->SendNotify(header);
}

// Dragging --------------------------------------------------------------------------------------

CImageList* MultiTreeView::CreateDragImage()
{
    return m_selection->CreateDragImage();
}

int MultiTreeView::GetDragKind(int&)
{
    return 0;
}

void MultiTreeView::GetSelectedItems(HTREEITEM, KArray&) {}

void MultiTreeView::DragEnded(HWND) {}

CSize MultiTreeView::GetDragThreshold()
{
    return TreeSelection::SystemDragThreshold();
}

// Pointer and keys ------------------------------------------------------------------------------

void MultiTreeView::OnButtonDown(bool left, UINT flags, CPoint point)
{
    m_selection->OnButtonDown(left, flags, point);
}

void MultiTreeView::DoPreSelection(HTREEITEM item, bool left, UINT flags)
{
    m_selection->DoPreSelection(item, left, flags);
}

void MultiTreeView::DoAction(HTREEITEM item, bool left, UINT flags, CPoint point)
{
    m_selection->DoAction(item, left, flags, point);
}

void MultiTreeView::DoBanding(bool left, UINT flags, CPoint point)
{
    m_selection->DoBanding(left, flags, point);
}

void MultiTreeView::UpdateSelectionForRect(const CRect& rect, UINT flags)
{
    m_selection->UpdateSelectionForRect(rect, flags);
}

int MultiTreeView::GetAutoScrollDirection(CPoint point) const
{
    return m_selection->GetAutoScrollDirection(point);
}

void MultiTreeView::DoAutoScroll()
{
    m_selection->DoAutoScroll();
}

void MultiTreeView::StopAutoScroll()
{
    m_selection->StopAutoScroll();
}

// Messages --------------------------------------------------------------------------------------

void MultiTreeView::OnPaint()
{
    m_selection->Paint();
}

BOOL MultiTreeView::OnEraseBkgnd(CDC* dc)
{
    return m_selection->EraseBackground() ? TRUE : CTreeView::OnEraseBkgnd(dc);
}

void MultiTreeView::OnLButtonDown(UINT flags, CPoint point)
{
    if (!HoldsPointer())
    {
        OnButtonDown(true, flags, point);
    }
}

void MultiTreeView::OnRButtonDown(UINT flags, CPoint point)
{
    if (!HoldsPointer())
    {
        OnButtonDown(false, flags, point);
    }
}

void MultiTreeView::OnSetFocus(CWnd*)
{
    m_selection->OnFocusChanged();
}

void MultiTreeView::OnKillFocus(CWnd*)
{
    m_selection->OnFocusChanged();
}

void MultiTreeView::OnItemExpanding(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_selection->OnItemExpanding(header);
}

void MultiTreeView::OnKeyDown(UINT key, UINT, UINT)
{
    m_selection->OnKeyDown(key);
}
