#pragma once

#include "CustomListCtrlHdr.h"
#include "FauxScrollBar.h"
#include "GridLines.h"
#include "OnBoardUIExport.h"

#include <afxcmn.h>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace listctrl {
struct BarData;
} // namespace listctrl

// The report list of the library. In the standard mode it is the platform's list view. In an
// on-board mode it takes the platform's scroll bars away, drives wide ones of its own, painted in
// its non-client area, and paints rows, selection and grid lines itself. It then scrolls by a
// drawing offset: the platform's list stays at its first row, so rectangles that it tells
// (GetItemRect ...) are those of the unscrolled list. It may be created, made from a dialog
// template or put over an existing list view, in any mode, and follows mode changes both ways with
// its top row and its selection in sight.
//
// InsertColumn takes a width in pixels of the standard mode, whatever the mode; on-board the column
// is 1.7 times as wide, and the one that stands last, in whatever order the user has put them,
// fills the rest of the list. GetColumnWidth, SetColumnWidth and SetColumn are of the mode of the
// moment: a host that keeps widths reads them in the standard mode, or they grow each time that
// they are inserted again.
class ONBOARDUI_API CCustomListCtrl : public CListCtrl
{
    DECLARE_DYNCREATE(CCustomListCtrl)

public:
    CCustomListCtrl();
    ~CCustomListCtrl() override;

    // @{
    // Shared fonts, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();
    // @}

    // Adds the selected rows to what the set holds; while rows are being painted, those of them
    // that are in sight.
    virtual void GetSelectedRows(std::set<int>& rows) const;

    // Scrolls back to the first row first. Non-zero on success.
    int DeleteAllItems();

    // Makes the bars anew from content and size, after changes that the list is not told of.
    void ReCheckScrollBars();

    // The faux bar for SB_VERT or SB_HORZ, under the type that the framework asks for; null for
    // anything else. It has no window and is no CScrollBar: a caller may compare the pointer and
    // hand it back to this list, or cast it back to CFauxScrollBar, whose position for SB_VERT is
    // the row at the top, but call nothing through it.
    CScrollBar* GetScrollBarCtrl(int bar) const override;

    // @{
    // The least width to which a user may drag a column, in pixels of the standard mode; -1 for
    // none. Setting ignores negative widths.
    int GetMinColWidth() const { return m_minColWidth; }
    void SetMinColWidth(int width);
    // @}

    // Non-zero while a click selects the row that the platform picks from its unscrolled rows, on
    // the way to the row that was clicked: a parent that is told of a change asks for it.
    int IsSelChanging() const { return m_selChanging; }

protected:
    // Frame and bars, at once; the client area is left to be painted.
    virtual void DrawNC();
    // Bars that look different from what is on the screen; then fits the last column.
    virtual void DrawScrollBars();

    // @{
    // Take range, page and visibility of a bar from the content and the client rectangle.
    // frameChanged: whether the frame was recalculated for it.
    virtual void UpdateVScrollData();
    virtual void UpdateHScrollData(bool& frameChanged);
    // @}

    // Places the bars against the client rectangle if that is due.
    virtual void ResizeOBScrollBars();

    // @{
    // A press on a bar, by the part that is under the pointer.
    virtual void ProcessVScroll();
    virtual void ProcessHScroll();
    // @}

    // The pointer moved, in client coordinates; drags the thumb that is held.
    virtual void HandleMouseMoveScroll(const CPoint& point);

    // @{
    // Scroll the drawing by the difference of two positions of a bar, no further than the bar goes,
    // or by a scroll code.
    virtual void PerformHScroll(int newPos, int oldPos);
    virtual void PerformHScroll(int code);
    virtual void PerformVScroll(int newPos, int oldPos);
    virtual void PerformVScroll(int code);
    // @}

    // Takes the dividers of so many columns from the header, in the place of those before.
    virtual void GetVerticalDivides(int columns);
    // Selection and texts of the rows in rect, in client coordinates.
    virtual void DrawCells(CDC& dc, int items, int columns, bool fullRowSelect, const CRect& rect);
    // The grid lines in rect, in client coordinates: across, as far apart as the rows of so many
    // items are high (as text is for none) and on below the last one; down, at all dividers that
    // GetVerticalDivides has taken but the last.
    virtual void DrawGrid(CDC& dc, int items, const CRect& rect);
    // The whole client area.
    virtual void DrawOB(CDC& dc);

public:
    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a list, named by the label before it, whose rows are list
    // items; the header, where it is shown, is its last child. A row's child id is its index and
    // one, its name the text of the first column, and its description the texts of the others with
    // "; " between them. Rows stand where they are drawn.
    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accFocus(VARIANT* child) override;
    HRESULT get_accSelection(VARIANT* children) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    // @}

