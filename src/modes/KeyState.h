#pragma once

#include <afxwin.h>

// Whether a key was down when the message that is being handled was made.
inline bool IsKeyDown(int key)
{
    return ::GetKeyState(key) < 0;
}

// In the flags of a key message: the keyboard repeats a key that is held.
constexpr UINT WasDownBefore = 0x4000;
