#pragma once

#include <afxdlgs.h>

#include <vector>

// A dialog that stays open while the mode changes. The library scales its children by the step
// between the two modes and leaves the window to its owner; steps between two on-board modes narrow
// the children each time. So the owner has every open dialog take its place from what it would be
// in the standard mode: the same whichever way the mode was reached.
class OpenDialog
{
public:
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;

    // The owner calls one before and one after each change of the mode.
    static void KeepStateAll();
    static void FollowModeAll();

protected:
    OpenDialog();
    ~OpenDialog();

    // From the window's initialisation on, the mode is followed.
    void NoteMode();
    // The library's buttons have a check state in the standard mode and another in the others.
    virtual void KeepState() {}
    virtual void FollowMode() = 0;

private:
    static void ForAll(void (OpenDialog::*action)());
    void FollowModeOnce();

    int m_mode = -1; // none before the window is there
};

// A child and its place in its parent's client area, in pixels of the standard mode.
struct StandardPlace
{
    HWND window;
    CRect place;
};

// A length in the current mode, and the standard one behind it.
int AcrossInMode(int standard);
int DownInMode(int standard);
CRect RectInMode(const CRect& standard);
CRect StandardRect(const CRect& inMode);

// A child's rectangle in its parent's client area, as it is.
CRect PlaceInParent(HWND child);

// Gives a window a client area of that size; its corner stays.
void ResizeClient(CWnd& window, CSize client);

// Into the middle of its owner's window, or so far down and to the right of it that what is below
// stays in sight.
void PlaceOverOwner(CWnd& dialog, int offset = 0);

// Where the content of a dialog stands in the standard mode.
class StandardLayout
{
public:
    void Read(const CWnd& dialog);
    void Apply(CWnd& dialog) const; // the children alone
    CSize ClientInMode() const;

private:
    CRect m_client;
    std::vector<StandardPlace> m_children;
};
