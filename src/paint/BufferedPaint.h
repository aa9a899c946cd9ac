#pragma once

#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"

// A WM_PAINT that draws all of the client area, by draw(CDC&), through a back buffer. The frame and
// the ground are painted at its beginning, and messages sent: a window that ends then draws
// nothing.
template <class Draw> void PaintBuffered(CWnd& window, const Draw& draw)
{
    const WindowAlive alive(window);
    CPaintDC dc(&window);
    if (!alive)
    {
        return;
    }
    CRect client;
    window.GetClientRect(&client);
    BackBuffer buffer(dc, client);
    draw(buffer.DC());
}
