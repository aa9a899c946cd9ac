#pragma once

#include "FauxScrollBar.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <memory>

class IEFB;

// The edit of the library. In the standard mode it is the platform's edit. In an on-board mode
// its client edge is a border of three pixels, in place of the platform's vertical scroll bar it
// has a wide one of its own, painted in its non-client area, and in the two electronic-flight-bag
// modes it asks the host for the on-screen keyboard when it is tapped, with ES_READONLY, too; to
// hide it at the end is the host's business. It may be created, made from a dialog template or put
// over an existing edit, in any mode, and follows mode changes both ways.
//
// Only an edit made with WS_VSCROLL gets the bar, and only while its text does not fit.
class ONBOARDUI_API CCustomEdit : public CEdit
{
    DECLARE_DYNAMIC(CCustomEdit)

public:
    CCustomEdit();
    ~CCustomEdit() override;

    // @{
    // The host's on-screen keyboard, for all edits; not owned, null for none.
    static IEFB* GetEfb() { return m_efb; }
    static void SetEfb(IEFB* efb) { m_efb = efb; }
    // @}

    // @{
    // Shared fonts, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();
    // @}

    // From now on keys scroll nothing and change nothing but the clipboard, by Ctrl+C and
    // Ctrl+Insert; Tab, Enter and Escape are the dialog's. The bar scrolls and the pointer selects
    // as before. There is no way back, nor for the object's next window. The host still sets the
    // text, and in the standard mode so does the platform's context menu.
    void SetFauxReadOnly() { m_fauxReadOnly = true; }

    // @{
    // Take the vertical bar away, and give it back to an edit that was made with one. Text that
    // does not fit brings the bar back by itself.
    void RemoveVScrollBar();
    void IncludeVScrollBar();
    // @}

    // Lays the edit out anew.
    virtual void Init();
    // Border and bar, at once.
    virtual void DrawOBNC();

    // @{
    // The bar alone, through a context of the whole window or its own. A bar that looks as it did
    // is left alone.
    virtual void DrawOBScrollBars(CDC* dc);
    virtual void DrawOBScrollBars();
    // @}

    // Takes visibility, range and page of the bar from the text.
    virtual void UpdateScrollPosFromText();
    // A press on the bar, by the part that its last hit test found.
    virtual void ProcessVScroll();

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a text box, named by the label before it.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
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
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnCancelMode();
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg void OnStyleChanged(int which, LPSTYLESTRUCT styles);
    // The parent hears of both as well.
    afx_msg BOOL OnENUpdate();
    afx_msg BOOL OnENVScroll();
    DECLARE_MESSAGE_MAP()

public:
    static IEFB* m_efb;        // the host's, stored by it here or by SetEfb; null: none
    static UINT m_timerid;     // auto-repeat
    static UINT m_timerperiod; // milliseconds

protected:
    static CPen m_OutlinePen; // for derived classes
    static CFont m_OBFont;
    static CFont m_StdFont;

    bool m_initialised = false;
    int m_edgeHeight;
    int m_edgeWidth;
    bool m_scrolling = false; // a press on the bar goes on
    bool m_barShown = false;
    CFauxScrollBar m_bar;
    CFauxScrollBar::ePRESSED m_lastHit = CFauxScrollBar::PRESSED_NONE; // part held down
    bool m_wantsBar = false;                                           // made with WS_VSCROLL
    bool m_overflowing = false; // more lines than are visible; for derived classes
    bool m_firstUpdateDone = false;
    bool m_fauxReadOnly = false;

private:
    // What it has in common with every control that has faux bars: mode, frame and presses.
    class Bars;

    bool m_updating = false;
    int m_lines = 0;   // of the text, when the bar was last taken from it
    int m_lastTop = 0; // the furthest that the text scrolls
    std::unique_ptr<Bars> m_bars;

    struct View
    {
        int lines;
        int first; // line at the upper edge
        int last;  // line at the lower edge
    };

    bool FollowMode();
    void EnterOnBoard();
    void LeaveOnBoard();

    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    bool IsReady();
    int FirstLine();
    View CurrentView();
    bool ShowsAllLines();
    void FollowText();
    bool TextMoved();
    void ToFirstLine();

    void ShowBar(bool shown);
    void PlaceBar();
    void OfferKeyboard();
    void EmptyText();
};
