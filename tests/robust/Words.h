#pragma once

#include "robust/Subjects.h"

// What the storms have for windows of any kind, beside the words of their subject.

// What the platform and assistive programs send to any window.
extern const std::vector<Word> AnyWords;

// Of the platform's control that it is: a child of a dialog, the headings of a list. May be empty.
const std::vector<Word>& WordsOf(HWND window);

// What a control has its parent hear, as the platform's control sends it: the questions of painting
// and measuring, notifications with their structures. Each lasts until the next.
class ToParent
{
public:
    explicit ToParent(Arguments& arguments)
        : m_arguments(arguments)
    {}

    struct Told
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };
    Told Next(HWND control);

private:
    Arguments& m_arguments;
    union {
        NMHDR header;
        NMITEMACTIVATE list;
        NMTREEVIEW tree;
        NMHEADER heading;
        NMTOOLBAR button;
        DRAWITEMSTRUCT draw;
        MEASUREITEMSTRUCT measure;
        char room[512];
    } m_said = {};
    HDITEM m_headItem = {};

    Told Drawn(HWND control, UINT kind);
    Told Notified(HWND control, UINT code);
};

// So many timers of ours went on, in all windows of this thread; now they are at an end.
int EndTimers();
// How many ticks of any timer come within so many milliseconds.
int TicksWithin(int milliseconds);
