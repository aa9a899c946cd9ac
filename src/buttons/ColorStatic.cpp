#include "ColorStatic.h"

#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "paint/PaintContext.h"

BEGIN_MESSAGE_MAP(CColorStatic, CStatic)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CColorStatic::OnPrintClient)
    ON_WM_ENABLE()
    ON_WM_SYSCOLORCHANGE()
    ON_MESSAGE(WM_SETTEXT, &CColorStatic::OnSetText)
END_MESSAGE_MAP()

CColorStatic::CColorStatic() // meant: the colour is the host's to give
{
    EnableActiveAccessibility();
}

CColorStatic::~CColorStatic() = default;

void CColorStatic::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    ShowTakenOver(*this);
}

void CColorStatic::Set(COLORREF color)
{
    m_color = color;
    if (GetSafeHwnd() != nullptr)
    {
        Invalidate();
    }
}

void CColorStatic::OnPaint()
{
    const WindowAlive alive(*this);
    PaintContext context(*this);
    if (!alive)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    context.DC().FillSolidRect(&client, m_color);
}

// The platform's label draws itself at once.
void CColorStatic::OnEnable(BOOL enable)
{
    const WindowAlive alive(*this); // the parent is told
    CStatic::OnEnable(enable);
    if (alive)
    {
        Invalidate();
    }
}

// It would do so here too, and nothing else.
void CColorStatic::OnSysColorChange() {}

// Kept as every window keeps its text; the platform's label would show it.
LRESULT CColorStatic::OnSetText(WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProc(m_hWnd, WM_SETTEXT, wParam, lParam);
}
