// The edit: fonts, frame, painting, and following the display mode.

#include "CustomEdit.h"

#include "OnBoardUIGeneral.h"
#include "edits/EditBars.h"
#include "edits/EditBorder.h"
#include "modes/PressAndHold.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/GdiGuards.h"
#include "paint/Rings.h"
#include "paint/SharedObjects.h"
#include "scroll/NcBands.h"

IMPLEMENT_DYNAMIC(CCustomEdit, CEdit)

BEGIN_MESSAGE_MAP(CCustomEdit, CEdit)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_NCHITTEST()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomEdit::OnQueryGestures)
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_MESSAGE(WM_NCMOUSELEAVE, &CCustomEdit::OnNCMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CONTEXTMENU()
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_TIMER()
    ON_MESSAGE(WM_SETFONT, &CCustomEdit::OnSetFont)
    ON_MESSAGE(WM_SETTEXT, &CCustomEdit::OnSetText)
    ON_WM_STYLECHANGED()
    ON_CONTROL_REFLECT_EX(EN_UPDATE, &CCustomEdit::OnENUpdate)
    ON_CONTROL_REFLECT_EX(EN_VSCROLL, &CCustomEdit::OnENVScroll)
END_MESSAGE_MAP()

namespace {

// The platform's message that shows or hides a scroll bar. Edits that do not know it ignore it.
constexpr UINT ShowBarMessage = WM_USER + 96;

} // namespace

UINT CCustomEdit::m_timerid = 103;
UINT CCustomEdit::m_timerperiod = 102;
IEFB* CCustomEdit::m_efb = nullptr;
CPen CCustomEdit::m_OutlinePen;
CFont CCustomEdit::m_OBFont;
CFont CCustomEdit::m_StdFont;

CCustomEdit::CCustomEdit()
    : m_edgeHeight(::GetSystemMetrics(SM_CYEDGE))
    , m_edgeWidth(::GetSystemMetrics(SM_CXEDGE))
    , m_bar(SB_VERT)
    , m_bars(std::make_unique<Bars>(*this))
{
    EnableActiveAccessibility();
    MakeControlPen(m_OutlinePen, palette::Outline);
    GetOnBoardFont();
    GetStdFont();
    m_bars->HideBars();
}

CCustomEdit::~CCustomEdit() = default;

CFont& CCustomEdit::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LargeOnBoardFont);
}

CFont& CCustomEdit::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}

// Following the display mode --------------------------------------------------------------------

void CCustomEdit::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    m_bars->BeginAfresh();
    m_bars->ForgetUnbroken();
    m_initialised = m_firstUpdateDone = false;
    m_updating = false;
    m_barShown = m_wantsBar = false;
    const WindowAlive alive(*this);
    Init();
    if (alive)
    {
        ShowTakenOver(*this);
    }
}

void CCustomEdit::Init()
{
    if (!m_initialised)
    {
        m_initialised = true;
        m_wantsBar = (GetStyle() & WS_VSCROLL) != 0;
        // Text and bar of an edit that begins in the standard mode agree without our doing.
        m_firstUpdateDone = !COnBoardUIGeneral::InOnBoardMode();
    }
    // While the window is still being made, or its messages are not ours yet, there is no text to
    // lay out: the first message after that comes here again.
    if (!COnBoardUIGeneral::InOnBoardMode() || !IsReady())
    {
        return;
    }
    const WindowAlive alive(*this);
    m_bars->TakePlatformBars();
    if (!alive)
    {
        return;
    }
    m_barShown = m_wantsBar;
    m_bar.ShowScrollBar(m_barShown);
    if (!m_bars->IsUnbroken()) // else that comes with the lines
    {
        scroll::RecalculateFrame(*this);
    }
    if (alive)
    {
        PlaceBar();
        SendMessage(ShowBarMessage, TRUE);
    }
    if (alive)
    {
        SendMessage(ShowBarMessage, FALSE);
    }
    if (alive)
    {
        UpdateScrollPosFromText();
    }
}

int CCustomEdit::OnCreate(LPCREATESTRUCT)
{
    const WindowAlive alive(*this);
    m_bars->SetPlatformStyles(m_wantsBar ? WS_VSCROLL : 0);
    const int result = m_bars->Create();
    if (alive && !COnBoardUIGeneral::InOnBoardMode())
    {
        m_bars->SetPlatformStyles(0); // the edit has them, and the host may take them away
    }
    if (alive && result != -1)
    {
        FollowMode();
    }
    return result;
}

bool CCustomEdit::FollowMode()
{
    return m_bars->Follow();
}

void CCustomEdit::EnterOnBoard()
{
    const WindowAlive alive(*this);
    m_bar.SetArea(CRect(0, 0, 0, 0)); // its parts are sized by the mode
    Init();
    if (alive)
    {
        FollowText();
    }
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
    }
}

void CCustomEdit::LeaveOnBoard()
{
    m_bars->End();
    m_barShown = false;
    m_bars->HideBars();
    const WindowAlive alive(*this);
    m_bars->GivePlatformBars();
    if (alive)
    {
        m_bars->SetPlatformStyles(0);
    }
    if (alive && !m_bars->IsUnbroken())
    {
        m_bars->RelayoutFrame();
    }
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
    }
}

