#include "CustomListCtrl.h"

#include "paint/ControlFonts.h"

IMPLEMENT_DYNCREATE(CCustomListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CCustomListCtrl, CListCtrl)
END_MESSAGE_MAP()

CFont CCustomListCtrl::m_OBFont;
CFont CCustomListCtrl::m_StdFont;

CFont& CCustomListCtrl::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LargeOnBoardFont);
}

CFont& CCustomListCtrl::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}
