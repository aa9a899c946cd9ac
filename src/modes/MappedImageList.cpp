#include "MappedImageList.h"

#include <afxwin.h>

namespace {
constexpr int BlockSize = 10; // of the map
}

const int MappedImageList::BADINDEX = -1;

MappedImageList::MappedImageList()
    : m_indexes(BlockSize)
{
    m_indexes.SetAt(0, BADINDEX);
}

MappedImageList::~MappedImageList() = default;

void MappedImageList::AddIcon(UINT id, HICON icon)
{
    if (icon == nullptr || GetSafeHandle() == nullptr)
    {
        return;
    }
    const int index = Add(icon);
    if (index >= 0)
    {
        m_indexes.SetAt(id, index);
    }
}

void MappedImageList::AddIcon(UINT id)
{
    if (const CWinApp* const app = AfxGetApp())
    {
        AddIcon(id, app->LoadIcon(LOWORD(id)));
    }
}

int MappedImageList::GetIdxFromCtrlID(UINT id) const
{
    int index = BADINDEX;
    return m_indexes.Lookup(id, index) ? index : BADINDEX;
}
