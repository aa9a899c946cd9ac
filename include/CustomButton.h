#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <functional>
#include <optional>
#include <vector>

// The base of the library's buttons. In the standard mode it is the platform's button. In an
// on-board mode it follows the press itself, keeps its own pressed, checked and focus state, lets
// the derived class draw it, and tells its parent of a click by a BN_CLICKED that it sends.
//
// The check state of the on-board modes and that of the platform's button are apart: a host that
// changes the mode carries it over. Whichever button has the focus when the mode changes shows it.
// The parent may destroy the button while it is told of a click. The next window of an object
// begins unchecked.
class ONBOARDUI_API CCustomButton : public CButton
{
    DECLARE_DYNAMIC(CCustomButton)

public:
    CCustomButton();
    ~CCustomButton() override;

    // Whether the button is held down by an on-board press, 0 or 1. Meant: in every mode, the
    // platform's button is not asked.
    UINT GetState() const { return m_pressed ? 1 : 0; }
    // As BM_SETSTATE with this value.
    void SetState(int state);

    // @{
    // The check state of the mode (BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE). Setting it does
    // not tell the parent; on-board any other number is kept, too.
    int GetCheck() const;
    void SetCheck(int check);
    // @}

    // Begins to follow a press: takes focus and capture. Nothing while any window has the capture,
    // or without a window.
    virtual void StartTracking();
    // Ends it without a click, from wherever it is lost. May be called at any time.
    virtual void EndTracking();
    // Whether a click at point (client coordinates) is one on the button.
    virtual bool InButtonRect(const CPoint& point);

    // @{
    // Sends the click, BN_CLICKED with the button's id, to the parent or to any window.
    virtual void NotifyParentClicked();
    virtual void NotifyWindowClicked(CWnd* window);
    // @}

    // @{
    // A click's two steps for derived classes: before the parent hears of it, and after, once the
    // capture is free. The second one comes in every mode.
    virtual void HandleBMClick() {}
    virtual void HandleGroupClick() {}
    // @}

    // A key in an on-board mode; here the platform's button has it, but for the repeats of a held
    // space key.
    virtual void HandleKeyDown(UINT key, UINT repeat, UINT flags);
    // For derived classes that follow what a button does.
    virtual void TraceLocation(const char*) {}
    // Appends the windows at the button's level, itself among them, whose style has all these bits,
    // in z-order. The pointers last until the thread is idle.
    virtual void GetSiblingControls(std::vector<CWnd*>& controls, DWORD style);
    // Draws the whole client area, in client coordinates.
    virtual void DrawOB(CDC& dc) = 0;
    // Draws the button on the screen now.
    virtual void DrawOB();
    // Draws the caption to the right of a mark, centred in item, in the colours and font that are
    // selected; with a frame while the button has the focus.
    virtual void DrawRCText(CDC& dc, const CRect& item, const CRect& mark);

    void PreSubclassWindow() override;

    // @{
    // Assistive programs are told the mode's own check and press. The role decides how a button is
    // told of: only one that is no push button has a check. The default action is a click, posted
    // to the button; one that the user cannot reach does none.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT accDoDefaultAction(VARIANT child) override;
    // @}

    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);

protected:
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnCancelMode();
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg void OnSetFocus(CWnd* loser);
    afx_msg void OnKillFocus(CWnd* taker);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    // For derived classes to map: focus cues are drawn at once.
    afx_msg void OnUpdateUIState(UINT action, UINT element);
    afx_msg LRESULT OnBMClick(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBMSetCheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBMSetState(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBMGetCheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBMGetState(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAct(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    // Whether the mode is on-board, the first question of every handler; nothing when the button
    // has not survived a press that ended here.
    std::optional<bool> FollowMode();
    // Sets the on-board check state; shown by the next paint. Of a radio button it moves the stop
    // of the Tab key, which the platform's does too.
    void ChangeCheck(int check);
    // A click that a key makes: shown at once.
    void ClickByKey();
    // Draws a button of a mark and a caption beside it. drawMark draws the mark into item and gives
    // its rectangle.
    void DrawChoice(CDC& dc, const std::function<void(const CRect& item, CRect& mark)>& drawMark);

    // Made with the first button and kept for the life of the process.
    static CPen m_OutlinePen;
    static CPen m_PressedOutlinePen; // for derived classes
    static CPen m_FocusPen;
    static CPen m_PressedFocusPen;
    static CFont m_Font;

    bool m_tracking = false; // a press that began here is followed, with the mouse captured
    bool m_pressed = false;
    bool m_focused = false; // on-board only, from the first message of the mode on
    bool m_mouseDown =
        false; // the left button went down here and has not come up: for derived classes
    int m_check = BST_UNCHECKED;
    COLORREF m_background; // of the client area, on-board

private:
    APPMODE m_trackedIn = STD;   // the mode in which the press began
    bool m_spaceHeld = false;    // the platform's button has taken the space key down
    bool m_followsFocus = false; // an on-board mode was seen last
    bool m_hadWindow = false;

    // Whether the handler goes on. If not, the platform's button has had its message, when there
    // still is one; its answer goes into answer.
    bool FollowOrPass(LRESULT* answer = nullptr);
    // @{
    // Whether the button is still there, be it without a window.
    bool SurvivesEnd();
    bool EndOutOfReach();
    bool NoteMode();
    // @}
    void GiveBackFocus();
};
