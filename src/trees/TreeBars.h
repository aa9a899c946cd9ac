#pragma once

#include "FauxScrollBar.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"
#include "trees/TreeOwner.h"

namespace trees {

// The tree's wide scroll bars in the on-board modes, painted in its non-client area. The platform
// keeps its own account of what can be scrolled, which the bars mirror at every paint; presses on
// them become the scroll messages of the platform's bars. A BarHost would not do: it stands behind
// the handlers, and the tree and the tree view, whose handlers differ, share only what comes below
// them.
class TreeBars
{
public:
    static constexpr UINT_PTR RepeatTimer = 101;
    static constexpr UINT RepeatPeriod = 130; // milliseconds

    explicit TreeBars(TreeOwner& owner);
    TreeBars(const TreeBars&) = delete;
    TreeBars& operator=(const TreeBars&) = delete;

    // Takes the platform's bars away and gives them back.
    void EnterOnBoard();
    void LeaveOnBoard();
    // Neither bar is there any more, and no window to be changed for that.
    void Reset();

    // Each message in an on-board mode before the platform has it: true when it is done with, with
    // its answer in result. And after.
    bool Before(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    void After(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    // Takes over what can be scrolled and where it is.
    void Mirror();

private:
    struct Bar
    {
        explicit Bar(int direction)
            : axis(direction)
            , bar(direction)
        {
            bar.ShowScrollBar(FALSE);
        }
        int axis;
        CFauxScrollBar bar;
        scroll::BarPainter painter;
        bool shown = false;
    };

    TreeOwner& m_owner;
    Bar m_vertical{SB_VERT};
    Bar m_horizontal{SB_HORZ};
    bool m_stripping = false;     // the platform's styles are being taken away
    int m_extent = 0;             // of all rows that are not in closed branches, pixels
    CSize m_size{0, 0};           // of the window
    bool m_shrunk = true;         // what is shown may need less room than it did, or have more
    bool m_countDue = false;      // some platforms do not count anew after the edit of a label
    HTREEITEM m_widest = nullptr; // that is being given another text
    scroll::FrameStyles m_frame;
    Bar* m_held = nullptr; // the bar that is pressed
    CFauxScrollBar::ePRESSED m_part = CFauxScrollBar::PRESSED_NONE;
    CPoint m_last; // of the pointer, on the screen
    // Around which the border is painted: the client rectangle, in the window.
    CRect m_bordered{0, 0, 0, 0};

    CWnd& Window() const { return m_owner.Window(); }
    DWORD Strip();
    int Extent() const;
    int RoomBeside(HTREEITEM item) const;
    void CountAnew();
    bool MirrorOne(Bar& bar);
    void Place();
    void Draw();
    void DrawBorder();
    void Press(WPARAM hitTest, CPoint screen);
    void Scroll(Bar& bar, int code);
    void DragTo(CPoint screen);
    void EndPress();
};

} // namespace trees
