#pragma once

#include "framework/CommonControls.h"
#include "framework/Controls.h"
#include "framework/ImageList.h"

class CToolTipCtrl;

class FRAMEWORK_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    FRAMEWORK_COMMON_CONTROL_CREATE(WC_TREEVIEW)

    // Looks
    UINT GetIndent() const { return UINT(SendMessage(TVM_GETINDENT)); }
    void SetIndent(UINT width) { SendMessage(TVM_SETINDENT, width); }
    SHORT GetItemHeight() const { return SHORT(SendMessage(TVM_GETITEMHEIGHT)); }
    SHORT SetItemHeight(SHORT height)
    {
        return SHORT(SendMessage(TVM_SETITEMHEIGHT, WPARAM(height)));
    }
    COLORREF GetBkColor() const { return COLORREF(SendMessage(TVM_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF color)
    {
        return COLORREF(SendMessage(TVM_SETBKCOLOR, 0, LPARAM(color)));
    }
    COLORREF GetTextColor() const { return COLORREF(SendMessage(TVM_GETTEXTCOLOR)); }
    COLORREF SetTextColor(COLORREF color)
    {
        return COLORREF(SendMessage(TVM_SETTEXTCOLOR, 0, LPARAM(color)));
    }
    CImageList* GetImageList(UINT kind) const
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(TVM_GETIMAGELIST, kind)));
    }
    CImageList* SetImageList(CImageList* images, int kind)
    {
        const HIMAGELIST handle = images == nullptr ? nullptr : images->m_hImageList;
        return CImageList::FromHandle(
            HIMAGELIST(SendMessage(TVM_SETIMAGELIST, WPARAM(kind), LPARAM(handle))));
    }
    // Objects of the control's parts; null when there is none.
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;

    // Walking; null where there is nothing.
    UINT GetCount() const { return UINT(SendMessage(TVM_GETCOUNT)); }
    UINT GetVisibleCount() const { return UINT(SendMessage(TVM_GETVISIBLECOUNT)); }
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const
    {
        return HTREEITEM(SendMessage(TVM_GETNEXTITEM, code, LPARAM(item)));
    }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }
    HTREEITEM GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUS); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const
    {
        return GetNextItem(item, TVGN_NEXTVISIBLE);
    }
    HTREEITEM GetPrevVisibleItem(HTREEITEM item) const
    {
        return GetNextItem(item, TVGN_PREVIOUSVISIBLE);
    }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    BOOL ItemHasChildren(HTREEITEM item) const;

    // Items
    HTREEITEM InsertItem(LPTVINSERTSTRUCT insert)
    {
        return HTREEITEM(SendMessage(TVM_INSERTITEM, 0, LPARAM(insert)));
    }
    HTREEITEM InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                         UINT stateMask, LPARAM data, HTREEITEM parent, HTREEITEM after);
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST)
    {
        return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, after);
    }
    HTREEITEM InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST)
    {
        return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, text, image, selectedImage,
                          0, 0, 0, parent, after);
    }
    BOOL DeleteItem(HTREEITEM item) { return BOOL(SendMessage(TVM_DELETEITEM, 0, LPARAM(item))); }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL GetItem(TVITEM* item) const { return BOOL(SendMessage(TVM_GETITEM, 0, LPARAM(item))); }
    BOOL SetItem(TVITEM* item) { return BOOL(SendMessage(TVM_SETITEM, 0, LPARAM(item))); }
    BOOL SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                 UINT stateMask, LPARAM data);
    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCTSTR text)
    {
        return SetItem(item, TVIF_TEXT, text, 0, 0, 0, 0, 0);
    }
    BOOL GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage)
    {
        return SetItem(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, image, selectedImage, 0, 0,
                       0);
    }
    UINT GetItemState(HTREEITEM item, UINT mask) const
    {
        return UINT(SendMessage(TVM_GETITEMSTATE, WPARAM(item), LPARAM(mask)));
    }
    BOOL SetItemState(HTREEITEM item, UINT state, UINT mask)
    {
        return SetItem(item, TVIF_STATE, nullptr, 0, 0, state, mask, 0);
    }
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data)
    {
        return SetItem(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, LPARAM(data));
    }
    BOOL GetCheck(HTREEITEM item) const
    {
        return (GetItemState(item, TVIS_STATEIMAGEMASK) >> 12) > 1;
    }
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE)
    {
        return SetItemState(item, INDEXTOSTATEIMAGEMASK(check ? 2 : 1), TVIS_STATEIMAGEMASK);
    }

    // Layout, in client pixels
    BOOL GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const;
    HTREEITEM HitTest(TVHITTESTINFO* info) const
    {
        return HTREEITEM(SendMessage(TVM_HITTEST, 0, LPARAM(info)));
    }
    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const;

    // Operations
    BOOL Expand(HTREEITEM item, UINT code)
    {
        return BOOL(SendMessage(TVM_EXPAND, code, LPARAM(item)));
    }
    BOOL Select(HTREEITEM item, UINT code)
    {
        return BOOL(SendMessage(TVM_SELECTITEM, code, LPARAM(item)));
    }
    BOOL SelectItem(HTREEITEM item) { return Select(item, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM item) { return Select(item, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM item) { return Select(item, TVGN_FIRSTVISIBLE); }
    BOOL EnsureVisible(HTREEITEM item)
    {
        return BOOL(SendMessage(TVM_ENSUREVISIBLE, 0, LPARAM(item)));
    }
    BOOL SetInsertMark(HTREEITEM item, BOOL after = TRUE)
    {
        return BOOL(SendMessage(TVM_SETINSERTMARK, WPARAM(after), LPARAM(item)));
    }
    BOOL SortChildren(HTREEITEM item)
    {
        return BOOL(SendMessage(TVM_SORTCHILDREN, 0, LPARAM(item)));
    }
    BOOL SortChildrenCB(LPTVSORTCB sort)
    {
        return BOOL(SendMessage(TVM_SORTCHILDRENCB, 0, LPARAM(sort)));
    }
    CEdit* EditLabel(HTREEITEM item);
    BOOL EndEditLabelNow(BOOL cancel)
    {
        return BOOL(SendMessage(TVM_ENDEDITLABELNOW, WPARAM(cancel)));
    }
    // The list is the caller's to delete.
    CImageList* CreateDragImage(HTREEITEM item);
};
