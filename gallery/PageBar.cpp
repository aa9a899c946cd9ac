#include "PageBar.h"

#include "Look.h"

#include <algorithm>

namespace {

constexpr int Finger = 52; // at 96 dots per inch

// While a button or the trough is held.
constexpr UINT_PTR Repeat = 1;
constexpr UINT RepeatPeriod = 130; // ms

// The bar's own steps are pixels; what one press scrolls is a line or a page of them.
constexpr int Line = 40; // at 96 dots per inch

} // namespace

BEGIN_MESSAGE_MAP(PageBar, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
END_MESSAGE_MAP()

int PageBar::Thickness()
{
    return look::Dark() ? look::Scaled(Finger) : ::GetSystemMetrics(SM_CXVSCROLL);
}

BOOL PageBar::Create(CWnd& parent, UINT id, std::function<void(int)> moved)
{
    m_moved = std::move(moved);
    return CWnd::Create(AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), "", WS_CHILD,
                        CRect(0, 0, 0, 0), &parent, id);
}

void PageBar::Follow(int whole, int shown, int position)
{
    CRect area;
    GetClientRect(&area);
    // A drag has moved the thumb already, to where it may stand between two positions: a new area
    // or position would put it back onto one.
    const bool dragged = m_pressed == CFauxScrollBar::PRESSED_THUMB;
    if (!dragged || area != m_bar.GetArea())
    {
        m_bar.SetArea(area); // for the mode of the moment
    }
    m_bar.SetScrollRange(0, std::max(0, whole - shown), FALSE);
    m_bar.SetPageSize(shown, FALSE);
    m_bar.ShowScrollBar(whole > shown);
    if (!dragged)
    {
        m_bar.SetScrollPos(position, FALSE);
    }
    Invalidate(FALSE);
}

void PageBar::OnPaint()
{
    BufferedPaint paint(*this);
    m_bar.ReDraw(paint.Context(), m_pressed, TRUE);
}

void PageBar::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    m_bar.SetArea(CRect(0, 0, width, height));
    Invalidate(FALSE);
}

void PageBar::Step()
{
    const int line = look::Scaled(Line);
    const int page = std::max(line, m_bar.GetPageSize() - line);
    const bool towards = m_pressed == CFauxScrollBar::PRESSED_FIRST ||
                         m_pressed == CFauxScrollBar::PRESSED_BEFORE_THUMB;
    const bool byLine =
        m_pressed == CFauxScrollBar::PRESSED_FIRST || m_pressed == CFauxScrollBar::PRESSED_SECOND;
    m_bar.IncrementScrollPos((byLine ? line : page) * (towards ? -1 : 1));
    m_moved(m_bar.GetScrollPos());
}

void PageBar::OnLButtonDown(UINT, CPoint point)
{
    if (m_bar.GetHitTest(point) == 0)
    {
        return;
    }
    m_pressed = m_bar.GetLastHit();
    m_last = point;
    SetCapture();
    if (m_pressed != CFauxScrollBar::PRESSED_THUMB)
    {
        SetTimer(Repeat, RepeatPeriod, nullptr);
        Step();
    }
    Invalidate(FALSE);
}

void PageBar::OnMouseMove(UINT, CPoint point)
{
    const CSize moved = point - m_last;
    m_last = point;
    if (m_pressed == CFauxScrollBar::PRESSED_THUMB)
    {
        m_bar.IncrementScrollByPixels(m_bar.GetOrientation() == SB_VERT ? moved.cy : moved.cx);
        m_moved(m_bar.GetScrollPos());
    }
}

void PageBar::OnLButtonUp(UINT, CPoint)
{
    if (m_pressed != CFauxScrollBar::PRESSED_NONE)
    {
        ::ReleaseCapture();
    }
}

void PageBar::OnCaptureChanged(CWnd*)
{
    KillTimer(Repeat);
    m_pressed = CFauxScrollBar::PRESSED_NONE;
    Invalidate(FALSE);
}

void PageBar::OnTimer(UINT_PTR)
{
    // The trough scrolls until the thumb is at the pointer. One tick may come after the release.
    if (m_pressed != CFauxScrollBar::PRESSED_NONE && m_bar.GetHitTest(m_last) != 0 &&
        m_bar.GetLastHit() == m_pressed)
    {
        Step();
    }
}
