#pragma once

#include "FauxScrollBar.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <map>
#include <memory>
#include <vector>

// The list box of the library. In the standard mode it is the platform's list box. In an on-board
// mode it takes the platform's scroll bars away and drives wide ones of its own, painted in its
// non-client area: presses, holds, drags, wheel turns and keys become WM_VSCROLL and WM_HSCROLL
// messages to itself. It may be created, made from a dialog template or put over an existing list
// box, in any mode, and follows mode changes both ways.
//
// The vertical bar appears when there are more rows than fit, whatever the style says (not in a
// list of several columns); the horizontal one only in a list of several columns or with
// WS_HSCROLL.
class ONBOARDUI_API CCustomListBox : public CListBox
{
    DECLARE_DYNAMIC(CCustomListBox)

public:
    CCustomListBox();
    ~CCustomListBox() override;

    // @{
    // Fonts of all list boxes, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();
    // @}

    // Takes all rows out, by the message, so that list and bars hear of it.
    void ResetContent() { SendMessage(LB_RESETCONTENT); }

    // On-board: scrolls content and bar (rows for SB_VERT, steps for SB_HORZ) and gives the bar's
    // previous position. Otherwise as CWnd's.
    virtual int SetScrollPos(int bar, int position, int redraw = TRUE);

    // Takes the platform's scroll bars out of the window style; the frame is not recalculated.
    virtual void DisableScrollBars();

protected:
    // @{
    // Painting in the non-client area, on-board only. A bar that looks as it did is left alone.
    virtual void DrawOBBorders();
    virtual void DrawOBScrollBars();
    virtual void DrawOBVScrollBar();
    virtual void DrawOBHScrollBar();
    // @}

    // @{
    // Take range, page and visibility of the bars from the content and the client rectangle.
    virtual void UpdateScrollData();
    virtual void UpdateVScrollData();
    virtual void UpdateHScrollData();
    // @}

public:
    // @{
    // Rows of a list with LBS_HASSTRINGS that nobody else draws: the text centred in the font of
    // the mode, on-board rows one and a half times as high as their text. Heirs that draw rows find
    // the parent's colors in the context, also where only the focus comes or goes.
    void DrawItem(LPDRAWITEMSTRUCT draw) override;
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override;
    // @}

    // Height in pixels of a row for this text in the on-board font: one and a half times the text.
    virtual int GetEntryHeight(const char* text);
    // Width in pixels of a row's text: in the control's font, and on-board for rows that the list
    // draws itself in the font that DrawItem takes. 0 for rows without text.
    virtual int GetEntryWidth(int index);
    // Width in pixels of the widest character of the control's font, for derived classes.
    virtual int GetMaxCharWidth();

protected:
    // The text of a row in the font that is selected, centred in its height and so many pixels
    // further right than usual, on the ground and in the colour of its state (ODS_ bits), or else
    // in the context's own.
    void DrawRowText(CDC& dc, const CRect& row, const CString& text, UINT state, int indent = 0);

    // Has the parent set the list's colors in the context where the platform did not: it asks for
    // none when only the focus comes or goes. Before a row is drawn that the parent gives back.
    // False when the list did not survive it.
    bool AskForColors(const DRAWITEMSTRUCT& draw);

    // Places the bars against the client rectangle.
    virtual void ResizeOBScrollBars();

    // @{
    // A press on a bar, by the part that its last hit test found.
    virtual void ProcessVScroll();
    virtual void ProcessHScroll();
    // @}

    // The pointer moved, in client coordinates; drags the thumb that is held.
    virtual void HandleMouseMoveScroll(const CPoint& point);

    // @{
    // Whether a bar may appear when it is needed. Here the vertical one unless the list has several
    // columns, and the horizontal one in a list with WS_HSCROLL or several columns.
    virtual bool VerifyAllowVScrollBar();
    virtual bool VerifyAllowHScrollBar();
    // @}

public:
    // Makes the bars anew from content and size, after changes that the control is not told of.
    virtual void ReCheckScrollBars();

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a list, named by the label before it, whose rows are list
    // items with their texts. A row's child id is its index and one. Rows out of sight are told as
    // off-screen.
    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accFocus(VARIANT* child) override;
    HRESULT get_accSelection(VARIANT* children) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    // @}

    // Selects as the user does, and tells the parent of a list with LBS_NOTIFY by a posted message.
    HRESULT accSelect(long flags, VARIANT child) override;

    // @{
    // Where a row is on the screen, in pixels; the row before or after one; the row at a point of
    // the screen, or the list itself where there is none. E_INVALIDARG for a row that is not there.
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    // @}

    // A double click on a row, in a list with LBS_NOTIFY: selects it at once and, by a posted
    // message, tells the parent LBN_DBLCLK, which may open a dialog.
    HRESULT accDoDefaultAction(VARIANT child) override;

protected:
    // Lays the window out for the display mode of the moment, if it is still laid out for the other
    // kind; true when the mode is on-board and the list is still there. Every handler asks it
    // first.
    bool FollowMode();
    // A message for the platform's list box alone, past the handlers of this class and its heirs.
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    bool HasText() const; // rows are strings
    // Whether the rows stand in columns, which scroll sideways alone.
    bool InColumns() const { return (GetStyle() & LBS_MULTICOLUMN) != 0; }
    HFONT Font(); // of the control; null: the system's

