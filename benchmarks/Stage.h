#pragma once

#include "AppMode.h"

#include <afxwin.h>

// The one top-level window that rows put their controls on; 1000 x 800 pixels, visible.
CWnd& Stage();

// Dispatches whatever waits, so that one side's leftovers are not timed with the other.
void Settle();

// Paints everything that is due on a window and its children, now.
void PaintNow(CWnd& window);

// Sets the display mode unless it is set.
void EnterMode(APPMODE mode);
