#include "MultiTree.h"

#include "trees/DragImage.h"
#include "trees/TreeSelection.h"

using trees::TreeItems;
using trees::TreeSelection;

IMPLEMENT_DYNCREATE(MultiTree, CTreeCtrl)

BEGIN_MESSAGE_MAP(MultiTree, CTreeCtrl)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &MultiTree::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDING, &MultiTree::OnItemExpanding)
END_MESSAGE_MAP()

MultiTree::MultiTree()
    : m_owner(std::make_unique<Owner>(*this))
    , m_selection(std::make_unique<TreeSelection>(*m_owner))
{
    EnableActiveAccessibility();
}

MultiTree::~MultiTree()
{
    // While the object is still whole: the window's last messages come to it.
    if (FromHandlePermanent(m_hWnd) == this)
    {
        DestroyWindow();
    }
}

// Lifetime --------------------------------------------------------------------------------------

bool MultiTree::SubclassTreeCtrlId(UINT id, CWnd* parent)
{
    return SubclassDlgItem(id, parent) != FALSE;
}

BOOL MultiTree::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= TVS_SHOWSELALWAYS;
    m_creating = true;
    return CTreeCtrl::PreCreateWindow(cs);
}

void MultiTree::PreSubclassWindow()
{
    CTreeCtrl::PreSubclassWindow();
    m_selection->BeginWindow();
    if (!m_creating)
    {
        ModifyStyle(0, TVS_SHOWSELALWAYS); // a tree that exists already
    }
    m_creating = false;
}

LRESULT MultiTree::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_selection->Native(message, wParam, lParam);
}

// Selection -------------------------------------------------------------------------------------

bool MultiTree::IsMultiSelect() const
{
    return m_selection->IsMultiSelect();
}

void MultiTree::SetMultiSelect(bool multi)
{
    m_selection->SetMultiSelect(multi);
}

bool MultiTree::IsEmulatedNotify() const
{
    return m_selection->IsEmulatedNotify();
}

void MultiTree::SetBandingHit(bool wholeRow)
{
    m_selection->SetBandMeets(wholeRow ? TreeSelection::BandMeets::Row
                                       : TreeSelection::BandMeets::IconAndText);
}

UINT MultiTree::GetSelectedCount() const
{
    return UINT(m_selection->Items().SelectedCount());
}

HTREEITEM MultiTree::GetFirstSelectedItem() const
{
    return m_selection->Items().NextSelected(nullptr);
}

HTREEITEM MultiTree::GetNextSelectedItem(HTREEITEM item) const
{
    item = TreeItems::Real(item);
    return item == nullptr ? nullptr : m_selection->Items().NextSelected(item);
}

void MultiTree::GetSelectedList(CTypedPtrList<CPtrList, HTREEITEM>& list) const
{
    m_selection->ListSelected(list);
}

HTREEITEM MultiTree::GetFocusedItem() const
{
    return m_selection->Items().Caret();
}

void MultiTree::SelectAll(bool select, bool notify)
{
    m_selection->SelectAll(select, notify);
}

void MultiTree::SelectAllIgnore(bool select, HTREEITEM ignore)
{
    m_selection->SelectAllIgnore(nullptr, select, ignore);
}

bool MultiTree::SelectChildren(HTREEITEM item, bool select, bool recurse)
{
    return m_selection->SelectChildren(item, select, recurse);
}

void MultiTree::SelectRange(HTREEITEM first, HTREEITEM last, bool only)
{
    m_selection->SelectRange(first, last, only);
}

bool MultiTree::IsSelected(HTREEITEM item) const
{
    return m_selection->Items().IsSelected(TreeItems::Real(item));
}

bool MultiTree::CanCtrlSelectItem(HTREEITEM item)
{
    return TreeItems::Real(item) != nullptr;
}

int MultiTree::SetItemState(HTREEITEM item, UINT state, UINT mask, bool notify)
{
    return m_selection->SetItemState(item, state, mask, notify);
}

UINT MultiTree::GetItemState(HTREEITEM item, UINT mask) const
{
    return m_selection->GetItemState(TreeItems::Real(item), mask);
}

bool MultiTree::SelectItem(HTREEITEM item)
{
    return m_selection->SelectItem(item);
}

void MultiTree::FocusItem(HTREEITEM item)
{
    m_selection->FocusItem(item);
}

void MultiTree::InvalidateItem(HTREEITEM item, bool erase)
{
    m_selection->InvalidateItem(item, erase);
}

int MultiTree::_SendNotify(NMHDR* header)
{
    return m_selection->SendNotify(header);
}

// Dragging --------------------------------------------------------------------------------------

CImageList* MultiTree::CreateDragImage()
{
    return m_selection->CreateDragImage();
}

int MultiTree::GetDragKind(int&)
{
    return 0;
}

void MultiTree::GetSelectedItems(HTREEITEM, KArray&) {}

void MultiTree::DragEnded(HWND) {}

CSize MultiTree::GetDragThreshold()
{
    return TreeSelection::SystemDragThreshold();
}

CSize MultiTree::GetCursorSize() const
{
    return trees::CursorSize();
}

// Pointer and keys ------------------------------------------------------------------------------

void MultiTree::OnButtonDown(bool left, UINT flags, CPoint point)
{
    m_selection->OnButtonDown(left, flags, point);
}

void MultiTree::DoPreSelection(HTREEITEM item, bool left, UINT flags)
{
    m_selection->DoPreSelection(item, left, flags);
}

void MultiTree::DoAction(HTREEITEM item, bool left, UINT flags, CPoint point)
{
    m_selection->DoAction(item, left, flags, point);
}

void MultiTree::DoBanding(bool left, UINT flags, CPoint point)
{
    m_selection->DoBanding(left, flags, point);
}

void MultiTree::UpdateSelectionForRect(const CRect& rect, UINT flags)
{
    m_selection->UpdateSelectionForRect(rect, flags);
}

int MultiTree::GetAutoScrollDirection(CPoint point) const
{
    return m_selection->GetAutoScrollDirection(point);
}

void MultiTree::DoAutoScroll()
{
    m_selection->DoAutoScroll();
}

void MultiTree::StopAutoScroll()
{
    m_selection->StopAutoScroll();
}

// Messages --------------------------------------------------------------------------------------

void MultiTree::OnPaint()
{
    m_selection->Paint();
}

BOOL MultiTree::OnEraseBkgnd(CDC* dc)
{
    return m_selection->EraseBackground() ? TRUE : CTreeCtrl::OnEraseBkgnd(dc);
}

void MultiTree::OnLButtonDown(UINT flags, CPoint point)
{
    OnButtonDown(true, flags, point);
}

void MultiTree::OnRButtonDown(UINT flags, CPoint point)
{
    OnButtonDown(false, flags, point);
}

void MultiTree::OnSetFocus(CWnd*)
{
    m_selection->OnFocusChanged();
}

void MultiTree::OnKillFocus(CWnd*)
{
    m_selection->OnFocusChanged();
}

void MultiTree::OnKeyDown(UINT key, UINT, UINT)
{
    m_selection->OnKeyDown(key);
}

void MultiTree::OnTimer(UINT_PTR id)
{
    if (m_selection->IsAutoScroll(id))
    {
        DoAutoScroll();
        return;
    }
    CTreeCtrl::OnTimer(id);
}

void MultiTree::OnItemExpanding(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_selection->OnItemExpanding(header);
}
