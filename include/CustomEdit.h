#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

// The edit control as far as other controls refer to it: its shared fonts.
class ONBOARDUI_API CCustomEdit : public CEdit
{
    DECLARE_DYNAMIC(CCustomEdit)

public:
    CCustomEdit() = default;

    // Shared fonts, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();

protected:
    static CFont m_OBFont;
    static CFont m_StdFont;

    DECLARE_MESSAGE_MAP()
};
