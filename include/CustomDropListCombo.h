#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

// The drop-list combo as far as it follows the display mode: registered from construction to
// destruction, told of every change, with the fonts that restyling gives to its windows.
class ONBOARDUI_API CCustomDropListCombo : public CWnd
{
    DECLARE_DYNAMIC(CCustomDropListCombo)

public:
    CCustomDropListCombo();
    ~CCustomDropListCombo() override;

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // Shared fonts, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();

protected:
    static CFont m_OBFont;
    static CFont m_StdFont;

    DECLARE_MESSAGE_MAP()
};
