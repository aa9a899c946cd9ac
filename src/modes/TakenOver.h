#pragma once

#include <afxwin.h>

// Has a window that is seen already when an object takes it over painted anew: it gets no message
// by which it would notice that it looks different now. The end of PreSubclassWindow; a window in
// the making is not seen yet.
inline void ShowTakenOver(CWnd& window)
{
    if (window.IsWindowVisible())
    {
        window.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
    }
}
