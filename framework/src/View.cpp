#include "framework/View.h"

#include "StillThere.h"
#include "framework/App.h"
#include "framework/Controls.h"
#include "framework/DataExchange.h"
#include "framework/Dialog.h"
#include "framework/Frame.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::HandleInitialUpdate)
END_MESSAGE_MAP()

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.style & WS_BORDER)
    {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~WS_BORDER;
    }
    return CWnd::PreCreateWindow(cs);
}

CView::~CView()
{
    // A window that is still there ends with the base class: here the view would delete itself
    // again.
    LeaveFrame(FALSE);
}

void CView::LeaveFrame(BOOL notify)
{
    CFrameWnd* const frame = m_hWnd == nullptr ? nullptr : GetParentFrame();
    if (frame != nullptr && frame->m_pViewActive == this)
    {
        if (notify)
        {
            frame->SetActiveView(nullptr);
        }
        frame->m_pViewActive = nullptr;
    }
}

void CView::OnDestroy()
{
    LeaveFrame(TRUE);
    CWnd::OnDestroy();
}

void CView::OnPaint()
{
    const framework::StillThere here(*this);
    CPaintDC dc(this); // tells the view to paint its ground
    if (here)
    {
        OnPrepareDC(&dc);
    }
    if (here)
    {
        OnDraw(&dc);
    }
}

void CView::OnActivateView(BOOL activate, CView* activateView, CView*)
{
    // A control of the view that has the focus already keeps it.
    if (activate && activateView == this && ::GetAncestor(m_hWnd, GA_ROOT) == ::GetActiveWindow() &&
        !::IsChild(m_hWnd, ::GetFocus()))
    {
        SetFocus();
    }
}

int CView::OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message)
{
    const framework::StillThere here(*this);
    const int result = CWnd::OnMouseActivate(desktop, hitTest, message);
    if (!here)
    {
        return result; // the parent, which is asked first, has ended the view
    }
    if (CFrameWnd* frame = GetParentFrame(); frame != nullptr && result != MA_NOACTIVATE)
    {
        frame->SetActiveView(this);
    }
    return result;
}

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}

// Scrolling -------------------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

void CScrollView::SetScrollSizes(int, SIZE total, const SIZE& page, const SIZE& line)
{
    m_total = total;
    m_page = CSize(page.cx > 0 ? page.cx : total.cx / 10, page.cy > 0 ? page.cy : total.cy / 10);
    m_line = CSize(line.cx > 0 ? line.cx : m_page.cx / 10, line.cy > 0 ? line.cy : m_page.cy / 10);
    m_line = CSize(std::max(1L, m_line.cx), std::max(1L, m_line.cy)); // also of a low form
    if (m_hWnd != nullptr)
    {
        UpdateBars();
    }
}

void CScrollView::ScrollToPosition(POINT position)
{
    CRect client;
    GetClientRect(&client);
    const CPoint clamped(
        std::clamp<int>(position.x, 0, std::max<int>(0, m_total.cx - client.Width())),
        std::clamp<int>(position.y, 0, std::max<int>(0, m_total.cy - client.Height())));
    const CSize moved = m_position - clamped;
    m_position = clamped;
    if (moved.cx != 0 || moved.cy != 0)
    {
        const HWND window = m_hWnd; // a bar that moves may tell assistive programs
        ::SetScrollPos(window, SB_HORZ, clamped.x, TRUE);
        ::SetScrollPos(window, SB_VERT, clamped.y, TRUE);
        ::ScrollWindow(window, moved.cx, moved.cy, nullptr, nullptr);
    }
}