    // Selects as the user does; a row that takes the focus comes into sight.
    HRESULT accSelect(long flags, VARIANT child) override;

    // @{
    // Where a row is on the screen, in pixels; the row before or after one; the row at a point of
    // the screen, or the list itself where there is none. E_INVALIDARG for a row that is not there.
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    // @}

    // Selects a row at once and, by a posted message, activates it as the Enter key does.
    HRESULT accDoDefaultAction(VARIANT child) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnStyleChanged(int which, LPSTYLESTRUCT styles);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT hitTest, CPoint point);
    afx_msg LRESULT OnNCMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnMouseHover(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCancelMode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnTimer(UINT_PTR id);
    // Takes the header that exists by now.
    afx_msg LRESULT OnSubclassCustomHeader(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAct(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTakeBackPress(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetRedraw(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertColumn(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteColumn(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetColumnWidth(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetView(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteAllItems(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEditLabel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEnsureVisible(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnScroll(WPARAM wParam, LPARAM lParam);
    afx_msg void OnHdnTrack(NMHDR* header, LRESULT* result);
    afx_msg void OnHdnEndtrack(NMHDR* header, LRESULT* result);
    afx_msg void OnLvnInsertitem(NMHDR* header, LRESULT* result);
    // The parent hears of it as well.
    afx_msg BOOL OnLvnColumnclick(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

public:
    static UINT m_timerid;                // auto-repeat
    static UINT m_timerperiod;            // milliseconds
    static UINT m_timerInitialWaitID;     // a longer wait before the first repeat
    static UINT m_timerInitialWaitPeriod; // milliseconds

protected:
    static CPen m_OutlinePen;
    static CBrush m_OutlineBrush;
    static CFont m_OBFont;
    static CFont m_StdFont;

    CCustomListCtrlHdr m_header;
    bool m_pressed = false; // a button or the thumb of a bar is held
    int m_minColWidth = -1; // pixels of the standard mode; -1: none
    CFauxScrollBar::ePRESSED m_vPart = CFauxScrollBar::PRESSED_NONE; // under the pointer
    CFauxScrollBar::ePRESSED m_hPart = CFauxScrollBar::PRESSED_NONE;
    CFauxScrollBar m_vBar;
    CFauxScrollBar m_hBar;
    CSize m_scrollUnit;     // pixels: a step sideways, a row's height
    CPoint m_drawOffset;    // pixels, 0 or negative
    CPoint m_furtherOffset; // for derived classes; cleared together with the offset
    int m_wheel = 0;        // turned and not scrolled yet
    GridLines m_gridLines;
    int m_selChanging = FALSE;

private:
    // A column's width in the two kinds of mode.
    struct ColumnWidth
    {
        int standard;
        int onBoard;
    };
    // What a change of mode, font or size keeps in sight.
    struct View
    {
        int top;
        int selected; // -1: none was in sight
    };
    // What the bars were last taken from.
    struct Measured
    {
        int items = -1;
        int rowHeight = 0;
        int columns = 0;
        int last = -1; // the column
        int right = 0; // of it
        CSize client;

        bool operator==(const Measured& other) const = default;
    };
    struct RowSpan
    {
        int first;
        int end;
    };

    // The row that a press hits, among the platform's unscrolled rows and among those that are
    // drawn; -1: none. Whether these stand elsewhere, and then whether it hits the check box of
    // either.
    struct PressHit
    {
        int platform = -1;
        int drawn = -1;
        bool scrolled = false;
        bool onBox = false;
        bool onPlatformBox = false;
    };
    // What was selected before the platform was let see a press.
    struct PressNote
    {
        int row; // the platform's, and its states
        UINT states;
        int focus;
        int mark;
        std::set<int> selected; // where the platform deselects more than that row
    };

    // What it has in common with every control that has faux bars: mode, frame and presses.
    class Bars;

    bool m_creating = false; // the platform's part of the window is not made yet
    bool m_settling = false;
    bool m_fitting = false;
    bool m_activating = false; // by the pointer: what is activated is named as an unscrolled row
    bool m_labelDue = false;   // the edit that is begun is to be placed over the row that is drawn
    int m_fittedColumn = -1;   // the last column, once it fills the list
    CRect m_fittedTo;          // client width and place of that column when it was fitted
    std::vector<ColumnWidth> m_columnWidths;
    std::optional<View> m_view;
    std::optional<RowSpan> m_paintedRows;           // while no others are asked for their states
    int m_focusRow = -1;                            // on-board, as last drawn
    std::optional<PressNote> m_pressNote;           // until the press is taken back
    std::optional<NMITEMACTIVATE> m_heldActivation; // until the selection is final
    int m_pressedTop = 0;                           // the first row in sight at the last press
    int m_pressedRow = -1; // to be selected alone when the button goes up, unless it is dragged
    Measured m_measured;
    std::unique_ptr<Bars> m_bars;

    friend class CCustomListCtrlHdr;

    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    bool InOnBoard() const;

    // Mode
    void EnterOnBoard();
    void LeaveOnBoard();
    void ForgetWindow();
    void KeepView(int top, int rows);
    void RestoreView();
    bool AreColumnsScaled() const;
    void ScalePlatformColumns(bool toOnBoard);

    // Bars and pointer
    CFauxScrollBar& Bar(int axis) { return axis == SB_VERT ? m_vBar : m_hBar; }
    void DrawBars();
    void ShowBar(int axis, bool needed, bool& frameChanged);
    void ShowContent(int axis, const listctrl::BarData& data, bool& frameChanged);
    void Perform(int axis, int code);
    void ReleaseButton();

    // Content
    HWND HeaderWindow() const;
    bool IsReport() const;
    int ColumnCount() const;
    int LastColumn() const;
    int ColumnAt(int x) const;
    int HeaderBottom() const;
    bool HeaderItemRect(int column, CRect& rect) const;
    bool FirstRowRect(CRect& rect) const;
    int RowsInSight() const;
    int TopRow() const;
    void TakeHeader();
    void LeaveHeader();
    int HeadingWidth(int column);
    void GiveOwnWidth(int column);
    void NoteOwnWidth(int column);
    void FitLastColumn();
    void HoldPlatform();
    bool FollowFilling(UINT message);
    void EndFilling();
    void KeepInStep(UINT message, bool sameMode);
    void FollowColumnOrder();
    void UpdateScrollData();
    Measured Measure();
    void MoveTo(int axis, int position);
    void HomeSideways();
    void EndLabelEdit();
    void FollowLabelEdit(bool bring = false);
    void ShiftPixels(int dy);
    void InvalidateRows(int first, int last);
    void InvalidateEach(const std::set<int>& rows);
    std::set<int> SelectedInSight();
    void FollowChange(int row, UINT states);
    void InvalidateChangedRows(UINT message, WPARAM wParam, LPARAM lParam, LRESULT result);
    int RowWithFocus() const;
    int NextRow(int after, UINT state) const;
    std::vector<CRect> CellsOfFirstRow(int columns);
    LRESULT AskHeader(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void FollowFocus();
    void BringIntoSight(int row);
    static constexpr UINT SelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;
    bool IsSelected(int row);
    void SelectRow(int row, bool extend, bool toggle);
    void SelectRange(int from, int to, bool select);
    void SelectAlone(int row);
    void ClearSelection();
    bool MoveByPage(UINT key, UINT flags);
    bool FocusFirst();
    PressHit HitBy(const CPoint& point);
    void PressBox(const PressHit& hit, const CPoint& point, UINT flags);
    void LetPlatformPress(UINT message, const PressHit& hit, const CPoint& point);
    void TakeBackPress();
    void SelectClicked(const CPoint& point, UINT flags);
    bool KeepsToItself(NMHDR& header, LRESULT* result);
    bool KeepsClick(NMITEMACTIVATE& told);
    bool KeepsBand(LRESULT* result);
    bool KeepsHotRow(NMLISTVIEW& told);
    bool KeepsTip(NMLVGETINFOTIPW& told);
    bool KeepsActivation(NMITEMACTIVATE& told);
    void LetPlatformEdit(bool lets);
    void AwaitLabelEdit(const CPoint& point);
    void EditClickedLabel();
    static constexpr int LongestText = 512; // characters; no cell shows as many
    const WCHAR* ReadCell(int row, int column, WCHAR* text);
    HRESULT GiveRowTexts(int row, int from, int to, BSTR* texts);
    bool IsRow(const VARIANT& child, int& row) const;
    bool RowPlace(int row, CRect& place) const;
    int RowAt(const CPoint& point) const;
    RowSpan RowsDrawn(int rowHeight, int bottom, int items) const;
    void HintOfRows();
    void DrawRow(CDC& dc, int row, const CRect& rowRect, const std::vector<CRect>& cells,
                 const CRect& clip);
};
