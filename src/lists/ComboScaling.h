#pragma once

#include <afxwin.h>

#include <span>

class CCustomDropListCombo;

namespace lists {

// While a window scales its children for a mode. What that makes of the height of a combo is
// nobody's wish: the host has given it for the standard mode. On-board a combo that the host has
// not sized there is as high as a finger needs, if that leaves alone what stands below it, and as
// high as the scaling makes it at least; in the standard mode it gets its height back. So it is
// the same whether a window opens in a mode or changes to it.
class ComboScaling
{
public:
    explicit ComboScaling(HWND parent);
    ComboScaling(const ComboScaling&) = delete;
    ComboScaling& operator=(const ComboScaling&) = delete;
    ~ComboScaling() { m_current = m_outer; }

    // Before the scaling of a child that stands as in the standard mode and is about to leave it.
    static void NoteStandard(HWND window);
    // After the scaling: gives the combos among the children their heights.
    static void Fit(std::span<const HWND> children);
    // Once more for one that was in another place when the mode changed while it took its height.
    static void FitAgain(HWND window);

    // Whether a window is scaling its children.
    static bool IsAtWorkIn(HWND parent);
    // The height for a window that is scaled to this one. With a parent that hears of no mode and
    // is scaled by its host, a combo has taken the mode's height by itself and keeps it, unless it
    // has come in an on-board mode and is scaled for that the first time, or follows no mode for
    // want of a list.
    static int HeightOf(HWND window, double scale, int scaled);

    // A window of the combos' class that has no object yet remembers its heights; this takes them.
    struct Heights
    {
        int standard = 0; // none
        int fitted = 0;
    };
    static Heights TakeHeights(HWND window);

private:
    HWND m_parent;
    const ComboScaling* m_outer;

    static inline const ComboScaling* m_current = nullptr;

    static void Fit(HWND window, std::span<const HWND> siblings);
    static int FittedHeight(HWND window, std::span<const HWND> siblings, int standard, int wanted);
};

} // namespace lists
