#pragma once

#include <afxwin.h>

namespace lists {

// The pictures of a check box: the library's bitmap for a size and state, with a column for each
// check. Loaded on first use and kept for the life of the process.
class CheckMarks
{
public:
    // Those of the kind of display mode, for checks that can be changed or cannot.
    static CheckMarks& Of(bool onBoard, bool enabled);

    // Of the check box: a column's width, the bitmap's height.
    CSize Size();
    // check 0, 1 or 2, into the top left corner of place. The bitmap's last row is not copied.
    void Draw(CDC& dc, const CPoint& place, int check);

private:
    const char* m_name = nullptr;
    CBitmap m_bitmap;
    CDC m_dc;
    CSize m_size;

    void Load();
};

} // namespace lists
