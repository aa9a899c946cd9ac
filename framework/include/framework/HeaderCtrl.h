#pragma once

#include "framework/CommonControls.h"
#include "framework/ImageList.h"

// The row of column headings; indices count columns as they were inserted.
class FRAMEWORK_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    FRAMEWORK_COMMON_CONTROL_CREATE(WC_HEADER)

    int GetItemCount() const { return int(SendMessage(HDM_GETITEMCOUNT)); }
    BOOL GetItem(int index, HDITEM* item) const
    {
        return BOOL(SendMessage(HDM_GETITEM, WPARAM(index), LPARAM(item)));
    }
    BOOL SetItem(int index, HDITEM* item)
    {
        return BOOL(SendMessage(HDM_SETITEM, WPARAM(index), LPARAM(item)));
    }
    // Returns the index of the new column, or -1.
    int InsertItem(int index, HDITEM* item)
    {
        return int(SendMessage(HDM_INSERTITEM, WPARAM(index), LPARAM(item)));
    }
    BOOL DeleteItem(int index) { return BOOL(SendMessage(HDM_DELETEITEM, WPARAM(index))); }
    BOOL GetItemRect(int index, LPRECT rect) const
    {
        return BOOL(SendMessage(HDM_GETITEMRECT, WPARAM(index), LPARAM(rect)));
    }
    BOOL Layout(HDLAYOUT* layout) { return BOOL(SendMessage(HDM_LAYOUT, 0, LPARAM(layout))); }
    int HitTest(LPHDHITTESTINFO info) { return int(SendMessage(HDM_HITTEST, 0, LPARAM(info))); }

    int OrderToIndex(int order) const { return int(SendMessage(HDM_ORDERTOINDEX, WPARAM(order))); }
    BOOL GetOrderArray(LPINT indices, int count = -1)
    {
        const int all = count == -1 ? GetItemCount() : count;
        return BOOL(SendMessage(HDM_GETORDERARRAY, WPARAM(all), LPARAM(indices)));
    }
    BOOL SetOrderArray(int count, LPINT indices)
    {
        return BOOL(SendMessage(HDM_SETORDERARRAY, WPARAM(count), LPARAM(indices)));
    }
    int SetHotDivider(CPoint point)
    {
        return int(SendMessage(HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(point.x, point.y)));
    }
    int SetHotDivider(int index) { return int(SendMessage(HDM_SETHOTDIVIDER, FALSE, index)); }

    CImageList* GetImageList() const
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(HDM_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* images)
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(
            HDM_SETIMAGELIST, 0, LPARAM(images == nullptr ? nullptr : images->m_hImageList))));
    }
    // The list is the caller's to delete.
    CImageList* CreateDragImage(int index);

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
