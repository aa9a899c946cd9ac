#include "framework/StatusBar.h"

#include "Reflection.h"
#include "StillThere.h"
#include "TypedWindows.h"
#include "framework/Frame.h"
#include "framework/StatusBarCtrl.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

CString CStatusBarCtrl::GetText(int pane, int* type) const
{
    const HWND window = m_hWnd; // is asked, and may end
    CString text;
    LPTSTR buffer = text.GetBufferSetLength(GetTextLength(pane, type));
    buffer[0] = '\0';
    ::SendMessage(window, SB_GETTEXT, WPARAM(pane), LPARAM(buffer));
    text.ReleaseBuffer();
    return text;
}

int CStatusBarCtrl::GetTextLength(int pane, int* type) const
{
    const LRESULT answer = SendMessage(SB_GETTEXTLENGTH, WPARAM(pane));
    if (type != nullptr)
    {
        *type = HIWORD(answer);
    }
    return LOWORD(answer);
}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? framework::DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
END_MESSAGE_MAP()

BOOL CStatusBar::CreateEx(CWnd* parent, DWORD controlStyle, DWORD style, UINT id)
{
    return CreateBar(STATUSCLASSNAME, parent, controlStyle, style, id);
}

BOOL CStatusBar::SetIndicators(const UINT* ids, int count)
{
    if (count <= 0)
    {
        return FALSE;
    }
    std::vector<Pane> panes(static_cast<size_t>(count));
    CClientDC dc(this);
    CFont* const before = GetFont() == nullptr ? nullptr : dc.SelectObject(GetFont());
    BOOL complete = TRUE;
    for (int index = 0; index < count && ids != nullptr; ++index)
    {
        Pane& pane = panes[size_t(index)];
        pane.id = ids[index];
        if (pane.id != ID_SEPARATOR)
        {
            complete = pane.text.LoadString(pane.id) && complete;
            pane.width = dc.GetTextExtent(pane.text).cx;
        }
    }
    if (before != nullptr)
    {
        dc.SelectObject(before);
    }
    panes.front().style = SBPS_STRETCH | SBPS_NOBORDERS;
    panes.front().width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
    m_panes = std::move(panes);
    PlacePanes();
    for (int index = 0; index < count; ++index)
    {
        ShowText(index);
    }
    return complete;
}

// A pane that is not there is an empty one.
const CStatusBar::Pane& CStatusBar::At(int index) const
{
    static const Pane none{};
    return HasPane(index) ? m_panes[size_t(index)] : none;
}

int CStatusBar::CommandToIndex(UINT id) const
{
    for (int index = 0; index < GetCount(); ++index)
    {
        if (At(index).id == id)
        {
            return index;
        }
    }
    return -1;
}

void CStatusBar::GetPaneInfo(int index, UINT& id, UINT& style, int& width) const
{
    id = At(index).id;
    style = At(index).style;
    width = At(index).width;
}

void CStatusBar::SetPaneInfo(int index, UINT id, UINT style, int width)
{
    if (!HasPane(index))
    {
        return;
    }
    Pane& pane = m_panes[size_t(index)];
    pane.id = id;
    pane.style = style;
    pane.width = width;
    PlacePanes();
    ShowText(index);
}

void CStatusBar::SetPaneStyle(int index, UINT style)
{
    if (At(index).style != style)
    {
        SetPaneInfo(index, At(index).id, style, At(index).width);
    }
}

