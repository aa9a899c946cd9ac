#include "framework/ListCtrl.h"

#include "DragPicture.h"
#include "Reflection.h"
#include "TypedWindows.h"
#include "framework/ToolTipCtrl.h"

using framework::WindowAs;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return WindowAs<CHeaderCtrl>(HWND(Send(LVM_GETHEADER)));
}

CEdit* CListCtrl::GetEditControl() const
{
    return WindowAs<CEdit>(HWND(Send(LVM_GETEDITCONTROL)));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return WindowAs<CToolTipCtrl>(HWND(Send(LVM_GETTOOLTIPS)));
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int subItem)
{
    LVCOLUMN data = {};
    data.mask = LVCF_TEXT | LVCF_FMT;
    data.pszText = const_cast<LPTSTR>(heading);
    data.fmt = format;
    if (width != -1)
    {
        data.mask |= LVCF_WIDTH;
        data.cx = width;
    }
    if (subItem != -1)
    {
        data.mask |= LVCF_SUBITEM;
        data.iSubItem = subItem;
    }
    return InsertColumn(column, &data);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT columns, int count) const
{
    const int all = count == -1 ? GetHeaderCtrl()->GetItemCount() : count;
    return BOOL(Send(LVM_GETCOLUMNORDERARRAY, all, LPARAM(columns)));
}

int CListCtrl::InsertItem(UINT mask, int index, LPCTSTR text, UINT state, UINT stateMask, int image,
                          LPARAM data)
{
    LVITEM item = {};
    item.mask = mask;
    item.iItem = index;
    item.pszText = const_cast<LPTSTR>(text);
    item.state = state;
    item.stateMask = stateMask;
    item.iImage = image;
    item.lParam = data;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state,
                        UINT stateMask, LPARAM data)
{
    LVITEM item = {};
    item.mask = mask;
    item.iItem = index;
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = data;
    return SetItem(&item);
}

int CListCtrl::GetItemText(int index, int subItem, LPTSTR buffer, int size) const
{
    LVITEM item = {};
    item.iSubItem = subItem;
    item.pszText = buffer;
    item.cchTextMax = size;
    return int(Send(LVM_GETITEMTEXT, index, LPARAM(&item)));
}

CString CListCtrl::GetItemText(int index, int subItem) const
{
    // The control does not tell how long a text is: one that fills the buffer may be cut, and may
    // have no null but the one behind the buffer.
    CString text;
    int size = 256;
    while (GetItemText(index, subItem, text.GetBufferSetLength(size), size) >= size - 1)
    {
        size *= 2;
    }
    text.ReleaseBuffer();
    return text;
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text)
{
    LVITEM item = {};
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    return BOOL(Send(LVM_SETITEMTEXT, index, LPARAM(&item)));
}

DWORD_PTR CListCtrl::GetItemData(int index) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    return GetItem(&item) ? DWORD_PTR(item.lParam) : 0;
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask)
{
    LVITEM item = {};
    item.state = state;
    item.stateMask = mask;
    return SetItemState(index, &item);
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int index = int(reinterpret_cast<INT_PTR>(position)) - 1;
    position = SelectedAfter(index);
    return index;
}

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT part) const
{
    rect->left = LONG(part);
    return BOOL(Send(LVM_GETITEMRECT, index, LPARAM(rect)));
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int part, CRect& rect) const
{
    rect.left = part;
    rect.top = subItem;
    return BOOL(Send(LVM_GETSUBITEMRECT, index, LPARAM(&rect)));
}

CSize CListCtrl::ApproximateViewRect(CSize proposed, int count) const
{
    return CSize(DWORD(Send(LVM_APPROXIMATEVIEWRECT, count, MAKELPARAM(proposed.cx, proposed.cy))));
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const
{
    LVHITTESTINFO info = {};
    info.pt = point;
    const int index = HitTest(&info);
    if (flags != nullptr)
    {
        *flags = info.flags;
    }
    return index;
}

CEdit* CListCtrl::EditLabel(int index)
{
    return WindowAs<CEdit>(HWND(Send(LVM_EDITLABEL, index)));
}

CImageList* CListCtrl::CreateDragImage(int index, LPPOINT point)
{
    return framework::DragPicture(Send(LVM_CREATEDRAGIMAGE, index, LPARAM(point)));
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? framework::DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}
