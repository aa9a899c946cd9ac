#pragma once

#include "OnBoardUIExport.h"

#include <afxcmn.h>

// The report list as far as other controls refer to it: its shared fonts.
class ONBOARDUI_API CCustomListCtrl : public CListCtrl
{
    DECLARE_DYNCREATE(CCustomListCtrl)

public:
    CCustomListCtrl() = default;

    // Shared fonts, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();

protected:
    static CFont m_OBFont;
    static CFont m_StdFont;

    DECLARE_MESSAGE_MAP()
};
