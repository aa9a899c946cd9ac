#pragma once

#include <afxwin.h>

#include <vector>

// What the process holds now, to be compared before and after.

// Live graphics objects. The first use of a font, a device context or a control keeps some for
// good: do once what is to be counted, then count.
int GraphicsObjects();

// Top-level windows of this thread, without the input method's own.
std::vector<HWND> TopLevelWindows();

// These, all that are on them, and those that only take messages.
std::vector<HWND> AllWindows();

// Bytes that the process's heaps have handed out and not got back.
size_t AllocatedBytes();

// Whether those heaps are undamaged where nothing has run into them. They find most when they check
// their blocks, as in the preset "heap".
bool HeapsAreWhole();