BOOL CStatusBar::SetPaneText(int index, LPCTSTR text, BOOL update)
{
    if (!HasPane(index))
    {
        return FALSE;
    }
    Pane& pane = m_panes[size_t(index)];
    if (pane.text == text)
    {
        return TRUE;
    }
    pane.text = text;
    return !update || ShowText(index);
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const
{
    return *framework::WindowAs<CStatusBarCtrl>(m_hWnd);
}

CSize CStatusBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    CSize size = CControlBar::CalcFixedLayout(stretch, horizontal);
    int borders[3] = {};
    SendMessage(SB_GETBORDERS, 0, LPARAM(borders));
    CClientDC dc(this);
    const HGDIOBJ before = ::SelectObject(dc, HGDIOBJ(SendMessage(WM_GETFONT)));
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    if (before != nullptr)
    {
        ::SelectObject(dc, before);
    }
    const CRect bar = GetBorders();
    size.cy =
        metrics.tmHeight + 2 * (borders[1] + ::GetSystemMetrics(SM_CYEDGE)) + bar.top + bar.bottom;
    return size;
}

// Each pane is as wide as it wants; the stretching one takes what the others leave.
void CStatusBar::PlacePanes()
{
    if (m_panes.empty())
    {
        return;
    }
    int borders[3] = {};
    SendMessage(SB_GETBORDERS, 0, LPARAM(borders));
    const int frame = 2 * ::GetSystemMetrics(SM_CXEDGE) + borders[2];
    CRect client;
    GetClientRect(&client);
    int spare = client.Width() - borders[0];
    if ((GetStyle() & SBARS_SIZEGRIP) != 0 && !::IsZoomed(::GetParent(m_hWnd)))
    {
        spare -= ::GetSystemMetrics(SM_CXVSCROLL);
    }
    for (const Pane& pane : m_panes)
    {
        spare -= pane.width + frame;
    }
    std::vector<int> edges;
    int edge = borders[0];
    for (const Pane& pane : m_panes)
    {
        edge += pane.width + frame;
        if ((pane.style & SBPS_STRETCH) != 0)
        {
            // Too little room squeezes the stretching pane first, down to nothing.
            edge = std::max(edge + spare, edges.empty() ? borders[0] : edges.back());
        }
        edges.push_back(edge);
    }
    SendMessage(SB_SETPARTS, edges.size(), LPARAM(edges.data()));
}

BOOL CStatusBar::ShowText(int index)
{
    const Pane& pane = At(index);
    const UINT type = pane.style & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
    const LPCTSTR shown = (pane.style & SBPS_DISABLED) != 0 ? "" : pane.text.GetString();
    return BOOL(DefWindowProc(SB_SETTEXT, WPARAM(index) | type, LPARAM(shown)));
}

void CStatusBar::OnSize(UINT, int, int)
{
    Default();
    PlacePanes();
}

// The window's text is that of the first pane.
LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam)
{
    return m_panes.empty() ? Default() : SetPaneText(0, reinterpret_cast<LPCTSTR>(lParam));
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? framework::DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}

namespace {

class PaneUI : public CCmdUI
{
public:
    PaneUI(CStatusBar& bar, int index)
        : m_bar(bar)
    {
        m_nID = bar.GetItemID(index);
        m_nIndex = UINT(index);
        m_nIndexMax = UINT(bar.GetCount());
        m_pOther = &bar;
    }

    void Enable(BOOL on) override
    {
        m_enableChanged = TRUE;
        SetStyle(SBPS_DISABLED, !on);
    }
    void SetCheck(int check) override { SetStyle(SBPS_POPOUT, check != 0); }
    void SetText(LPCSTR text) override { m_bar.SetPaneText(int(m_nIndex), text); }

private:
    void SetStyle(UINT style, bool on)
    {
        const UINT rest = m_bar.GetPaneStyle(int(m_nIndex)) & ~style;
        m_bar.SetPaneStyle(int(m_nIndex), on ? rest | style : rest);
    }

    CStatusBar& m_bar;
};

} // namespace

// A pane without a handler keeps what it shows.
void CStatusBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    const framework::StillThere here(*this); // handlers may end the bar
    for (int index = 0; here && index < GetCount(); ++index)
    {
        if (GetItemID(index) != ID_SEPARATOR)
        {
            PaneUI(*this, index).DoUpdate(target, FALSE);
        }
    }
    if (here)
    {
        UpdateDialogControls(target, disableIfNoHandler);
    }
}
