#pragma once

#include "OnBoardUI.h"
#include "support/Repaint.h"

// Changes the mode and restyles the children of a window, as happens to them on a dialog.
inline void SetModeOfChildren(APPMODE mode, CWnd& window)
{
    constexpr double Enlarging = 1.7;
    ModifyChildWndsData change;
    change.parent = window;
    change.scale = mode == STD ? 1 / Enlarging : Enlarging;
    change.mode = mode;
    COnBoardUIGeneral::SetAppMode(mode);
    ::EnumChildWindows(window, &ModifyChildsForAppMode, reinterpret_cast<LPARAM>(&change));
    Repaint(window);
}