void CScrollView::ResizeParentToFit(BOOL shrinkOnly)
{
    CFrameWnd* const frame = GetParentFrame();
    if (frame == nullptr)
    {
        return;
    }
    CRect place;
    GetWindowRect(&place);
    CRect whole(CPoint(0, 0), m_total);
    // Without bars it needs the border alone.
    ::AdjustWindowRectEx(&whole, GetStyle() & ~DWORD(WS_HSCROLL | WS_VSCROLL), FALSE, GetExStyle());
    CSize more = whole.Size() - place.Size();
    if (shrinkOnly)
    {
        // What stays out of sight has its bar, which takes room from the other side.
        const CSize bars(more.cy > 0 ? ::GetSystemMetrics(SM_CXVSCROLL) : 0,
                         more.cx > 0 ? ::GetSystemMetrics(SM_CYHSCROLL) : 0);
        more = CSize(std::min(more.cx + bars.cx, 0L), std::min(more.cy + bars.cy, 0L));
    }
    frame->GetWindowRect(&place);
    frame->SetWindowPos(nullptr, 0, 0, place.Width() + more.cx, place.Height() + more.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::OnPrepareDC(CDC* dc, void*)
{
    dc->SetViewportOrg(-m_position.x, -m_position.y);
}

void CScrollView::UpdateBars()
{
    if (m_updatingBars)
    {
        return; // showing a bar changes the size
    }
    m_updatingBars = true;
    const framework::StillThere here(*this);
    // Twice when the room has changed by it: one bar takes some from the other's axis.
    CRect before(0, 0, 0, 0);
    for (int round = 0; round < 2; ++round)
    {
        CRect client;
        GetClientRect(&client);
        if (round > 0 && client == before)
        {
            break;
        }
        before = client;
        SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE | SIF_POS, 0, 0, 0, 0, 0};
        info.nMax = std::max<int>(0, m_total.cx - 1);
        info.nPage = UINT(client.Width());
        info.nPos = m_position.x;
        SetScrollInfo(SB_HORZ, &info);
        if (!here)
        {
            return; // a bar that comes or goes changes size and frame, of which the view hears
        }
        info.nMax = std::max<int>(0, m_total.cy - 1);
        info.nPage = UINT(client.Height());
        info.nPos = m_position.y;
        SetScrollInfo(SB_VERT, &info);
        if (!here)
        {
            return;
        }
    }
    m_updatingBars = false;
    ScrollToPosition(m_position);
}

void CScrollView::OnSize(UINT type, int width, int height)
{
    const framework::StillThere here(*this);
    CView::OnSize(type, width, height);
    if (here)
    {
        UpdateBars();
    }
}

void CScrollView::Scroll(int bar, UINT code)
{
    const bool horizontal = bar == SB_HORZ;
    const int line = horizontal ? m_line.cx : m_line.cy;
    const int page = horizontal ? m_page.cx : m_page.cy;
    SCROLLINFO info = {};
    GetScrollInfo(bar, &info);
    int position = info.nPos;
    switch (code)
    {
    case SB_LINEUP:
        position -= line;
        break;
    case SB_LINEDOWN:
        position += line;
        break;
    case SB_PAGEUP:
        position -= page;
        break;
    case SB_PAGEDOWN:
        position += page;
        break;
    case SB_TOP:
        position = info.nMin;
        break;
    case SB_BOTTOM:
        position = info.nMax;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        position = info.nTrackPos;
        break;
    default:
        return;
    }
    ScrollToPosition(horizontal ? CPoint(position, m_position.y) : CPoint(m_position.x, position));
}

void CScrollView::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar != nullptr)
    {
        CView::OnHScroll(code, position, bar);
        return;
    }
    Scroll(SB_HORZ, code);
}

void CScrollView::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar != nullptr)
    {
        CView::OnVScroll(code, position, bar);
        return;
    }
    Scroll(SB_VERT, code);
}

