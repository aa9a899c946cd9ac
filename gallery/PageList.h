#pragma once

#include <CustomListBox.h>

#include <AppMode.h>

// The list of pages: a list box of the library with rows that a finger hits in the on-board modes.
class PageList : public CCustomListBox
{
public:
    BOOL Create(CWnd& parent, UINT id);

    // Takes the rows, the font and the scroll bar style of the new mode. Its owner is no window
    // that the library knows, so its owner calls this after a change of the mode.
    void FollowMode(APPMODE newMode, APPMODE oldMode);

    // Selects a row and brings all of it in sight.
    void Show(int row);

    void MeasureItem(LPMEASUREITEMSTRUCT measure) override;
    void DrawItem(LPDRAWITEMSTRUCT draw) override;
};
