#pragma once

#include "framework/ImageList.h"

namespace framework {

// The picture of a drag that a control answers with; the caller deletes it. Null: none.
inline CImageList* DragPicture(LRESULT answer)
{
    const auto handle = HIMAGELIST(answer);
    if (handle == nullptr)
    {
        return nullptr;
    }
    auto* const images = new CImageList;
    images->Attach(handle);
    return images;
}

} // namespace framework
