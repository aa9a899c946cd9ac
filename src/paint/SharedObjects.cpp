#include "paint/SharedObjects.h"

#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"

CFont& OnBoardControlFont(CFont& shared, double heightFactor)
{
    if (shared.GetSafeHandle() == nullptr)
    {
        CreateOnBoardFont(shared, heightFactor, 0, FW_NORMAL);
    }
    return shared;
}

CFont& StandardControlFont(CFont& shared)
{
    if (shared.GetSafeHandle() == nullptr)
    {
        shared.CreatePointFont(COnBoardUIGeneral::GetStdCtrllfHeight(), "MS Sans Serif");
    }
    return shared;
}

void MakeControlPen(CPen& shared, COLORREF color)
{
    if (shared.GetSafeHandle() == nullptr)
    {
        CreateOnBoardOutlinePen(shared, color);
    }
}

void MakeControlFocusPen(CPen& shared, COLORREF color)
{
    if (shared.GetSafeHandle() == nullptr)
    {
        CreateOnBoardFocusPen(shared, color);
    }
}

void MakeControlBrush(CBrush& shared, COLORREF color)
{
    if (shared.GetSafeHandle() == nullptr)
    {
        shared.CreateSolidBrush(color);
    }
}
