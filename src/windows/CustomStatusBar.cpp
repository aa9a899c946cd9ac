#include "CustomStatusBar.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "paint/BufferedPaint.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CCustomStatusBar, CStatusBarCtrl)

BEGIN_MESSAGE_MAP(CCustomStatusBar, CStatusBarCtrl)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CCustomStatusBar::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGED()
    ON_MESSAGE(WM_SETFONT, &CCustomStatusBar::OnSetFont)
    ON_MESSAGE(WM_SETTEXT, &CCustomStatusBar::OnSetPaneText)
    ON_MESSAGE(SB_SETTEXTA, &CCustomStatusBar::OnSetPaneText)
    ON_MESSAGE(SB_SETTEXTW, &CCustomStatusBar::OnSetPaneText)
    ON_MESSAGE(SB_GETRECT, &CCustomStatusBar::OnGetPaneRect)
END_MESSAGE_MAP()

CFont CCustomStatusBar::m_OBFont;

namespace {

constexpr int TextMargin = 6; // from either edge of a pane

// A tab in front centres a pane's text, two put it to the right.
int LeadingTabs(const CString& text)
{
    int tabs = 0;
    while (tabs < 2 && tabs < text.GetLength() && text[tabs] == '\t')
    {
        ++tabs;
    }
    return tabs;
}

} // namespace

CCustomStatusBar::CCustomStatusBar()
{
    EnableActiveAccessibility();
}

CCustomStatusBar::~CCustomStatusBar() = default;

CFont& CCustomStatusBar::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LargeOnBoardFont);
}

// Following the display mode --------------------------------------------------------------------

// One object may serve several windows, one after the other.
void CCustomStatusBar::PreSubclassWindow()
{
    // One that was let go on-board is still laid out so; which font its host had given it, nobody
    // knows any more.
    const WindowAlive alive(*this);
    const auto font = reinterpret_cast<HGDIOBJ>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0));
    if (!alive)
    {
        return;
    }
    m_onBoard = font == GetOnBoardFont().GetSafeHandle();
    m_standardFont = nullptr;
    CStatusBarCtrl::PreSubclassWindow();
    ShowTakenOver(*this);
}

// Gives the bar the font of the mode's kind, and with it the height, when it still has the other
// one. Returns whether the mode is on-board: the first question of every handler.
bool CCustomStatusBar::FollowMode()
{
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    if (onBoard == m_onBoard || GetSafeHwnd() == nullptr)
    {
        return onBoard;
    }
    const WindowAlive alive(*this);
    m_onBoard = onBoard;
    if (onBoard)
    {
        const LRESULT standard = SendMessage(WM_GETFONT);
        if (!alive)
        {
            return onBoard;
        }
        m_standardFont = reinterpret_cast<HFONT>(standard);
    }
    DefWindowProc(WM_SETFONT,
                  onBoard ? WPARAM(GetOnBoardFont().GetSafeHandle()) : WPARAM(m_standardFont), 0);
    if (alive)
    {
        // The platform's bar takes its height and place when it is told of a size.
        DefWindowProc(WM_SIZE, SIZE_RESTORED, 0);
    }
    if (alive)
    {
        Invalidate();
    }
    return COnBoardUIGeneral::InOnBoardMode();
}

int CCustomStatusBar::OnCreate(LPCREATESTRUCT cs)
{
    const WindowAlive alive(*this);
    const int result = CStatusBarCtrl::OnCreate(cs);
    if (result != -1 && alive)
    {
        FollowMode();
    }
    return result;
}

void CCustomStatusBar::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CStatusBarCtrl::OnSize(type, width, height);
    if (alive && FollowMode() && alive)
    {
        TellPlatformOfPanes();
        if (alive)
        {
            Invalidate(FALSE); // the last pane ends elsewhere, and its text may stand there
        }
    }
}

// Where its owner places the bar, the platform works its panes out when it paints, which it does
// not on-board: it looks for what is clicked, and for the pane of a tip, where they were.
void CCustomStatusBar::TellPlatformOfPanes()
{
    if ((GetStyle() & CCS_NORESIZE) == 0)
    {
        return;
    }
    const int count = int(DefWindowProc(SB_GETPARTS, 0, 0));
    std::vector<int> edges(size_t(std::max(0, count)), 0);
    const auto room = reinterpret_cast<LPARAM>(edges.data());
    if (count <= 0 || DefWindowProc(SB_GETPARTS, WPARAM(count), room) != count)
    {
        return;
    }
    for (int turn = 0; turn < 2; ++turn) // not every platform minds edges that it has already
    {
        edges.front() ^= 1;
        DefWindowProc(SB_SETPARTS, WPARAM(count), room);
    }
}

// A font that comes while the bar has the on-board one is kept for the standard mode.
LRESULT CCustomStatusBar::OnSetFont(WPARAM font, LPARAM)
{
    if (!m_onBoard)
    {
        return Default();
    }
    m_standardFont = reinterpret_cast<HFONT>(font);
    return 0;
}

// A mode-aware parent places its children when the mode changes.
void CCustomStatusBar::OnWindowPosChanged(WINDOWPOS* position)
{
    const WindowAlive alive(*this);
    CStatusBarCtrl::OnWindowPosChanged(position);
    if (alive)
    {
        FollowMode();
    }
}

// Painting --------------------------------------------------------------------------------------

BOOL CCustomStatusBar::OnEraseBkgnd(CDC* dc)
{
    return COnBoardUIGeneral::InOnBoardMode() ? TRUE : CStatusBarCtrl::OnEraseBkgnd(dc);
}

