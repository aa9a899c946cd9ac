#include "CustomEdit.h"

#include "paint/ControlFonts.h"

IMPLEMENT_DYNAMIC(CCustomEdit, CEdit)

BEGIN_MESSAGE_MAP(CCustomEdit, CEdit)
END_MESSAGE_MAP()

CFont CCustomEdit::m_OBFont;
CFont CCustomEdit::m_StdFont;

CFont& CCustomEdit::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LargeOnBoardFont);
}

CFont& CCustomEdit::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}
