#pragma once

#include "framework/CommonControls.h"
#include "framework/ImageList.h"

class CToolTipCtrl;

class FRAMEWORK_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    FRAMEWORK_COMMON_CONTROL_CREATE(WC_TABCONTROL)

    int GetItemCount() const { return int(SendMessage(TCM_GETITEMCOUNT)); }
    BOOL GetItem(int index, TCITEM* item) const
    {
        return BOOL(SendMessage(TCM_GETITEM, WPARAM(index), LPARAM(item)));
    }
    BOOL SetItem(int index, TCITEM* item)
    {
        return BOOL(SendMessage(TCM_SETITEM, WPARAM(index), LPARAM(item)));
    }
    // Insertions return the index of the new tab, or -1.
    LONG InsertItem(int index, TCITEM* item)
    {
        return LONG(SendMessage(TCM_INSERTITEM, WPARAM(index), LPARAM(item)));
    }
    LONG InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data)
    {
        TCITEM item = {};
        item.mask = mask;
        item.pszText = const_cast<LPTSTR>(text);
        item.iImage = image;
        item.lParam = data;
        return InsertItem(index, &item);
    }
    LONG InsertItem(int index, LPCTSTR text) { return InsertItem(TCIF_TEXT, index, text, 0, 0); }
    LONG InsertItem(int index, LPCTSTR text, int image)
    {
        return InsertItem(TCIF_TEXT | TCIF_IMAGE, index, text, image, 0);
    }
    BOOL DeleteItem(int index) { return BOOL(SendMessage(TCM_DELETEITEM, WPARAM(index))); }
    BOOL DeleteAllItems() { return BOOL(SendMessage(TCM_DELETEALLITEMS)); }

    int GetCurSel() const { return int(SendMessage(TCM_GETCURSEL)); }
    int SetCurSel(int index) { return int(SendMessage(TCM_SETCURSEL, WPARAM(index))); }
    int GetCurFocus() const { return int(SendMessage(TCM_GETCURFOCUS)); }
    void SetCurFocus(int index) { SendMessage(TCM_SETCURFOCUS, WPARAM(index)); }
    BOOL HighlightItem(int index, BOOL highlight = TRUE)
    {
        return BOOL(SendMessage(TCM_HIGHLIGHTITEM, WPARAM(index), MAKELPARAM(highlight, 0)));
    }

    BOOL GetItemRect(int index, LPRECT rect) const
    {
        return BOOL(SendMessage(TCM_GETITEMRECT, WPARAM(index), LPARAM(rect)));
    }
    // From the display area to the whole control when larger, else the other way round.
    void AdjustRect(BOOL larger, LPRECT rect)
    {
        SendMessage(TCM_ADJUSTRECT, WPARAM(larger), LPARAM(rect));
    }
    int HitTest(TCHITTESTINFO* info) const
    {
        return int(SendMessage(TCM_HITTEST, 0, LPARAM(info)));
    }
    int GetRowCount() const { return int(SendMessage(TCM_GETROWCOUNT)); }
    CSize SetItemSize(CSize size)
    {
        return CSize(DWORD(SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy))));
    }
    void SetPadding(CSize size) { SendMessage(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int width) { return int(SendMessage(TCM_SETMINTABWIDTH, 0, width)); }

    CImageList* GetImageList() const
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(TCM_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* images)
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(
            TCM_SETIMAGELIST, 0, LPARAM(images == nullptr ? nullptr : images->m_hImageList))));
    }
    CToolTipCtrl* GetToolTips() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
