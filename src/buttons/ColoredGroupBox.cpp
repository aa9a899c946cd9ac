#include "ColoredGroupBox.h"

#include "OnBoardUIGeneral.h"
#include "buttons/OwnGround.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/PaintContext.h"

BEGIN_MESSAGE_MAP(CColoredGroupBox, CStatic)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CColoredGroupBox::OnPrintClient)
    ON_WM_ENABLE()
    ON_WM_SIZE()
    ON_WM_SYSCOLORCHANGE()
    ON_MESSAGE(WM_SETTEXT, &CColoredGroupBox::OnSetText)
END_MESSAGE_MAP()

CColoredGroupBox::CColoredGroupBox()
    : m_color(::GetSysColor(COLOR_WINDOWTEXT))
{
    EnableActiveAccessibility();
}

CColoredGroupBox::~CColoredGroupBox() = default;

void CColoredGroupBox::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    ShowTakenOverWithGround(*this);
}

void CColoredGroupBox::SetColor(COLORREF color)
{
    m_color = color;
}

void CColoredGroupBox::OnPaint()
{
    CRect box;
    GetWindowRect(&box);
    ScreenToClient(&box);
    const CPen outline(PS_SOLID, COnBoardUIGeneral::InOnBoardMode() ? metrics::OutlineWidth : 1,
                       m_color);
    PaintContext context(*this);
    CDC& dc = context.DC();
    const Selected pen(dc, outline);
    // Meant: along the exclusive edges, so that a line of one pixel on the right and at the bottom
    // falls just outside the window; a wide one keeps its inner pixel.
    dc.MoveTo(box.left, box.top);
    dc.LineTo(box.right, box.top);
    dc.LineTo(box.right, box.bottom);
    dc.LineTo(box.left, box.bottom);
    dc.LineTo(box.left, box.top);
}

// The platform keeps what is painted and asks for the rest alone; a wide outline leaves its lower
// and its right line then.
void CColoredGroupBox::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CStatic::OnSize(type, width, height);
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        InvalidateWithGround(*this);
    }
}

// The platform's label would draw its text at once, over what nobody paints again, and tell the
// parent. An outline looks the same either way.
void CColoredGroupBox::OnEnable(BOOL enable)
{
    TellEnabled(m_hWnd, enable);
}

// The same, without a word to the parent.
void CColoredGroupBox::OnSysColorChange() {}

// Kept as every window keeps its text; the platform's label would show it.
LRESULT CColoredGroupBox::OnSetText(WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProc(m_hWnd, WM_SETTEXT, wParam, lParam);
}
