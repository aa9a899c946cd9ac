#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Every control and window of the library, made the way a host makes it. What walks all of them
// takes them from here: the audit, the rows of the benchmarks and the tests of the whole.

struct Contents
{
    CRect place;          // pixels of the parent's client area; of the screen for a dialog
    std::string text;     // of every title, row, line and branch
    int rows = 40;        // of lists; a tree has up to 20 branches
    bool numbered = true; // rows, lines and branches, behind the text
};

constexpr UINT ControlId = 77;

struct Control
{
    const char* name;
    // Visible, enabled and filled, with the id ControlId if it is a child. Null when it could not
    // be made.
    std::function<std::unique_ptr<CWnd>(CWnd& parent, const Contents& contents)> make;
};

const std::vector<Control>& Controls();
