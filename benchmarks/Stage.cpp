#include "Stage.h"

#include "OnBoardUIGeneral.h"

CWnd& Stage()
{
    static CWnd* const stage = [] {
        auto* made = new CWnd; // until the process ends
        made->CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)), "",
                       WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, CRect(20, 20, 1020, 820), nullptr,
                       0);
        return made;
    }();
    return *stage;
}

void Settle()
{
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        ::DispatchMessage(&message);
    }
}

void PaintNow(CWnd& window)
{
    window.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void EnterMode(APPMODE mode)
{
    if (COnBoardUIGeneral::GetAppMode() != mode)
    {
        COnBoardUIGeneral::SetAppMode(mode);
    }
}
