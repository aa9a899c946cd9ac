#include "BoldStatic.h"

#include "OnBoardUIGeneral.h"
#include "buttons/OwnGround.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/PaintContext.h"

BEGIN_MESSAGE_MAP(CBoldStatic, CCustomStatic)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CBoldStatic::OnPrintClient)
    ON_MESSAGE(WM_SETTEXT, &CBoldStatic::OnLookChanged)
    ON_MESSAGE(WM_SETFONT, &CBoldStatic::OnLookChanged)
    ON_MESSAGE(WM_ENABLE, &CBoldStatic::OnLookChanged)
    ON_MESSAGE(WM_SYSCOLORCHANGE, &CBoldStatic::OnLookChanged)
END_MESSAGE_MAP()

CBoldStatic::CBoldStatic()
    : m_color(::GetSysColor(COLOR_WINDOWTEXT))
{}

CBoldStatic::~CBoldStatic() = default;

void CBoldStatic::SetColor(COLORREF color)
{
    m_color = color;
}

void CBoldStatic::OnPaint()
{
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        CCustomStatic::OnPaint();
        return;
    }
    const WindowAlive alive(*this); // it may end in its own questions
    CFont bold;
    if (CFont* const own = GetFont(); alive && own != nullptr)
    {
        LOGFONT description = {};
        own->GetLogFont(&description);
        description.lfWeight *= 2; // a bold one asks for more than there is, which does no harm
        bold.CreateFontIndirect(&description);
    }
    CString text;
    if (alive)
    {
        GetWindowText(text);
    }
    if (!alive)
    {
        return;
    }
    PaintContext context(*this);
    CDC& dc = context.DC();
    if (!alive)
    {
        return;
    }
    CRect area;
    GetWindowRect(&area);
    ScreenToClient(&area);
    const Selected font(dc, bold);
    const BackgroundMode mode(dc, TRANSPARENT);
    const TextColor color(dc, m_color);
    dc.DrawText(text, &area, DT_SINGLELINE);
}

LRESULT CBoldStatic::OnPrintClient(WPARAM wParam, LPARAM lParam)
{
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        return CCustomStatic::OnPrintClient(wParam, lParam);
    }
    OnPaint();
    return 0;
}

LRESULT CBoldStatic::OnLookChanged(WPARAM, LPARAM)
{
    const WindowAlive alive(*this); // the parent is told
    const LRESULT result = Default();
    if (alive)
    {
        InvalidateWithGround(*this);
    }
    return result;
}
