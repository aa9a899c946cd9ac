#pragma once

// A list of pictures of one size. The object owns its list; FromHandle gives the owner or a
// temporary that owns nothing.

#include "framework/DeviceContext.h"

class FRAMEWORK_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    HIMAGELIST m_hImageList = nullptr;

    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const
    {
        return framework::SafeHandle(this, &CImageList::m_hImageList);
    }
    static CImageList* PASCAL FromHandle(HIMAGELIST handle);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST handle);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST handle);
    HIMAGELIST Detach();
    BOOL DeleteImageList() { return m_hImageList != nullptr && ::ImageList_Destroy(Detach()); }

    BOOL Create(int width, int height, UINT flags, int initial, int grow)
    {
        return Attach(::ImageList_Create(width, height, flags, initial, grow));
    }
    BOOL Create(LPCTSTR bitmapName, int width, int grow, COLORREF mask)
    {
        return Attach(::ImageList_LoadImage(AfxFindResourceHandle(bitmapName, RT_BITMAP),
                                            bitmapName, width, grow, mask, IMAGE_BITMAP, 0));
    }
    BOOL Create(UINT bitmapId, int width, int grow, COLORREF mask)
    {
        return Create(MAKEINTRESOURCE(bitmapId), width, grow, mask);
    }
    BOOL Create(CImageList& a, int imageA, CImageList& b, int imageB, int dx, int dy)
    {
        return Attach(::ImageList_Merge(a, imageA, b, imageB, dx, dy));
    }
    BOOL Create(CImageList* source) { return Attach(::ImageList_Duplicate(*source)); }

    // Contents; the pictures are copied. Adding gives the index of the first new one, or -1.
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT count) { return ::ImageList_SetImageCount(m_hImageList, count); }
    int Add(CBitmap* image, CBitmap* mask)
    {
        return ::ImageList_Add(m_hImageList, *image, mask == nullptr ? HBITMAP() : HBITMAP(*mask));
    }
    int Add(CBitmap* image, COLORREF mask)
    {
        return ::ImageList_AddMasked(m_hImageList, *image, mask);
    }
    int Add(HICON icon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, icon); }
    BOOL Replace(int index, CBitmap* image, CBitmap* mask)
    {
        return ::ImageList_Replace(m_hImageList, index, *image,
                                   mask == nullptr ? HBITMAP() : HBITMAP(*mask));
    }
    int Replace(int index, HICON icon)
    {
        return ::ImageList_ReplaceIcon(m_hImageList, index, icon);
    }
    BOOL Remove(int index) { return ::ImageList_Remove(m_hImageList, index); }
    BOOL Copy(int to, int from, UINT flags = ILCF_MOVE)
    {
        return ::ImageList_Copy(m_hImageList, to, m_hImageList, from, flags);
    }
    // The icon is the caller's to destroy.
    HICON ExtractIcon(int index) { return ::ImageList_GetIcon(m_hImageList, index, ILD_NORMAL); }
    BOOL GetImageInfo(int index, IMAGEINFO* info) const
    {
        return ::ImageList_GetImageInfo(m_hImageList, index, info);
    }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    COLORREF SetBkColor(COLORREF color) { return ::ImageList_SetBkColor(m_hImageList, color); }
    BOOL SetOverlayImage(int index, int overlay)
    {
        return ::ImageList_SetOverlayImage(m_hImageList, index, overlay);
    }

    // Drawing
    BOOL Draw(CDC* dc, int index, POINT point, UINT style)
    {
        return ::ImageList_Draw(m_hImageList, index, dc->m_hDC, point.x, point.y, style);
    }
    BOOL DrawEx(CDC* dc, int index, POINT point, SIZE size, COLORREF back, COLORREF fore,
                UINT style)
    {
        return ::ImageList_DrawEx(m_hImageList, index, dc->m_hDC, point.x, point.y, size.cx,
                                  size.cy, back, fore, style);
    }
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* parameters)
    {
        parameters->cbSize = sizeof(*parameters);
        parameters->himl = m_hImageList;
        return ::ImageList_DrawIndirect(parameters);
    }

    // Dragging one picture over a window, or over the screen for null.
    BOOL BeginDrag(int index, CPoint hotSpot)
    {
        return ::ImageList_BeginDrag(m_hImageList, index, hotSpot.x, hotSpot.y);
    }
    BOOL SetDragCursorImage(int index, CPoint hotSpot)
    {
        return ::ImageList_SetDragCursorImage(m_hImageList, index, hotSpot.x, hotSpot.y);
    }
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }
    static BOOL PASCAL DragEnter(CWnd* lock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* lock);
    static BOOL PASCAL DragMove(CPoint point) { return ::ImageList_DragMove(point.x, point.y); }
    static BOOL PASCAL DragShowNolock(BOOL show) { return ::ImageList_DragShowNolock(show); }
    static CImageList* PASCAL GetDragImage(LPPOINT point, LPPOINT hotSpot)
    {
        return FromHandle(::ImageList_GetDragImage(point, hotSpot));
    }
};
