#pragma once

#include "catalog/Pixels.h"
#include "support/Pumping.h"

#include "OnBoardUIGeneral.h"

// Paints a window with its frame and its children afresh, at once.
inline void Repaint(HWND window)
{
    ::RedrawWindow(window, nullptr, nullptr,
                   RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

// Many controls notice the mode at their next message.
inline void SetMode(APPMODE mode, CWnd& window)
{
    COnBoardUIGeneral::SetAppMode(mode);
    Repaint(window);
}

// What a window shows once all is pumped.
inline Pixels Settled(const CWnd& window)
{
    PumpAll();
    return WindowPixels(window);
}

// Whether what is on the screen, once all is pumped, is what a full paint gives.
inline bool ShowsWhatAPaintWould(CWnd& window)
{
    const Pixels shown = Settled(window);
    Repaint(window);
    return shown == WindowPixels(window);
}