    // Whether there is a row with this index.
    bool Exists(int index);
    // Whether a child id is that of a row; gives its index.
    bool IsRow(const VARIANT& child, int& index);
    // The place of a row that exists, in client coordinates.
    CRect RowRect(int index);
    // Whether any of a row that exists can be seen; gives its place.
    bool IsInSight(int index, CRect& row);
    // The row under a point in client coordinates, or -1.
    int RowFromPoint(CPoint point);
    // Whether clicks with Shift and Ctrl select several rows.
    bool ExtendsSelection() const { return (GetStyle() & LBS_EXTENDEDSEL) != 0; }
    // Whether each space changes the selection of one row and leaves the others. Of a list with
    // both styles that is true of the key alone: to clicks it is one of an extended selection.
    bool FlipsSelection() const { return (GetStyle() & LBS_MULTIPLESEL) != 0; }
    // False for a row that is not there.
    bool IsSelected(int index) { return Ask(LB_GETSEL, WPARAM(index)) > 0; }
    // Their indexes, rising; in a list that selects one row at most that one.
    std::vector<int> SelectedRows();
    // Before a press is worked. The platform would take the focus in the middle of it and go on
    // with a list that has ended by what the last one with the focus tells. Whether it came.
    bool TakeFocus();
    // A press as the platform works it. It may end the list.
    void PressRow(UINT flags, CPoint point);
    // After an heir has given rows another height by itself. It may end the list.
    void RowsFitted();
    // Pixels below which no row is measured.
    virtual int LeastRowHeight() { return 0; }
    // Ends what is pressed on a bar.
    void EndPress();
    // Sends the parent WM_COMMAND with this code. It may end the list.
    void NotifyParent(UINT code);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT hitTest, CPoint point);
    afx_msg LRESULT OnNCMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnUpdateUIState(UINT action, UINT element);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnCancelMode();
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnAddString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnResetContent(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    // Messages after which every row may be another (LB_DIR, LB_SETCOUNT).
    afx_msg LRESULT OnContentReplaced(WPARAM wParam, LPARAM lParam);
    // Messages that give the same rows another place (LB_SETITEMHEIGHT, LB_SETCOLUMNWIDTH).
    afx_msg LRESULT OnRowsMeasured(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetRedraw(WPARAM wParam, LPARAM lParam);
    // Messages that may scroll the list without a scroll message (LB_SETTOPINDEX ...).
    afx_msg LRESULT OnMayScroll(WPARAM wParam, LPARAM lParam);
    // Searches (LB_FINDSTRING, LB_FINDSTRINGEXACT) behind any index, and one that selects.
    afx_msg LRESULT OnFindString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSelectString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetHorizontalExtent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetHorizontalExtent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAct(WPARAM row, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

public:
    static UINT m_timerid;                // auto-repeat
    static UINT m_timerperiod;            // milliseconds
    static UINT m_timerInitialWaitID;     // a longer wait before the first repeat
    static UINT m_timerInitialWaitPeriod; // milliseconds

protected:
    static CPen m_OutlinePen;
    static CFont m_OBFont;
    static CFont m_StdFont;

    int m_itemHeight = 0;          // pixels, of the first row
    bool m_vBarSuppressed = false; // a derived class keeps the vertical bar from being painted
    bool m_vBarNeeded = false;
    bool m_hBarNeeded = false;
    int m_frameWidth;
    int m_frameHeight;
    CFauxScrollBar m_vBar;
    CFauxScrollBar m_hBar;
    bool m_tracking = false;  // a press on a bar goes on
    bool m_focusCame = false; // since it was last taken for a press
    CFauxScrollBar::ePRESSED m_vPressed = CFauxScrollBar::PRESSED_NONE;
    CFauxScrollBar::ePRESSED m_hPressed = CFauxScrollBar::PRESSED_NONE;

private:
    static constexpr LONGLONG MaxOffset = 0xFFFF; // pixels: a scroll message holds no more

    // What it has in common with every control that has faux bars: mode, frame and presses.
    class Bars;

    int m_hostExtent = 0;         // horizontal extent that the host set, pixels
    bool m_standardKnown = false; // the list was laid out for the standard mode before
    int m_stdItemHeight = 0;      // pixels, in the standard mode; 0: not known
    int m_averageWidth = 0;       // of a character of the font; 0: not measured
    bool m_made = false;          // made as this object, so that its style was seen whole
    bool m_refitting = false;     // the bars go at once
    std::map<int, int> m_widths;  // how many rows have a width; kept only with WS_HSCROLL
    HFONT m_widthsFont = nullptr; // in which they were counted; compared, never used
    std::unique_ptr<Bars> m_bars;

    void EnterOnBoard();
    void LeaveOnBoard();
    void BeginAfresh();
    void HideBars();

    void MeasureRows();

    int AverageCharWidth();
    HFONT RowFont();
    int HeightOfRow(int index);
    int RowsInSight(int count, int height);
    int RowsInColumn();
    int RowsInColumn(int height) const;
    int ColumnWidth();
    int ColumnsOutOfSight(int count, int width, int height);
    bool FitsWithoutBars();
    int ContentWidth() const;
    bool CountsWidths();
    void CountWidth(int index, int change);
    void CountAllWidths();
    bool ApplyHorizontalExtent();

    CFauxScrollBar& Bar(int axis) { return axis == SB_VERT ? m_vBar : m_hBar; }
    bool& Needed(int axis) { return axis == SB_VERT ? m_vBarNeeded : m_hBarNeeded; }
    void ShowBar(int axis, bool needed);
    void Scroll(int axis, UINT code, UINT position);
    bool MoveContent(int axis);
    void MirrorContent(int axis);
    void MirrorContent();
    void BeginFilling();
    void EndFilling();
    void InvalidateFrom(int index);
    void KeepCaretInSight();
    bool ContentChanged();
    WPARAM SearchStart(WPARAM after);
};
