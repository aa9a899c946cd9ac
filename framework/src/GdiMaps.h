#pragma once

// What stands for a thread's graphics handles.

#include "HandleMap.h"
#include "framework/DeviceContext.h"
#include "framework/ImageList.h"

namespace framework {

// Temporaries are kept by class. Handle values are reused for objects of other kinds while an old
// temporary still exists, and so it can never be taken for something that it is not.
struct GdiMaps
{
    using Objects = HandleMap<HGDIOBJ, CGdiObject>;

    Objects owners; // permanent entries of all kinds
    Objects pens;
    Objects brushes;
    Objects fonts;
    Objects bitmaps;
    Objects regions;
    Objects others;
    HandleMap<HDC, CDC> contexts;
    HandleMap<HIMAGELIST, CImageList> imageLists;

    GdiMaps() = default;
    ~GdiMaps();
    GdiMaps(const GdiMaps&) = delete;
    GdiMaps& operator=(const GdiMaps&) = delete;

    void DeleteTemporaryObjects(int depth = ModalDepth());
    void DeleteTemporaryContexts(int depth = ModalDepth());
    void DeleteTemporaryImageLists(int depth = ModalDepth());
    void DeleteAllTemporaries(int depth = ModalDepth());
};

// The maps of the calling thread. Usable even while the thread or the process ends, when objects
// of static lifetime still give their handles back.
GdiMaps& ThreadGdiMaps();

// Drops the temporary graphics objects, device contexts and image lists of the calling thread.
void DeleteTemporaryGdiObjects();

} // namespace framework
