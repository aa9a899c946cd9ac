#include "CustomDropListCombo.h"

#include "OnBoardUIGeneral.h"
#include "paint/ControlFonts.h"

IMPLEMENT_DYNAMIC(CCustomDropListCombo, CWnd)

BEGIN_MESSAGE_MAP(CCustomDropListCombo, CWnd)
END_MESSAGE_MAP()

CFont CCustomDropListCombo::m_OBFont;
CFont CCustomDropListCombo::m_StdFont;

CCustomDropListCombo::CCustomDropListCombo()
{
    COnBoardUIGeneral::AddCustomDropListCombo(this);
}

CCustomDropListCombo::~CCustomDropListCombo()
{
    COnBoardUIGeneral::RemoveCustomDropListCombo(this);
}

void CCustomDropListCombo::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (newMode != oldMode && GetSafeHwnd() != nullptr)
    {
        Invalidate();
    }
}

CFont& CCustomDropListCombo::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, SmallOnBoardFont);
}

CFont& CCustomDropListCombo::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}
