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
    // Of a parent with its direct children. growing: they stand as in the standard mode and are
    // about to leave it.
    ComboScaling(HWND parent, std::span<const HWND> children, bool growing);
    ComboScaling(const ComboScaling&) = delete;
    ComboScaling& operator=(const ComboScaling&) = delete;
    ~ComboScaling() { m_current = m_outer; }

    // After the scaling: gives the combos among the children their heights.
    void Fit() const;

    // Whether a window is scaling its children.
    static bool IsAtWorkIn(HWND parent);

    // A window of the combos' class that has no object yet remembers its heights; this takes them.
    struct Heights
    {
        int standard = 0; // none
        int fitted = 0;
    };
    static Heights TakeHeights(HWND window);

private:
    HWND m_parent;
    std::span<const HWND> m_children; // some may have ended
    const ComboScaling* m_outer;

    static inline const ComboScaling* m_current = nullptr;

    static void NoteStandard(HWND window);
    void Fit(HWND window) const;
    int FittedHeight(HWND window, int standard, int wanted) const;
};

} // namespace lists
