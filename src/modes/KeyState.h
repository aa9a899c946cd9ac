#pragma once

#include <afxwin.h>

// Whether a key was down when the message that is being handled was made.
inline bool IsKeyDown(int key)
{
    return ::GetKeyState(key) < 0;
}
