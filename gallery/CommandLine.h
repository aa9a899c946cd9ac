#pragma once

#include "Pages.h"

#include <AppMode.h>

#include <optional>

// What the gallery was started with.
struct CommandLine
{
    bool help = false;
    CString problem;            // what could not be understood; empty when all was
    CString pictures;           // folder for pictures; empty to open the window for a user
    std::optional<size_t> page; // index into Pages()
    std::optional<APPMODE> mode;

    static CommandLine Parse(int count, char** arguments);
    static CString Usage();
};
