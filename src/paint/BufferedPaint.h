#pragma once

#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/PaintContext.h"

// A WM_PAINT, or a WM_PRINTCLIENT, that draws all of the client area, by draw(CDC&), through a back
// buffer. The frame and the ground are painted at its beginning, and messages sent: a window that
// ends then draws nothing.
template <class Draw> void PaintBuffered(CWnd& window, const Draw& draw)
{
    const WindowAlive alive(window);
    PaintContext context(window);
    if (!alive)
    {
        return;
    }
    CRect client;
    window.GetClientRect(&client);
    BackBuffer buffer(context, client);
    draw(buffer.DC());
}