void CCustomEdit::OnDestroy()
{
    m_bars->Destroy();
}

// Frame -----------------------------------------------------------------------------------------

void CCustomEdit::RemoveVScrollBar()
{
    const WindowAlive alive(*this);
    scroll::StripScrollStyles(*this, WS_VSCROLL);
    if (alive)
    {
        ShowBar(false);
    }
}

void CCustomEdit::IncludeVScrollBar()
{
    const WindowAlive alive(*this);
    if (m_wantsBar && !COnBoardUIGeneral::InOnBoardMode())
    {
        scroll::RestoreScrollStyles(*this, WS_VSCROLL);
    }
    if (alive)
    {
        ShowBar(m_wantsBar);
    }
}

void CCustomEdit::ShowBar(bool shown)
{
    m_barShown = shown;
    m_bar.ShowScrollBar(shown);
    const WindowAlive alive(*this);
    scroll::RecalculateFrame(*this);
    if (alive && m_bars->IsLaidOut())
    {
        PlaceBar();
    }
}

// Against the inner side of the border; beside the client area of an edit with a thinner one.
void CCustomEdit::PlaceBar()
{
    const CRect area = scroll::BandArea(SB_VERT, scroll::ClientRectInWindow(*this));
    // Setting it puts the thumb back onto its step, so not in the middle of a drag.
    if (m_barShown && area != m_bar.GetArea())
    {
        m_bar.SetArea(area);
    }
}

void CCustomEdit::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    const WindowAlive alive(*this);
    const bool edged = (GetExStyle() & WS_EX_CLIENTEDGE) != 0;
    m_bars->NcCalcSize(calcValidRects, params,
                       edged ? CSize(metrics::Border - m_edgeWidth, metrics::Border - m_edgeHeight)
                             : CSize(0, 0));
    if (alive && calcValidRects && params != nullptr && m_bars->KeepsUnbroken())
    {
        constexpr LONG Unbroken = 0x7000; // pixels; a size has 16 bits
        params->rgrc[0].right = std::max(params->rgrc[0].right, params->rgrc[0].left + Unbroken);
    }
}

void CCustomEdit::OnWindowPosChanging(WINDOWPOS* position)
{
    m_bars->WindowPosChanging(position);
}

void CCustomEdit::OnStyleChanged(int which, LPSTYLESTRUCT styles)
{
    const WindowAlive alive(*this);
    CEdit::OnStyleChanged(which, styles);
    // The platform tells each write of a style, also of one that the edit has: a host that
    // refreshes its read-only state again and again keeps the text where the user has scrolled it.
    // And our own bars come and go without the text having changed.
    if (!alive || styles == nullptr || styles->styleOld == styles->styleNew ||
        scroll::WritesScrollStyles(*this) || m_bars->IsFollowing() || !FollowMode() || m_updating)
    {
        return;
    }
    Init();
    if (alive)
    {
        ToFirstLine();
    }
    if (alive)
    {
        FollowText();
    }
    if (alive)
    {
        Invalidate();
        scroll::RecalculateFrame(*this);
    }
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE); // the border tells the state
    }
}

void CCustomEdit::OnEnable(BOOL enable)
{
    const WindowAlive alive(*this);
    m_bars->Enable(enable != FALSE);
    if (alive && FollowMode())
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE); // the border tells it too
    }
}

void CCustomEdit::OnShowWindow(BOOL show, UINT)
{
    m_bars->Show(show != FALSE);
}

// Painting --------------------------------------------------------------------------------------

void CCustomEdit::OnNcPaint()
{
    m_bars->NcPaint(*GetCurrentMessage());
}

void CCustomEdit::DrawOBNC()
{
    const WindowAlive alive(*this);
    PlaceBar();
    UpdateScrollPosFromText();
    if (!alive || GetSafeHwnd() == nullptr)
    {
        return;
    }
    m_bars->InvalidateBars();
    if (!scroll::IsFrameSeen(*this))
    {
        return;
    }
    OwnContext dc(m_hWnd, OwnContext::Whole);
    if (!dc)
    {
        return;
    }
    const CRect client = scroll::ClientRectInWindow(*this);
    CRect frame = AreaOf(*this);
    if ((GetExStyle() & WS_EX_CLIENTEDGE) != 0)
    {
        const EditBorder border =
            EditBorderOf(IsWindowEnabled() != FALSE, (GetStyle() & ES_READONLY) != 0);
        frame = DrawRings(dc, frame, border.topLeft, border.bottomRight);
    }
    if (m_barShown && (GetStyle() & WS_HSCROLL) != 0)
    {
        // Where the platform's horizontal bar meets ours belongs to neither.
        dc.FillSolidRect(client.right, client.bottom, frame.right - client.right,
                         frame.bottom - client.bottom, palette::Panel);
    }
    DrawOBScrollBars(&dc);
    if (alive)
    {
        m_bars->InvalidateClient();
    }
}

void CCustomEdit::DrawOBScrollBars(CDC* dc)
{
    if (FollowMode() && dc != nullptr)
    {
        m_bars->DrawBar(*dc, SB_VERT);
    }
}

void CCustomEdit::DrawOBScrollBars()
{
    m_bars->DrawBar(SB_VERT);
}
