#pragma once

#include "OnBoardUIGeneral.h"
#include "modes/Meanwhile.h"

// Lays a window out for the mode of the moment when it is still laid out for the other kind:
// changes onBoard and calls enter or leave. following is set meanwhile, when messages that come
// along change nothing. Returns whether the window is laid out for an on-board mode and has
// survived, which is the first question of every handler of a control that follows the mode.
template <class Enter, class Leave>
bool FollowMode(CWnd& window, bool& onBoard, bool& following, Enter enter, Leave leave)
{
    if (!following && window.GetSafeHwnd() != nullptr)
    {
        const WindowAlive alive(window);
        // Others are asked on the way and may change the mode again: the window follows it back,
        // but not for ever.
        for (int change = 0; change < 2 && COnBoardUIGeneral::InOnBoardMode() != onBoard; ++change)
        {
            const Meanwhile now(window, following);
            onBoard = !onBoard;
            if (onBoard)
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
        }
    }
    return onBoard && COnBoardUIGeneral::InOnBoardMode();
}
