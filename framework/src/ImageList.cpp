#include "framework/ImageList.h"

#include "GdiMaps.h"
#include "framework/Wnd.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST handle)
{
    CImageList* images = framework::ThreadGdiMaps().imageLists.Find(
        handle, [](HIMAGELIST) { return std::make_unique<CImageList>(); });
    if (images != nullptr)
    {
        images->m_hImageList = handle;
    }
    return images;
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST handle)
{
    return framework::ThreadGdiMaps().imageLists.FindPermanent(handle);
}

void PASCAL CImageList::DeleteTempMap()
{
    framework::ThreadGdiMaps().DeleteTemporaryImageLists();
}

BOOL CImageList::Attach(HIMAGELIST handle)
{
    ASSERT(m_hImageList == nullptr);
    if (handle == nullptr)
    {
        return FALSE;
    }
    m_hImageList = handle;
    framework::ThreadGdiMaps().imageLists.SetPermanent(handle, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    const HIMAGELIST handle = m_hImageList;
    if (handle != nullptr)
    {
        framework::ThreadGdiMaps().imageLists.Remove(handle, this);
        m_hImageList = nullptr;
    }
    return handle;
}

BOOL PASCAL CImageList::DragEnter(CWnd* lock, CPoint point)
{
    return ::ImageList_DragEnter(lock == nullptr ? nullptr : lock->m_hWnd, point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* lock)
{
    return ::ImageList_DragLeave(lock == nullptr ? nullptr : lock->m_hWnd);
}