// As many lines a notch as the user has chosen, but no more than are in sight.
BOOL CScrollView::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    if (m_total.cy <= client.Height())
    {
        return CView::OnMouseWheel(flags, delta, point); // for whoever is behind the view
    }
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const LONGLONG notch =
        lines == WHEEL_PAGESCROLL ? LONGLONG(m_page.cy) : LONGLONG(lines) * m_line.cy;
    // A fine wheel turns by less than a pixel; what it has turned the other way does not count.
    const bool turnsBack = (m_wheelRest < 0) != (delta < 0);
    const LONGLONG way =
        std::min<LONGLONG>(notch, client.Height()) * delta + (turnsBack ? 0 : m_wheelRest);
    m_wheelRest = int(way % WHEEL_DELTA);
    ScrollToPosition(CPoint(m_position.x, m_position.y - int(way / WHEEL_DELTA)));
    return TRUE;
}

// Forms -----------------------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CFormView::CFormView(LPCSTR templateName)
    : m_lpszTemplateName(templateName)
{}

CFormView::CFormView(UINT templateId)
    : CFormView(MAKEINTRESOURCE(templateId))
{}

BOOL CFormView::Create(LPCSTR, LPCSTR windowName, DWORD requestedStyle, const RECT& rect,
                       CWnd* parent, UINT id, CCreateContext*)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    const HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    const HRSRC found = ::FindResource(module, m_lpszTemplateName, RT_DIALOG);
    const auto* dialogTemplate =
        found == nullptr
            ? nullptr
            : static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(module, found)));
    if (dialogTemplate == nullptr || parent == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    m_focusOfFrame = nullptr;
    AfxHookWindowCreate(this);
    const HWND window = ::CreateDialogIndirectParam(module, dialogTemplate, parent->m_hWnd,
                                                    &CDialog::DialogProc, 0);
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy(); // which may delete the view
        return FALSE;
    }
    if (window == nullptr)
    {
        return FALSE;
    }
    // The controls' extent, before the frame gives the form a size of its own.
    CRect extent;
    GetClientRect(&extent);
    // The window hears of each step, and may end in any.
    const framework::StillThere here(*this);
    ModifyStyle(WS_BORDER | WS_CAPTION | WS_POPUP, WS_CHILD);
    if (here)
    {
        SetDlgCtrlID(int(id));
    }
    if (here && windowName != nullptr)
    {
        SetWindowText(windowName);
    }
    if (here)
    {
        SetScrollSizes(MM_TEXT, extent.Size());
    }
    if (here)
    {
        SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    if (here && (requestedStyle & WS_VISIBLE) != 0)
    {
        ShowWindow(SW_SHOWNA);
    }
    return BOOL(bool(here));
}

void CFormView::OnInitialUpdate()
{
    const framework::StillThere here(*this);
    if (UpdateData(FALSE) && here)
    {
        CScrollView::OnInitialUpdate();
    }
}

void CFormView::OnActivateFrame(UINT state, CFrameWnd*)
{
    const HWND focus = ::GetFocus();
    const bool isOurs = ::IsChild(m_hWnd, focus) != FALSE;
    if (state != WA_INACTIVE)
    {
        // One that is minimised has the focus only later.
        m_focusOfFrame = isOurs ? nullptr : m_focusOfFrame;
    }
    else if (focus != nullptr)
    {
        m_focusOfFrame = isOurs ? focus : nullptr;
    }
}

// The platform remembers the control for dialogs of their own alone.
void CFormView::OnSetFocus(CWnd* old)
{
    if (::IsChild(m_hWnd, m_focusOfFrame) && ::IsWindowVisible(m_focusOfFrame) &&
        ::IsWindowEnabled(m_focusOfFrame))
    {
        ::SetFocus(m_focusOfFrame);
        return;
    }
    CScrollView::OnSetFocus(old);
}

BOOL CFormView::PreTranslateMessage(MSG* message)
{
    if (CScrollView::PreTranslateMessage(message))
    {
        return TRUE;
    }
    // The form takes every key for its controls, so the frame's accelerators come first.
    for (CWnd* frame = GetParentFrame(); frame != nullptr; frame = frame->GetParentFrame())
    {
        if (frame->PreTranslateMessage(message))
        {
            return TRUE;
        }
    }
    return PreTranslateInput(message);
}
