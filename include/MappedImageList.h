#pragma once

#include "OnBoardUIExport.h"

#include <afxcmn.h>
#include <afxtempl.h>

// An image list that knows which of its images belongs to which control or command. The list itself
// is made with the operations of CImageList.
class ONBOARDUI_API MappedImageList : public CImageList
{
public:
    static const int BADINDEX; // -1, where there is no image

    MappedImageList();
    ~MappedImageList() override;

    // Adds an icon, copied, which is the image of id from now on. Nothing happens when there is no
    // such icon or the list does not take it.
    void AddIcon(UINT id, HICON icon);
    // The application's icon with the resource id that the low 16 bits of id give.
    void AddIcon(UINT id);

    // The image of id, or BADINDEX; 0 has none unless it was given one.
    virtual int GetIdxFromCtrlID(UINT id) const;

private:
    CMap<UINT, UINT, int, int> m_indexes;
};
