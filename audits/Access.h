#pragma once

#include <afxwin.h>

#include <string>

// What a window's client area answers to an assistive program.
struct Answers
{
    std::string role;
    std::string name;
    std::string value;
    long state = 0; // STATE_SYSTEM_ bits
};

// Empty where it does not answer.
Answers AskWindow(const CWnd& window);
