#include "CustomStatusBar.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"

IMPLEMENT_DYNAMIC(CCustomStatusBar, CStatusBarCtrl)

BEGIN_MESSAGE_MAP(CCustomStatusBar, CStatusBarCtrl)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGED()
    ON_MESSAGE(WM_SETFONT, &CCustomStatusBar::OnSetFont)
END_MESSAGE_MAP()

CFont CCustomStatusBar::m_OBFont;

namespace {

constexpr int TextMargin = 6;   // from either edge of a pane
constexpr int SimplePane = 255; // stands for the whole bar's text in its simple form

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
    m_onBoard = false;
    m_standardFont = nullptr;
    CStatusBarCtrl::PreSubclassWindow();
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
        m_standardFont = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
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
    if (alive)
    {
        FollowMode();
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
    if (!FollowMode())
    {
        if (alive)
        {
            Default();
        }
        return;
    }
    if (!alive)
    {
        return;
    }
    CPaintDC dc(this);
    if (!alive)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    BackBuffer buffer(dc, client);
    DrawOB(buffer);
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
    const bool simple = IsSimple();
    if (simple && alive)
    {
        DrawPane(dc, SimplePane, client);
    }
    const int count = simple || !alive ? 0 : GetParts(0, nullptr);
    for (int pane = 0; pane < count && alive; ++pane)
    {
        CRect place;
        GetRect(pane, &place);
        if (alive)
        {
            DrawPane(dc, pane, place);
        }
        if (alive && pane + 1 < count)
        {
            dc.FillSolidRect(place.right, client.top, 1, client.Height(), palette::Outline);
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
    int type = 0;
    GetTextLength(pane, &type);
    if ((type & SBT_OWNERDRAW) != 0)
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
    if (IsSimple())
    {
        return access::Give(*value, PaneText(SimplePane));
    }
    CString texts;
    const int count = GetParts(0, nullptr);
    for (int pane = 0; pane < count; ++pane)
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
