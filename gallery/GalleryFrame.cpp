#include "GalleryFrame.h"

#include "AppIcon.h"
#include "DisplayModes.h"
#include "Look.h"
#include "OpenDialog.h"
#include "Pages.h"
#include "WindowMoves.h"
#include "resource.h"

#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

#include <algorithm>
#include <iterator>

namespace {

// Measures of the window, in pixels at 96 dots per inch.
struct Measures
{
    int margin;
    int switches; // height
    int list;     // width
    int gap;      // between the list and the page
    int line;     // height
    int caption;  // height; that of a frame of its own
    int window;   // width of the switches in it
};
constexpr Measures Standard = {8, 32, 150, 12, 24, 0, 0};
constexpr Measures OnBoard = {12, 60, 236, 24, 44, 60, 272};

Measures CurrentMeasures()
{
    const Measures& m = look::Dark() ? OnBoard : Standard;
    return {look::Scaled(m.margin), look::Scaled(m.switches), look::Scaled(m.list),
            look::Scaled(m.gap),    look::Scaled(m.line),     look::Scaled(m.caption),
            look::Scaled(m.window)};
}

// The dark frame: a line round the window and a caption that a finger can hold.
constexpr int Border = 3;
constexpr int CaptionInset = 4; // of the switches in it

bool OwnFrame()
{
    return look::Dark() && !CoversScreen(COnBoardUIGeneral::GetAppMode());
}

MONITORINFO MonitorOf(HWND window)
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info;
}

void GiveColorsBack()
{
    // They are the whole system's and would outlive the program.
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        OnBoardRestoreSysColors();
    }
}

} // namespace

BEGIN_MESSAGE_MAP(GalleryFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_ENDSESSION, &GalleryFrame::OnEndSession)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_GETMINMAXINFO()
    ON_WM_NCHITTEST()
    ON_MESSAGE(WM_EXITMENULOOP, &GalleryFrame::OnExitMenuLoop)
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_MOUSEWHEEL()
    ON_COMMAND_RANGE(ID_MODE_FIRST, ID_MODE_LAST, &GalleryFrame::OnModeCommand)
    ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &GalleryFrame::OnPageCommand)
    ON_COMMAND(ID_WINDOW_MINIMIZE, &GalleryFrame::OnMinimize)
    ON_COMMAND(ID_WINDOW_CLOSE, &GalleryFrame::OnClose)
    ON_LBN_SELCHANGE(IDC_PAGE_LIST, &GalleryFrame::OnPageSelected)
END_MESSAGE_MAP()

GalleryFrame::GalleryFrame(GalleryHost& host)
    : m_host(host)
    , m_pages(Pages().size())
    , m_lastTold("nothing yet")
{}

BOOL GalleryFrame::Open(size_t page)
{
    CString title;
    m_host.GetProductName(title);
    if (!Create(AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), title,
                WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, InitialPlace()))
    {
        return FALSE;
    }
    LoadAccelTable(MAKEINTRESOURCE(IDR_GALLERY));
    // Kept until the process ends, as the window is.
    SendMessage(WM_SETICON, ICON_SMALL, LPARAM(MakeAppIcon(::GetSystemMetrics(SM_CXSMICON))));
    SendMessage(WM_SETICON, ICON_BIG, LPARAM(MakeAppIcon(::GetSystemMetrics(SM_CXICON))));
    return ShowPage(page);
}

int GalleryFrame::OnCreate(LPCREATESTRUCT cs)
{
    if (CFrameWnd::OnCreate(cs) == -1 || !m_windowSwitches.Create(*this, IDC_WINDOW_SWITCHES) ||
        !m_switches.Create(*this, IDC_MODE_SWITCHES) || !m_list.Create(*this, IDC_PAGE_LIST) ||
        !m_down.Create(*this, IDC_PAGE_DOWN,
                       [this](int y) { ScrollPage(CPoint(Page().Origin().x, y)); }) ||
        !m_across.Create(*this, IDC_PAGE_ACROSS,
                         [this](int x) { ScrollPage(CPoint(x, Page().Origin().y)); }))
    {
        return -1;
    }
    m_host.SetWindow(this);
    return 0;
}

void GalleryFrame::OnDestroy()
{
    m_host.SetWindow(nullptr);
    GiveColorsBack();
    CFrameWnd::OnDestroy();
}

LRESULT GalleryFrame::OnEndSession(WPARAM ending, LPARAM)
{
    // The program may be ended right after this message, without its windows being destroyed.
    if (ending)
    {
        GiveColorsBack();
    }
    return 0;
}

// Pages and modes -------------------------------------------------------------------------------

