#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

// An edit that stays where its host fixed it, whatever layout its parent does: only its height
// follows. Ctrl+C, Ctrl+V, Ctrl+X and Ctrl+Z work on its text even where the host's accelerators
// take these keys, but copy no password. All else is the platform's in every mode: it has no bar
// for a finger and asks for no on-screen keyboard.
class ONBOARDUI_API QuixEdit : public CEdit
{
    DECLARE_DYNAMIC(QuixEdit)

public:
    QuixEdit();

    // In client pixels of the parent. To be called before the window is placed the first time, when
    // it else becomes 0 wide at (0, 0); a window that exists moves there.
    void SetFixedPlace(int x, int y, int width);

    // Whether the last key was Escape, since this window began.
    bool EscapePressed() const { return m_escapePressed != 0; }

    BOOL PreTranslateMessage(MSG* message) override;
    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a text box, named by the label before it.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    DECLARE_MESSAGE_MAP()

    int m_fixedX = 0;
    int m_fixedY = 0;
    int m_fixedWidth = 0;
    int m_escapePressed = 0;

private:
    WPARAM m_doneCharacter = 0; // of a key that has had its effect; 0 for none
};
