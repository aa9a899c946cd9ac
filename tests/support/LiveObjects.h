#pragma once

#include <afxwin.h>

#include <map>
#include <vector>

// What the process holds now, to be compared before and after.

// Live graphics objects. The first use of a font, a device context or a control keeps some for
// good: do once what is to be counted, then count.
int GraphicsObjects();

// By kind: OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP, OBJ_DC (memory contexts too), OBJ_REGION.
std::map<UINT, int> GraphicsObjectsByKind();

// Top-level windows of this thread, without the input method's own.
std::vector<HWND> TopLevelWindows();

// All windows of this thread, children too.
int WindowsOfThread();
