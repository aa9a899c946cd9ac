#pragma once

#include "trees/TreeBars.h"
#include "trees/TreeItems.h"

namespace trees {

// How a tree looks in the display mode: in the standard mode as the platform draws it, in the
// on-board modes in the library's colours and font with rows for a finger. A tree has no place in
// the registries of mode changes, so it looks at the mode whenever it is sized, painted or pressed;
// its dialog's restyling sizes it, and a paint follows every change.
class TreeLook
{
public:
    TreeLook(TreeItems& items, TreeOwner& owner)
        : m_items(items)
        , m_owner(owner)
        , m_bars(owner)
    {}
    TreeLook(const TreeLook&) = delete;
    TreeLook& operator=(const TreeLook&) = delete;

    // Each message before the platform's tree has it; true when it is done with. And after.
    bool Before(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    void After(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    // Takes up the mode of the moment.
    void Follow();
    // The window that was laid out has ended or is no longer ours: the next one begins afresh.
    void Reset();

    // Whether Paint covers everything, so that nothing is to be erased.
    bool PaintsAll() const { return m_onBoard; }
    // In answer to WM_PAINT or WM_PRINTCLIENT; with a rubber band (client pixels) over the items,
    // or null.
    void Paint(const CRect* band);
    // Has the line of a band painted again.
    static void InvalidateBand(HWND window, const CRect& band);

    // Client rectangle of what an item shows: its icon and its text. Empty when it is hidden.
    CRect IconAndText(HTREEITEM item) const;
    // Draws icon and text of an item, selected or not, with its text at rect.
    void DrawIconAndText(CDC& dc, HTREEITEM item, const CRect& text, bool selected);

private:
    // What an item's row shows.
    struct Row
    {
        HTREEITEM item;
        UINT state;
        int image;
        bool branch;
        CString label;
        CRect text;
    };

    TreeItems& m_items;
    TreeOwner& m_owner;
    TreeBars m_bars;
    bool m_onBoard = false;         // laid out for an on-board mode
    bool m_following = false;       // in Follow
    bool m_sawStandard = false;     // what is kept of the standard mode is the host's
    HFONT m_standardFont = nullptr; // the host's
    int m_standardRow = -1;         // pixels; -1 leaves it to the platform
    int m_standardIndent = 0;       // pixels
    CFont m_bold;                   // of the tree's font, made when an item is bold
    HWND m_edit = nullptr;          // of a label, the last one
    CRect m_editFrame{2, 1, 0, 1};  // by which it is larger than the label at each side

    void EnterOnBoard();
    void LeaveOnBoard();
    void NoteLabelEdit();
    void FollowLabelEdit(bool newFont);
    bool IsLabelEditBold() const;
    LRESULT TakeSize(UINT message, WPARAM wParam);
    void MakeLevelsForFinger();
    void MakeRowsForFinger();

    bool Read(HTREEITEM item, Row& row) const;
    void MakeCheckBoxes();
    void PaintRows(CDC& dc, const CRect& area);
    void PaintRow(CDC& dc, const Row& row);
    void PaintMark(CDC& dc, const Row& row, int right);
    void PaintBand(CDC& dc, const CRect& band) const;
    void PaintLabel(CDC& dc, const Row& row, COLORREF ground, COLORREF color);
    CSize ImageSize(int list) const;
    HGDIOBJ Font(bool bold);
};

} // namespace trees
