#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

// What a finger has to hit in a control, and how large it is at least, in pixels. An extent of 0
// does not matter: a row is as wide as its list.
struct Target
{
    std::string name;
    CSize size;
};

// Those of a control of the catalog, as the window shows itself now.
std::vector<Target> TargetsOf(const char* control, CWnd& window);
