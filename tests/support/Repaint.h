#pragma once

#include "catalog/Pixels.h"
#include "support/Pumping.h"

#include "OnBoardUIGeneral.h"

// Paints a window with its frame and its children afresh, at once.
inline void Repaint(CWnd& window)
{
    window.RedrawWindow(nullptr, nullptr,
                        RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

// Many controls notice the mode at their next message.
inline void SetMode(APPMODE mode, CWnd& window)
{
    COnBoardUIGeneral::SetAppMode(mode);
    Repaint(window);
}

// Whether what is on the screen, once all is pumped, is what a full paint gives.
inline bool ShowsWhatAPaintWould(CWnd& window)
{
    PumpAll();
    const Pixels shown = WindowPixels(window);
    Repaint(window);
    return shown == WindowPixels(window);
}
