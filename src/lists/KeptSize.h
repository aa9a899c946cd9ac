#pragma once

#include <afxwin.h>

namespace scroll {
class BarHost;
}

namespace lists {

// How large a list box is in either kind of mode. The platform cuts a list to whole rows whenever
// its frame changes, and would cut it once more with each mode: it is as high again when a kind of
// mode comes back, unless its host sizes it meanwhile.
class KeptSize
{
public:
    KeptSize(CListBox& list, const scroll::BarHost& bars)
        : m_list(list)
        , m_bars(bars)
    {}

    // The list has another window.
    void BeginAfresh() { m_due = m_giving = false; }
    // It has got a size that nobody has scaled. One by which only its client area has changed is
    // the platform's: its bar came or went.
    void Sized();
    // Before the list leaves a kind of mode; and whether it was laid out for the standard one
    // before, so that it has a size there.
    void Keep(bool onBoard, bool standardKnown);
    // Laid out for the mode of the moment. It may end the list.
    void GiveBack();
    // For bars that come or go on-board: a size that the list is cut to by that is not its host's.
    // It may end the list.
    void RecalculateFrame();

private:
    CListBox& m_list;
    const scroll::BarHost& m_bars;
    CSize m_kept;     // when it was kept last
    CSize m_standard; // 0: not known
    CSize m_onBoard;
    bool m_placed = false; // on-board, by whoever scales it for a mode
    bool m_due = false;    // kept, and not given back yet
    bool m_giving = false;
};

} // namespace lists
