#pragma once

#include "framework/Controls.h"
#include "framework/HeaderCtrl.h"

struct __POSITION;
using POSITION = __POSITION*;

class CToolTipCtrl;

// The platform's list view. Items and columns count from 0; subitem 0 is the item itself.
class FRAMEWORK_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    FRAMEWORK_COMMON_CONTROL_CREATE(WC_LISTVIEW)

    // Looks
    DWORD GetExtendedStyle() const { return DWORD(Send(LVM_GETEXTENDEDLISTVIEWSTYLE)); }
    DWORD SetExtendedStyle(DWORD style)
    {
        return DWORD(Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LPARAM(style)));
    }
    DWORD GetView() const { return DWORD(Send(LVM_GETVIEW)); }
    DWORD SetView(int view) { return DWORD(Send(LVM_SETVIEW, view)); }
    COLORREF GetBkColor() const { return COLORREF(Send(LVM_GETBKCOLOR)); }
    BOOL SetBkColor(COLORREF color) { return BOOL(Send(LVM_SETBKCOLOR, 0, LPARAM(color))); }
    COLORREF GetTextColor() const { return COLORREF(Send(LVM_GETTEXTCOLOR)); }
    BOOL SetTextColor(COLORREF color) { return BOOL(Send(LVM_SETTEXTCOLOR, 0, LPARAM(color))); }
    COLORREF GetTextBkColor() const { return COLORREF(Send(LVM_GETTEXTBKCOLOR)); }
    BOOL SetTextBkColor(COLORREF color) { return BOOL(Send(LVM_SETTEXTBKCOLOR, 0, LPARAM(color))); }
    CImageList* GetImageList(int kind) const
    {
        return CImageList::FromHandle(HIMAGELIST(Send(LVM_GETIMAGELIST, kind)));
    }
    CImageList* SetImageList(CImageList* images, int kind)
    {
        const HIMAGELIST handle = images == nullptr ? nullptr : images->m_hImageList;
        return CImageList::FromHandle(HIMAGELIST(Send(LVM_SETIMAGELIST, kind, LPARAM(handle))));
    }
    UINT GetCallbackMask() const { return UINT(Send(LVM_GETCALLBACKMASK)); }
    BOOL SetCallbackMask(UINT mask) { return BOOL(Send(LVM_SETCALLBACKMASK, int(mask))); }
    // Objects of the control's parts; null when there is none.
    CHeaderCtrl* GetHeaderCtrl() const;
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;

    // Columns
    BOOL GetColumn(int column, LVCOLUMN* data) const
    {
        return BOOL(Send(LVM_GETCOLUMN, column, LPARAM(data)));
    }
    BOOL SetColumn(int column, const LVCOLUMN* data)
    {
        return BOOL(Send(LVM_SETCOLUMN, column, LPARAM(data)));
    }
    // Returns the index of the new column, or -1.
    int InsertColumn(int column, const LVCOLUMN* data)
    {
        return int(Send(LVM_INSERTCOLUMN, column, LPARAM(data)));
    }
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1,
                     int subItem = -1);
    BOOL DeleteColumn(int column) { return BOOL(Send(LVM_DELETECOLUMN, column)); }
    int GetColumnWidth(int column) const { return int(Send(LVM_GETCOLUMNWIDTH, column)); }
    BOOL SetColumnWidth(int column, int width)
    {
        return BOOL(Send(LVM_SETCOLUMNWIDTH, column, MAKELPARAM(width, 0)));
    }
    BOOL GetColumnOrderArray(LPINT columns, int count = -1) const;
    BOOL SetColumnOrderArray(int count, LPINT columns)
    {
        return BOOL(Send(LVM_SETCOLUMNORDERARRAY, count, LPARAM(columns)));
    }

    // Items
    int GetItemCount() const { return int(Send(LVM_GETITEMCOUNT)); }
    void SetItemCount(int count) { Send(LVM_SETITEMCOUNT, count); }
    BOOL SetItemCountEx(int count, DWORD flags = LVSICF_NOINVALIDATEALL)
    {
        return BOOL(Send(LVM_SETITEMCOUNT, count, LPARAM(flags)));
    }
    // Insertions return the index of the new item, or -1.
    int InsertItem(const LVITEM* item) { return int(Send(LVM_INSERTITEM, 0, LPARAM(item))); }
    int InsertItem(int index, LPCTSTR text)
    {
        return InsertItem(LVIF_TEXT, index, text, 0, 0, 0, 0);
    }
    int InsertItem(int index, LPCTSTR text, int image)
    {
        return InsertItem(LVIF_TEXT | LVIF_IMAGE, index, text, 0, 0, image, 0);
    }
    int InsertItem(UINT mask, int index, LPCTSTR text, UINT state, UINT stateMask, int image,
                   LPARAM data);
    BOOL DeleteItem(int index) { return BOOL(Send(LVM_DELETEITEM, index)); }
    BOOL DeleteAllItems() { return BOOL(Send(LVM_DELETEALLITEMS)); }
    BOOL GetItem(LVITEM* item) const { return BOOL(Send(LVM_GETITEM, 0, LPARAM(item))); }
    BOOL SetItem(const LVITEM* item) { return BOOL(Send(LVM_SETITEM, 0, LPARAM(item))); }
    BOOL SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state,
                 UINT stateMask, LPARAM data);
    // Returns the length copied.
    int GetItemText(int index, int subItem, LPTSTR buffer, int size) const;
    CString GetItemText(int index, int subItem) const;
    BOOL SetItemText(int index, int subItem, LPCTSTR text);
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR data)
    {
        return SetItem(index, 0, LVIF_PARAM, nullptr, 0, 0, 0, LPARAM(data));
    }
    int FindItem(LVFINDINFO* find, int after = -1) const
    {
        return int(Send(LVM_FINDITEM, after, LPARAM(find)));
    }
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
    {
        return BOOL(SendMessage(LVM_SORTITEMS, data, LPARAM(compare)));
    }
    BOOL SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data)
    {
        return BOOL(SendMessage(LVM_SORTITEMSEX, data, LPARAM(compare)));
    }

    // State and selection
    UINT GetItemState(int index, UINT mask) const
    {
        return UINT(Send(LVM_GETITEMSTATE, index, LPARAM(mask)));
    }
    BOOL SetItemState(int index, LVITEM* item)
    {
        return BOOL(Send(LVM_SETITEMSTATE, index, LPARAM(item)));
    }
    BOOL SetItemState(int index, UINT state, UINT mask);
    BOOL GetCheck(int index) const { return (GetItemState(index, LVIS_STATEIMAGEMASK) >> 12) > 1; }
    BOOL SetCheck(int index, BOOL check = TRUE)
    {
        return SetItemState(index, INDEXTOSTATEIMAGEMASK(check ? 2 : 1), LVIS_STATEIMAGEMASK);
    }
    UINT GetSelectedCount() const { return UINT(Send(LVM_GETSELECTEDCOUNT)); }
    int GetSelectionMark() { return int(Send(LVM_GETSELECTIONMARK)); }
    int SetSelectionMark(int index) { return int(Send(LVM_SETSELECTIONMARK, 0, index)); }
    int GetHotItem() { return int(Send(LVM_GETHOTITEM)); }
    int SetHotItem(int index) { return int(Send(LVM_SETHOTITEM, index)); }
    // The next item with these LVNI_ properties after one, or -1.
    int GetNextItem(int after, int flags) const
    {
        return int(Send(LVM_GETNEXTITEM, after, MAKELPARAM(flags, 0)));
    }
    // Null when there is no further selected item.
    POSITION GetFirstSelectedItemPosition() const { return SelectedAfter(-1); }
    int GetNextSelectedItem(POSITION& position) const;

    // Layout, in client pixels
    BOOL GetItemRect(int index, LPRECT rect, UINT part) const;
    BOOL GetSubItemRect(int index, int subItem, int part, CRect& rect) const;
    BOOL GetItemPosition(int index, LPPOINT point) const
    {
        return BOOL(Send(LVM_GETITEMPOSITION, index, LPARAM(point)));
    }
    BOOL SetItemPosition(int index, POINT point)
    {
        return BOOL(Send(LVM_SETITEMPOSITION32, index, LPARAM(&point)));
    }
    BOOL GetOrigin(LPPOINT point) const { return BOOL(Send(LVM_GETORIGIN, 0, LPARAM(point))); }
    BOOL GetViewRect(LPRECT rect) const { return BOOL(Send(LVM_GETVIEWRECT, 0, LPARAM(rect))); }
    CSize ApproximateViewRect(CSize proposed = CSize(-1, -1), int count = -1) const;
    int GetStringWidth(LPCTSTR text) const
    {
        return int(Send(LVM_GETSTRINGWIDTH, 0, LPARAM(text)));
    }
    int GetTopIndex() const { return int(Send(LVM_GETTOPINDEX)); }
    int GetCountPerPage() const { return int(Send(LVM_GETCOUNTPERPAGE)); }
    int HitTest(LVHITTESTINFO* info) const { return int(Send(LVM_HITTEST, 0, LPARAM(info))); }
    int HitTest(CPoint point, UINT* flags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO info)
    {
        return int(Send(LVM_SUBITEMHITTEST, 0, LPARAM(info)));
    }

    // Operations
    BOOL EnsureVisible(int index, BOOL partialIsEnough)
    {
        return BOOL(Send(LVM_ENSUREVISIBLE, index, MAKELPARAM(partialIsEnough, 0)));
    }
    BOOL Scroll(CSize by) { return BOOL(Send(LVM_SCROLL, by.cx, LPARAM(by.cy))); }
    BOOL RedrawItems(int first, int last)
    {
        return BOOL(Send(LVM_REDRAWITEMS, first, LPARAM(last)));
    }
    BOOL Update(int index) { return BOOL(Send(LVM_UPDATE, index)); }
    BOOL Arrange(UINT code) { return BOOL(Send(LVM_ARRANGE, int(code))); }
    CEdit* EditLabel(int index);
    void CancelEditLabel() { Send(LVM_CANCELEDITLABEL); }
    // The list is the caller's to delete; point receives its top left.
    CImageList* CreateDragImage(int index, LPPOINT point);

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    LRESULT Send(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessage(message, WPARAM(wParam), lParam);
    }
    // Positions count from 1, so that none is null.
    POSITION SelectedAfter(int index) const
    {
        return reinterpret_cast<POSITION>(INT_PTR(GetNextItem(index, LVNI_SELECTED)) + 1);
    }
};
