#pragma once

#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"

// Lays a window out for the mode of the moment when it is still laid out for the other kind:
// changes onBoard and calls enter or leave. following is set meanwhile, when messages that come
// along change nothing. Returns whether the window is laid out for an on-board mode and has
// survived, which is the first question of every handler of a control that follows the mode.
template <class Enter, class Leave>
bool FollowMode(CWnd& window, bool& onBoard, bool& following, Enter enter, Leave leave)
{
    const bool wanted = COnBoardUIGeneral::InOnBoardMode();
    if (wanted != onBoard && !following && window.GetSafeHwnd() != nullptr)
    {
        const WindowAlive alive(window);
        following = true;
        onBoard = wanted;
        if (wanted)
        {
            enter();
        }
        else
        {
            leave();
        }
        if (!alive)
        {
            return false;
        }
        following = false;
    }
    return onBoard && COnBoardUIGeneral::InOnBoardMode();
}
