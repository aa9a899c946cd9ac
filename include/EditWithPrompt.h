#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

// An edit that shows a grey prompt until the user or the host gives it a text. While the prompt
// shows, the edit counts as empty: whoever asks for its text gets an empty one. The first key or
// press takes the prompt away; Reset brings it back. In an edit for passwords the prompt can be
// read. All else is the platform's in every mode: it asks for no on-screen keyboard.
class ONBOARDUI_API EditWithPrompt : public CEdit
{
    DECLARE_DYNAMIC(EditWithPrompt)

public:
    EditWithPrompt();

    // Empties the edit and shows the prompt again. A parent may ask for it whenever it is told that
    // the edit is empty, or whenever it looks: while the prompt comes or goes it does nothing, and
    // of a prompt that is there already nobody is told again.
    void Reset();

    // @{
    // "<Enter text here>" at first. Null and an empty prompt mean none, and end the one that shows.
    void SetPromptText(const char* prompt);
    CString GetPromptText() const { return m_prompt; }
    // @}

    // @{
    // The colour of the prompt's text, grey at first; shown by the next paint.
    void SetPromptColor(COLORREF color);
    COLORREF GetPromptColor() const { return m_promptColor; }
    // @}

    // An empty or null text is ignored while the prompt shows.
    void SetWindowText(const char* text);

    // @{
    // The text, empty while the prompt shows. The first form copies at most size characters, the
    // final null included, and returns how many without it.
    int GetWindowText(char* buffer, int size) const;
    void GetWindowText(CString& text) const;
    // @}

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a text box, named by the label before it or else by its
    // prompt. That of a password is told as protected also while it shows the prompt.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    int m_showingPrompt = 1;
    CString m_prompt = "<Enter text here>";
    COLORREF m_promptColor;
    CBrush m_brush;

private:
    UINT m_passwordChar = 0;    // put aside while the prompt shows; 0: the text is shown
    bool m_showingText = false; // the prompt comes or goes
    CString m_promptPutIn;      // the prompt that shows
    CString m_shownPrompt;      // what the edit made of it
    bool m_promptDue = false;   // the edit was there before the object: its next message puts it in

    bool BeginPrompt();
    bool LeavePrompt();
    bool PutDuePromptIn();
    void ShowText(const char* text);
    void ShowPrompt(bool there);
    CString ShownText();
    bool IsPromptThere();
    bool EndPrompt();
};