bool GalleryFrame::ShowPage(size_t index)
{
    const auto before = m_shown;
    if (m_pages[index] == nullptr)
    {
        auto page = Pages()[index].make(m_host, *this);
        if (!page->Open(*this, IDC_PAGE + UINT(index)))
        {
            m_list.Show(int(m_shown));
            return false;
        }
        m_pages[index] = std::move(page);
    }
    m_shown = index;
    RecalcLayout();
    m_pages[index]->ShowWindow(SW_SHOW);
    if (before != index && m_pages[before] != nullptr)
    {
        ParentWasTold("nothing yet");
        if (::IsChild(*m_pages[before], ::GetFocus()))
        {
            m_list.SetFocus(); // the keys go on from where the page stands in the list
        }
        m_pages[before]->ShowWindow(SW_HIDE);
    }
    return true;
}

void GalleryFrame::SwitchMode(APPMODE mode)
{
    const APPMODE before = COnBoardUIGeneral::GetAppMode();
    if (mode == before)
    {
        return;
    }
    if (IsIconic())
    {
        ShowWindow(SW_RESTORE); // an icon's place is none to come back to
    }
    for (const auto& each : m_pages)
    {
        if (each != nullptr)
        {
            each->KeepState();
        }
    }
    OpenDialog::KeepStateAll();
    // The library scales the controls first, and the page places them then: nobody is to see that.
    m_switching = true;
    CWnd* const page = m_pages[m_shown].get();
    const bool held = page != nullptr && (page->GetStyle() & WS_VISIBLE) != 0;
    if (held)
    {
        page->SetRedraw(FALSE);
    }
    SetOnBoardAppMode(mode);
    OnBoardSetSysColors(mode);
    m_list.FollowMode(mode, before);
    TakePlace(mode, before);
    RecalcLayout();
    for (const auto& each : m_pages)
    {
        if (each != nullptr)
        {
            each->FollowMode();
        }
    }
    if (held)
    {
        page->SetRedraw(TRUE);
    }
    m_switching = false;
    OpenDialog::FollowModeAll();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

CRect GalleryFrame::InitialPlace() const
{
    const Measures m = CurrentMeasures();
    const CSize page = GalleryPage::SizeInMode();
    CRect rect(0, 0, 2 * m.margin + m.list + m.gap + page.cx,
               3 * m.margin + m.switches + page.cy + m.line);
    if (OwnFrame())
    {
        rect.InflateRect(Border, Border + m.caption / 2);
    }
    else
    {
        ::AdjustWindowRectEx(&rect, WS_OVERLAPPEDWINDOW, FALSE, 0);
    }
    const CRect work = MonitorOf(m_hWnd).rcWork;
    if (rect.Height() > work.Height())
    {
        rect.right += PageBar::Thickness(); // or the bar would have the page want one across too
    }
    const CSize size(std::min(rect.Width(), work.Width()), std::min(rect.Height(), work.Height()));
    return CRect(work.CenterPoint() - CSize(size.cx / 2, size.cy / 2), size);
}

void GalleryFrame::TakePlace(APPMODE newMode, APPMODE oldMode)
{
    if (!CoversScreen(oldMode))
    {
        WINDOWPLACEMENT place = {};
        place.length = sizeof(place);
        ::GetWindowPlacement(m_hWnd, &place);
        m_places[oldMode != STD] = place;
    }
    if (CoversScreen(newMode))
    {
        ModifyStyle(WS_OVERLAPPEDWINDOW | WS_MAXIMIZE, 0);
        const CRect screen = MonitorOf(m_hWnd).rcMonitor;
        SetWindowPos(nullptr, screen.left, screen.top, screen.Width(), screen.Height(),
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        return;
    }
    ModifyStyle(WS_OVERLAPPEDWINDOW | WS_MAXIMIZE,
                newMode == STD ? WS_OVERLAPPEDWINDOW : WS_SYSMENU | WS_MINIMIZEBOX);
    const auto& place = m_places[newMode != STD];
    const CRect initial = InitialPlace();
    SetWindowPos(nullptr, initial.left, initial.top, initial.Width(), initial.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    if (place)
    {
        const HWND active = ::GetActiveWindow(); // a dialog of ours, perhaps
        ::SetWindowPlacement(m_hWnd, &*place);
        ::SetActiveWindow(active);
    }
}

// Layout and painting ---------------------------------------------------------------------------

GalleryFrame::Layout GalleryFrame::CurrentLayout() const
{
    const Measures m = CurrentMeasures();
    CRect area;
    GetClientRect(&area);
    Layout layout;
    if (OwnFrame())
    {
        area.DeflateRect(Border, Border);
        layout.caption = CRect(area.left, area.top, area.right, area.top + m.caption);
        layout.window = layout.caption;
        layout.window.DeflateRect(CaptionInset, CaptionInset);
        layout.window.left = layout.window.right - m.window;
        area.top = layout.caption.bottom;
    }
    layout.line = CRect(area.left, area.bottom - m.line, area.right, area.bottom);
    area.bottom = layout.line.top;
    area.DeflateRect(m.margin, m.margin);
    layout.switches = CRect(area.left, area.top, area.right, area.top + m.switches);
    area.top = layout.switches.bottom + m.margin;
    layout.list = CRect(area.left, area.top, area.left + m.list, area.bottom);
    layout.page = CRect(layout.list.right + m.gap, area.top, area.right, area.bottom);
    const CSize needed = GalleryPage::SizeInMode();
    const int bar = PageBar::Thickness();
    const bool across = needed.cx > layout.page.Width() ||
                        (needed.cy > layout.page.Height() && needed.cx > layout.page.Width() - bar);
    const bool down = needed.cy > layout.page.Height() - (across ? bar : 0);
    if (down)
    {
        layout.page.right -= bar;
    }
    if (across)
    {
        layout.page.bottom -= bar;
        layout.across =
            CRect(CPoint(layout.page.left, layout.page.bottom), CSize(layout.page.Width(), bar));
    }
    if (down)
    {
        layout.down =
            CRect(CPoint(layout.page.right, layout.page.top), CSize(bar, layout.page.Height()));
    }
    return layout;
}

void GalleryFrame::RecalcLayout(BOOL)
{
    if (m_list.GetSafeHwnd() == nullptr)
    {
        return;
    }
    const Layout layout = CurrentLayout();
    {
        WindowMoves moves;
        moves.Add(m_windowSwitches, layout.window);
        moves.Add(m_switches, layout.switches);
        moves.Add(m_list, layout.list);
        moves.Add(m_down, layout.down);
        moves.Add(m_across, layout.across);
        if (m_pages[m_shown] != nullptr)
        {
            moves.Add(*m_pages[m_shown], layout.page);
        }
    }
    m_list.Show(int(m_shown)); // its height has changed, or that of its rows
    m_windowSwitches.ShowWindow(OwnFrame() ? SW_SHOWNA : SW_HIDE);
    m_down.ShowWindow(layout.down.IsRectEmpty() ? SW_HIDE : SW_SHOWNA);
    m_across.ShowWindow(layout.across.IsRectEmpty() ? SW_HIDE : SW_SHOWNA);
    if (m_pages[m_shown] != nullptr)
    {
        ScrollPage(Page().Origin());
    }
    Invalidate(FALSE);
}

void GalleryFrame::ScrollPage(CPoint origin)
{
    Page().ScrollTo(origin);
    CRect page;
    Page().GetClientRect(&page);
    const CSize content = Page().ContentSize();
    m_down.Follow(content.cy, page.Height(), Page().Origin().y);
    m_across.Follow(content.cx, page.Width(), Page().Origin().x);
}

void GalleryFrame::OnPaint()
{
    if (m_switching)
    {
        ValidateRect(nullptr); // all of it is painted at the end
        return;
    }
    BufferedPaint paint(*this);
    CDC& dc = paint.Context();
    const Layout layout = CurrentLayout();
    if (OwnFrame())
    {
        DrawFrame(dc, layout.caption);
    }
    CRect line = layout.line;
    if (look::Dark())
    {
        dc.FillSolidRect(line.left, line.top, line.Width(), 3, look::DarkOutline);
        line.top += 3;
    }
    else
    {
        dc.DrawEdge(&line, EDGE_ETCHED, BF_TOP | BF_ADJUST);
    }
    line.DeflateRect(CurrentMeasures().margin, 0);

    const InUse font(dc, look::LabelFont());
    dc.DrawText("The page was told: " + m_lastTold, &line,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void GalleryFrame::DrawFrame(CDC& dc, const CRect& caption) const
{
    CRect edge;
    GetClientRect(&edge);
    for (int line = 0; line < Border; ++line)
    {
        dc.Draw3dRect(&edge, look::DarkOutline, look::DarkOutline);
        edge.DeflateRect(1, 1);
    }
    dc.FillSolidRect(&caption, look::DarkPressed);
    CRect text = caption;
    text.DeflateRect(CurrentMeasures().margin, 0);
    text.right -= CurrentMeasures().window;
    CString title;
    GetWindowText(title);
    const InUse font(dc, look::BoldFont());
    dc.DrawText(title, &text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

HBRUSH GalleryFrame::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    return look::Dark() ? look::GroundBrush() : CFrameWnd::OnCtlColor(dc, control, kind);
}

void GalleryFrame::OnGetMinMaxInfo(MINMAXINFO* info)
{
    const CRect least = InitialPlace();
    info->ptMinTrackSize = {least.Width(), least.Height()};
}

LRESULT GalleryFrame::OnNcHitTest(CPoint point)
{
    if (!OwnFrame())
    {
        return Default();
    }
    static constexpr LRESULT Edges[3][3] = {{HTTOPLEFT, HTTOP, HTTOPRIGHT},
                                            {HTLEFT, HTCLIENT, HTRIGHT},
                                            {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
    CRect area;
    GetClientRect(&area);
    ScreenToClient(&point);
    const auto along = [grip = CurrentMeasures().margin](LONG place, LONG end) {
        return place < grip ? 0 : place >= end - grip ? 2 : 1;
    };
    const LRESULT edge = Edges[along(point.y, area.bottom)][along(point.x, area.right)];
    return edge == HTCLIENT && CurrentLayout().caption.PtInRect(point) ? HTCAPTION : edge;
}

// The platform paints the icon of its caption when a system menu opens and ends, on whatever is
// there.
LRESULT GalleryFrame::OnExitMenuLoop(WPARAM, LPARAM)
{
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    return 0;
}

void GalleryFrame::ParentWasTold(const CString& what)
{
    m_lastTold = what;
    const CRect line = CurrentLayout().line;
    InvalidateRect(&line, FALSE);
}

// Input -----------------------------------------------------------------------------------------

BOOL GalleryFrame::PreTranslateMessage(MSG* message)
{
    if (CFrameWnd::PreTranslateMessage(message))
    {
        return TRUE;
    }
    if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST ||
        !::IsChild(m_hWnd, message->hwnd))
    {
        return FALSE;
    }
    // Tab goes through the whole frame; every other key is the page's while the focus is there.
    const bool tab = message->message == WM_KEYDOWN && message->wParam == VK_TAB;
    const HWND frame = m_hWnd;
    GalleryPage* const page = m_pages[m_shown].get();
    const BOOL done = !tab && page != nullptr && ::IsChild(*page, message->hwnd)
                          ? page->TranslateInput(message)
                          : IsDialogMessage(message);
    // A key may have closed the window or chosen another page.
    if (done && FromHandlePermanent(frame) == this && m_pages[m_shown] != nullptr)
    {
        Page().Reveal(::GetFocus());
        ScrollPage(Page().Origin());
    }
    return done;
}

// A dialog takes every key for itself, and a frame that a modal one has disabled gets no commands
// by its accelerators.
bool GalleryFrame::SwitchByKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN || ::GetAncestor(message.hwnd, GA_ROOT) == m_hWnd)
    {
        return false;
    }
    const auto held = [](int key) { return ::GetKeyState(key) < 0; };
    const BYTE wanted = BYTE(FVIRTKEY | (held(VK_SHIFT) ? FSHIFT : 0) |
                             (held(VK_CONTROL) ? FCONTROL : 0) | (held(VK_MENU) ? FALT : 0));
    ACCEL keys[2 * (ID_MODE_LAST - ID_MODE_FIRST + 1)] = {};
    ::CopyAcceleratorTable(m_hAccelTable, keys, int(std::size(keys)));
    for (const ACCEL& key : keys)
    {
        if (key.key == message.wParam && (key.fVirt & ~FNOINVERT) == wanted)
        {
            OnModeCommand(key.cmd);
            return true;
        }
    }
    return false;
}

void GalleryFrame::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    if (state == WA_INACTIVE && ::IsChild(m_hWnd, ::GetFocus()))
    {
        m_focusBefore = ::GetFocus();
    }
    CFrameWnd::OnActivate(state, other, minimized);
}

void GalleryFrame::OnSetFocus(CWnd*)
{
    ::SetFocus(::IsChild(m_hWnd, m_focusBefore) ? m_focusBefore : m_list.GetSafeHwnd());
}

void GalleryFrame::OnModeCommand(UINT id)
{
    const auto mode = APPMODE(id - ID_MODE_FIRST);
    SwitchMode(mode);
    m_host.KeepMode(mode);
}

void GalleryFrame::OnPageCommand(UINT id)
{
    const size_t page = id - ID_PAGE_FIRST;
    if (page < m_pages.size())
    {
        ShowPage(page);
    }
}

void GalleryFrame::OnMinimize()
{
    SendMessage(WM_SYSCOMMAND, SC_MINIMIZE);
}

// What no control of the page takes.
BOOL GalleryFrame::OnMouseWheel(UINT, short delta, CPoint)
{
    constexpr int notch = 80; // pixels at 96 dots per inch
    ScrollPage(Page().Origin() - CSize(0, ::MulDiv(delta, look::Scaled(notch), WHEEL_DELTA)));
    return TRUE;
}

void GalleryFrame::OnPageSelected()
{
    const int index = m_list.GetCurSel();
    if (index != LB_ERR)
    {
        ShowPage(size_t(index));
    }
}
