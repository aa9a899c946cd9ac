#pragma once

#include <AppMode.h>

#include <afxwin.h>

#include <optional>

// What the gallery was started with:
//
//     gallery [--page NAME] [--mode NAME] [--settings FILE] [--pictures FOLDER] [--help]
//
// --page opens a page by its name, --mode starts in a display mode; without it the gallery starts
// in the one that its window was last switched to, which it keeps in the settings. --settings names
// their file, instead of one of the user's. --pictures writes pictures of each page in each mode,
// or of the page and in the mode named, and ends; such a run neither reads nor keeps settings.
// --help prints this. What cannot be understood is said on the standard error output, with the
// names that there are, and ends the program with code 2.
struct CommandLine
{
    bool help = false;
    CString problem;            // what could not be understood; empty when all was
    CString pictures;           // folder for pictures; empty to open the window for a user
    CString settings;           // file for settings; empty for the usual one
    std::optional<size_t> page; // index into Pages()
    std::optional<APPMODE> mode;

    static CommandLine Parse(int count, char** arguments);
    static CString Usage();
};