void CCustomStatusBar::OnPaint()
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return;
    }
    if (onBoard)
    {
        PaintBuffered(*this, [this](CDC& dc) { DrawOB(dc); });
    }
    else
    {
        Default();
    }
}

// Where the panes are, or the one text of the simple form. The platform works it out when it
// paints, which it does not on-board, and when it is told of a size, unless the bar's owner places
// it.
std::vector<CRect> CCustomStatusBar::PanePlaces() const
{
    const WindowAlive alive(*this); // it may end in each question
    CRect area;
    GetClientRect(&area);
    int borders[3] = {}; // at the sides, above, between panes
    GetBorders(borders);
    area.top += borders[1];
    if (alive && IsSimple())
    {
        return {area};
    }
    const int count = alive ? std::max(0, GetParts(0, nullptr)) : 0;
    std::vector<int> edges(size_t(count), 0);
    if (alive && count > 0)
    {
        GetParts(count, edges.data());
    }
    std::vector<CRect> places;
    CRect place(area.left, area.top, area.left, area.bottom);
    for (const int edge : edges)
    {
        place.right = edge == -1 ? area.right : edge;
        places.push_back(place);
        place.left = place.right + borders[2];
    }
    return places;
}

LRESULT CCustomStatusBar::OnSetPaneText(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive && m_onBoard && (GetStyle() & CCS_NORESIZE) != 0)
    {
        Invalidate(FALSE); // the platform has done so where it believes the pane to be
    }
    return result;
}

LRESULT CCustomStatusBar::OnGetPaneRect(WPARAM pane, LPARAM place)
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        return Default();
    }
    const WindowAlive alive(*this); // it may end in each question
    std::vector<CRect> places = PanePlaces();
    if (alive && !places.empty() && IsSimple() && alive)
    {
        places.resize(size_t(std::max(0, GetParts(0, nullptr))), places.front());
    }
    if (pane >= places.size() || place == 0)
    {
        return FALSE;
    }
    *reinterpret_cast<RECT*>(place) = places[pane];
    return TRUE;
}

void CCustomStatusBar::DrawOB(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, palette::Panel);
    dc.FillSolidRect(client.left, client.top, client.Width(), 1, palette::Outline);
    const Selected font(dc, GetOnBoardFont());
    const TextColor color(dc, palette::PanelText);
    const BackgroundMode mode(dc, TRANSPARENT);
    const WindowAlive alive(*this); // it may end in its own questions
    const std::vector<CRect> places = PanePlaces();
    for (size_t pane = 0; pane < places.size() && alive; ++pane)
    {
        // In the simple form its text is that of the first.
        DrawPane(dc, int(pane), places[pane]);
        if (alive && pane + 1 < places.size())
        {
            dc.FillSolidRect(places[pane].right, client.top, 1, client.Height(), palette::Outline);
        }
    }
}

void CCustomStatusBar::DrawPane(CDC& dc, int pane, const CRect& place)
{
    const WindowAlive alive(*this);
    int type = 0;
    GetTextLength(pane, &type);
    if (!alive)
    {
        return;
    }
    if ((type & SBT_OWNERDRAW) != 0)
    {
        DRAWITEMSTRUCT item = {};
        item.CtlID = UINT(GetDlgCtrlID());
        item.itemID = UINT(pane);
        item.hwndItem = m_hWnd;
        item.hDC = dc;
        item.rcItem = place;
        item.itemData = ULONG_PTR(SendMessage(SB_GETTEXT, WPARAM(pane)));
        if (!alive)
        {
            return;
        }
        // What the owner selects and clips is not meant for the next pane. It may end the bar.
        const SavedState saved(dc);
        ::SendMessage(::GetParent(m_hWnd), WM_DRAWITEM, item.CtlID,
                      reinterpret_cast<LPARAM>(&item));
        return;
    }
    const CString text = GetText(pane);
    const int tabs = LeadingTabs(text);
    constexpr UINT alignments[] = {DT_LEFT, DT_CENTER, DT_RIGHT};
    CRect area(place);
    area.DeflateRect(TextMargin, 0);
    dc.DrawText(text.Mid(tabs), &area,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | alignments[tabs]);
}

// Assistive programs ----------------------------------------------------------------------------

CString CCustomStatusBar::PaneText(int pane) const
{
    const WindowAlive alive(*this);
    int type = 0;
    GetTextLength(pane, &type);
    if (!alive || (type & SBT_OWNERDRAW) != 0)
    {
        return "";
    }
    const CString text = GetText(pane);
    return text.Mid(LeadingTabs(text));
}

HRESULT CCustomStatusBar::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CStatusBarCtrl>(*this, child, role, ROLE_SYSTEM_STATUSBAR);
}

HRESULT CCustomStatusBar::get_accValue(VARIANT child, BSTR* value)
{
    if (!access::IsSelf(child))
    {
        return CStatusBarCtrl::get_accValue(child, value);
    }
    const WindowAlive alive(*this); // it may end in each question
    const bool simple = IsSimple();
    const int count = !alive ? 0 : simple ? 1 : GetParts(0, nullptr);
    CString texts;
    for (int pane = 0; pane < count && alive; ++pane)
    {
        const CString text = PaneText(pane);
        texts += texts.IsEmpty() || text.IsEmpty() ? text : "; " + text;
    }
    return access::Give(*value, texts);
}

HRESULT CCustomStatusBar::get_accState(VARIANT child, VARIANT* state)
{
    return access::ReadOnly(CStatusBarCtrl::get_accState(child, state), *state);
}
