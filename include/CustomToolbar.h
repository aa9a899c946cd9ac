#pragma once

#include "CustomToolbarCloseRule.h"
#include "OnBoardUIExport.h"

#include <afxext.h>

#include <string>
#include <vector>

// A tool bar whose buttons the host can put into the order that it keeps in its settings. In the
// on-board modes it is dark, with light texts: it answers NM_CUSTOMDRAW itself then, so that its
// parent is not asked. Its buttons are as large there as the host asks for, but never smaller than
// a finger (52 x 52 pixels), and in the standard mode they are again what they were; the bar's own
// size is its host's.
//
// A bar that its host gives the focus, or WS_TABSTOP, is worked by keys in every mode: arrows, Home
// and End go from one button that can be pressed to another, Space and Enter click it. A press does
// not give the focus. A platform whose bar asks for the arrows works it by keys of its own.
class ONBOARDUI_API CustomToolbar : public CToolBar
{
    DECLARE_DYNAMIC(CustomToolbar)

public:
    // Which fly-outs a tool bar closes; the values are the host's.
    using CLOSERULE = CUSTOMTOOLBAR_CLOSERULE;

    CustomToolbar();

    // Orders the buttons as far as it goes: order lists their command ids from left to right.
    // Appends one message for each way in which order and tool bar do not fit together; true when
    // there is none. Buttons that order does not know end up after the others, as they follow one
    // another now.
    //
    // Buttons change places by their command id and picture alone; style, state and text stay with
    // the place. A hidden place stays hidden and a separator's place stays a separator, whatever
    // comes there, and the host's command updates give the commands their states again. Of several
    // buttons with one id the first is meant, each time anew.
    virtual bool OrderBtns(const std::vector<unsigned int>& order,
                           std::vector<std::string>& messages);

    void PreSubclassWindow() override;

    // @{
    // Assistive programs are told of a tool bar and of its buttons, each named by its text or the
    // tip of its command. The default action of a button clicks it.
    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accFocus(VARIANT* child) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    HRESULT accDoDefaultAction(VARIANT child) override;
    // @}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // @{
    // In the standard mode the platform's.
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg BOOL OnCustomDraw(NMHDR* header, LRESULT* result);
    // @}
    afx_msg void OnPaint();
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg LRESULT OnAct(WPARAM button, LPARAM lParam);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* taker);
    DECLARE_MESSAGE_MAP()

private:
    void FitButtons();
    bool WorksKeys();
    bool IsPressable(int button) const;
    bool HasDropArrow(UINT id) const;
    int FocusedButton() const;
    void FocusNext(int from, int step);
    void StepFocus(int step);
    void FocusButton(int button);
    void InvalidateFocus();

    static constexpr POINT Nowhere = {-1, -1};

    CSize m_enlarged; // what the buttons were made for a finger, pixels; 0 where they were not
    CSize m_platformButton;   // what they were before that
    HWND m_fitted = nullptr;  // the window that these are of
    int m_focused = -1;       // the place that keys have reached; -1: none yet
    CPoint m_press = Nowhere; // the press that the platform is at: it drops menus in it
};
