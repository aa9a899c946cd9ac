#include "framework/TreeCtrl.h"

#include "DragPicture.h"
#include "TypedWindows.h"
#include "framework/ToolTipCtrl.h"

#include <cstring>

using framework::WindowAs;

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace {

TVITEM ItemOf(HTREEITEM item, UINT mask)
{
    TVITEM data = {};
    data.hItem = item;
    data.mask = mask | TVIF_HANDLE;
    return data;
}

} // namespace

CEdit* CTreeCtrl::GetEditControl() const
{
    return WindowAs<CEdit>(HWND(SendMessage(TVM_GETEDITCONTROL)));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return WindowAs<CToolTipCtrl>(HWND(SendMessage(TVM_GETTOOLTIPS)));
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const
{
    TVITEM data = ItemOf(item, TVIF_CHILDREN);
    return GetItem(&data) && data.cChildren != 0;
}

HTREEITEM CTreeCtrl::InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                                UINT stateMask, LPARAM data, HTREEITEM parent, HTREEITEM after)
{
    TVINSERTSTRUCT insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = mask;
    insert.item.pszText = const_cast<LPTSTR>(text);
    insert.item.iImage = image;
    insert.item.iSelectedImage = selectedImage;
    insert.item.state = state;
    insert.item.stateMask = stateMask;
    insert.item.lParam = data;
    return InsertItem(&insert);
}

BOOL CTreeCtrl::SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage,
                        UINT state, UINT stateMask, LPARAM data)
{
    TVITEM values = ItemOf(item, mask);
    values.pszText = const_cast<LPTSTR>(text);
    values.iImage = image;
    values.iSelectedImage = selectedImage;
    values.state = state;
    values.stateMask = stateMask;
    values.lParam = data;
    return SetItem(&values);
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    // The control does not tell how long a text is: one that fills the buffer may be cut, and may
    // have no null but the one behind the buffer.
    CString text;
    for (int size = 256;; size *= 2)
    {
        TVITEM data = ItemOf(item, TVIF_TEXT);
        data.pszText = text.GetBufferSetLength(size);
        data.cchTextMax = size;
        *data.pszText = '\0';
        if (!GetItem(&data) || std::strlen(data.pszText) < size_t(size - 1))
        {
            // An owner may have put a pointer to its own text in place of the buffer.
            return CString(data.pszText);
        }
    }
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEM data = ItemOf(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    if (!GetItem(&data))
    {
        return FALSE;
    }
    image = data.iImage;
    selectedImage = data.iSelectedImage;
    return TRUE;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    TVITEM data = ItemOf(item, TVIF_PARAM);
    return GetItem(&data) ? DWORD_PTR(data.lParam) : 0;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    // The message takes the item in the first bytes of the rectangle that it fills.
    ::CopyMemory(rect, &item, sizeof(HTREEITEM));
    return BOOL(SendMessage(TVM_GETITEMRECT, WPARAM(textOnly), LPARAM(rect)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const
{
    TVHITTESTINFO info = {};
    info.pt = point;
    const HTREEITEM item = HitTest(&info);
    if (flags != nullptr)
    {
        *flags = info.flags;
    }
    return item;
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM item)
{
    return WindowAs<CEdit>(HWND(SendMessage(TVM_EDITLABEL, 0, LPARAM(item))));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM item)
{
    return framework::DragPicture(SendMessage(TVM_CREATEDRAGIMAGE, 0, LPARAM(item)));
}
