// The operations of a window that are more than one call of the platform.

#include "ChildWindows.h"
#include "TypedWindows.h"
#include "framework/App.h"
#include "framework/ControlBar.h"
#include "framework/Controls.h"
#include "framework/DataExchange.h"
#include "framework/Frame.h"
#include "framework/Menu.h"
#include "framework/Wnd.h"

#include <algorithm>
#include <vector>

namespace {

BOOL ChangeStyle(HWND window, int which, DWORD remove, DWORD add, UINT flags)
{
    const auto before = DWORD(::GetWindowLongPtr(window, which));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
    {
        return FALSE;
    }
    ::SetWindowLongPtr(window, which, LONG_PTR(after));
    if (flags != 0)
    {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags)
{
    return ChangeStyle(m_hWnd, GWL_STYLE, remove, add, flags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT flags)
{
    return ChangeStyle(m_hWnd, GWL_EXSTYLE, remove, add, flags);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                    BOOL onlyPermanent)
{
    for (const HWND child : framework::ChildWindows(m_hWnd))
    {
        if (!onlyPermanent || FromHandlePermanent(child) != nullptr)
        {
            ::SendMessage(child, message, wParam, lParam);
        }
        if (deep && ::IsWindow(child) && ::GetTopWindow(child) != nullptr)
        {
            FromHandle(child)->SendMessageToDescendants(message, wParam, lParam, deep,
                                                        onlyPermanent);
        }
    }
}

void CWnd::GetWindowText(CString& text) const
{
    const HWND window = m_hWnd; // is asked, and may end
    const int length = ::GetWindowTextLength(window);
    LPSTR buffer = text.GetBuffer(length + 1);
    buffer[0] = '\0';
    ::GetWindowText(window, buffer, length + 1);
    text.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    if (const CWnd* item = GetDlgItem(id))
    {
        item->GetWindowText(text);
    }
    else
    {
        text.Empty();
    }
    return text.GetLength();
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, framework::SafeHandle(menu, &CMenu::m_hMenu));
}

CMenu* CWnd::GetSystemMenu(BOOL revert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, font == nullptr ? 0 : WPARAM(font->GetSafeHandle()),
                MAKELPARAM(redraw, 0));
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, after == nullptr ? nullptr : after->m_hWnd, x, y, width, height,
                          flags);
}

void CWnd::CenterWindow(CWnd* alternateOwner)
{
    const HWND window = m_hWnd;
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    const HWND parent = isChild ? ::GetParent(window) : nullptr;
    HWND over = alternateOwner != nullptr ? alternateOwner->m_hWnd
                : isChild                 ? parent
                                          : ::GetWindow(window, GW_OWNER);
    CRect place;
    CRect room; // that the window stays in
    ::GetWindowRect(window, &place);
    if (isChild)
    {
        ::GetClientRect(parent, &room);
        ::MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&room), 2);
    }
    else
    {
        const bool toSee = over != nullptr && over != ::GetDesktopWindow() &&
                           ::IsWindowVisible(over) && !::IsIconic(over);
        over = toSee ? over : nullptr;
        MONITORINFO screen = {};
        screen.cbSize = sizeof(screen);
        ::GetMonitorInfo(::MonitorFromWindow(toSee ? over : window, MONITOR_DEFAULTTOPRIMARY),
                         &screen);
        room = screen.rcWork;
    }
    CRect middle = room;
    if (over != nullptr && over != parent)
    {
        ::GetWindowRect(over, &middle);
    }
    CPoint corner = middle.CenterPoint() - CSize(place.Width() / 2, place.Height() / 2);
    if (!isChild)
    {
        corner.x = std::max(std::min(corner.x, room.right - place.Width()), room.left);
        corner.y = std::max(std::min(corner.y, room.bottom - place.Height()), room.top);
    }
    if (isChild)
    {
        ::ScreenToClient(parent, &corner);
    }
    ::SetWindowPos(window, nullptr, corner.x, corner.y, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::ClientToScreen(LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::ScreenToClient(LPRECT rect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const
{
    ::MapWindowPoints(m_hWnd, to == nullptr ? nullptr : to->m_hWnd, points, count);
}

void CWnd::MapWindowPoints(CWnd* to, LPRECT rect) const
{
    MapWindowPoints(to, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::CalcWindowRect(LPRECT clientRect, UINT)
{
    ::AdjustWindowRectEx(clientRect, GetStyle(), FALSE, GetExStyle() & ~DWORD(WS_EX_CLIENTEDGE));
}

int CWnd::ReleaseDC(CDC* dc)
{
    return dc == nullptr ? 0 : ::ReleaseDC(m_hWnd, dc->m_hDC);
}

void CWnd::InvalidateRgn(CRgn* region, BOOL erase)
{
    ::InvalidateRgn(
        m_hWnd, region == nullptr ? nullptr : static_cast<HRGN>(region->GetSafeHandle()), erase);
}

void CWnd::ValidateRgn(CRgn* region)
{
    ::ValidateRgn(m_hWnd, region == nullptr ? nullptr : static_cast<HRGN>(region->GetSafeHandle()));
}

BOOL CWnd::RedrawWindow(LPCRECT rect, CRgn* region, UINT flags)
{
    return ::RedrawWindow(m_hWnd, rect,
                          region == nullptr ? nullptr : static_cast<HRGN>(region->GetSafeHandle()),
                          flags);
}

CWnd* CWnd::SetParent(CWnd* parent)
{
    return FromHandle(::SetParent(m_hWnd, parent == nullptr ? nullptr : parent->m_hWnd));
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (HWND window = ::GetParent(m_hWnd); window != nullptr; window = ::GetParent(window))
    {
        if (auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(window)))
        {
            return frame;
        }
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    CFrameWnd* top = nullptr;
    for (HWND window = m_hWnd; window != nullptr; window = ::GetParent(window))
    {
        auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(window));
        top = frame == nullptr ? top : frame;
    }
    return top;
}

CWnd* CWnd::GetDescendantWindow(int id, BOOL onlyPermanent) const
{
    const HWND own = ::GetDlgItem(m_hWnd, id);
    if (own != nullptr && (!onlyPermanent || FromHandlePermanent(own) != nullptr))
    {
        return FromHandle(own);
    }
    for (const HWND child : framework::ChildWindows(m_hWnd))
    {
        CWnd* const found = ::GetTopWindow(child) == nullptr
                                ? nullptr
                                : FromHandle(child)->GetDescendantWindow(id, onlyPermanent);
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}

BOOL CWnd::IsChild(const CWnd* child) const
{
    return child != nullptr && ::IsChild(m_hWnd, child->m_hWnd);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* control, BOOL previous) const
{
    return FromHandle(
        ::GetNextDlgTabItem(m_hWnd, control == nullptr ? nullptr : control->m_hWnd, previous));
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* control, BOOL previous) const
{
    return FromHandle(
        ::GetNextDlgGroupItem(m_hWnd, control == nullptr ? nullptr : control->m_hWnd, previous));
}

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
    {
        if (IsDlgButtonChecked(id) != BST_UNCHECKED)
        {
            return id;
        }
    }
    return 0;
}

int CWnd::GetScrollLimit(int bar)
{
    SCROLLINFO info = {};
    GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE);
    return info.nMax - std::max(int(info.nPage) - 1, 0);
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

CScrollBar* AfxScrollBarFromHandle(HWND bar)
{
    return framework::WindowAs<CScrollBar>(bar);
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof(*info);
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* refused)
    {
        refused->Delete(); // the user was told by whoever threw
        return FALSE;
    }
}

namespace {

class ChildUI : public CCmdUI
{
public:
    ChildUI(HWND child, UINT index, UINT count)
    {
        m_nID = UINT(::GetDlgCtrlID(child)) & 0xFFFFU;
        m_nIndex = index;
        m_nIndexMax = count;
        m_pOther = CWnd::FromHandle(child);
    }
};

} // namespace

void CWnd::UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler)
{
    const HWND window = m_hWnd;
    const CWnd* const targetWindow = DYNAMIC_DOWNCAST(CWnd, target);
    const HWND targetHandle = targetWindow == nullptr ? nullptr : targetWindow->m_hWnd;
    const std::vector<HWND> children = framework::ChildWindows(window);
    // Who answers, or declines to, may end any of them.
    const auto gone = [&] {
        return FromHandlePermanent(window) != this ||
               (targetHandle != nullptr && FromHandlePermanent(targetHandle) != targetWindow);
    };
    for (size_t index = 0; index < children.size() && !gone(); ++index)
    {
        const HWND child = children[index];
        ChildUI ui(child, UINT(index), UINT(children.size()));
        if (!::IsWindow(child) || ui.m_nID == 0 || ui.m_nID == 0xFFFF)
        {
            continue;
        }
        if ((target == this || !ui.DoUpdate(this, FALSE)) && !gone())
        {
            AFX_CMDHANDLERINFO info = {};
            const bool own = target != this && OnCmdMsg(ui.m_nID, CN_COMMAND, nullptr, &info);
            ui.DoUpdate(target, disableIfNoHandler && !own && framework::IsPushable(child));
        }
    }
}

// Bars ------------------------------------------------------------------------------------------

namespace {

// Takes from one side of the room what a bar wants there.
CRect TakeSide(CRect& room, CControlBar& bar, BOOL stretch)
{
    const DWORD side = bar.GetBarStyle() & CBRS_ALIGN_ANY;
    const bool horizontal = !bar.IsUpright();
    const CSize wanted = bar.CalcFixedLayout(stretch, horizontal);
    CRect place = room;
    if (horizontal)
    {
        if (!stretch && wanted.cx > 0)
        {
            place.right = std::min(place.right, place.left + wanted.cx);
        }
        const bool bottom = (side & CBRS_ALIGN_BOTTOM) != 0;
        (bottom ? place.top : place.bottom) =
            bottom ? room.bottom - wanted.cy : room.top + wanted.cy;
        (bottom ? room.bottom : room.top) = bottom ? place.top : place.bottom;
        return place;
    }
    if (!stretch && wanted.cy > 0)
    {
        place.bottom = std::min(place.bottom, place.top + wanted.cy);
    }
    const bool right = (side & CBRS_ALIGN_RIGHT) != 0;
    (right ? place.left : place.right) = right ? room.right - wanted.cx : room.left + wanted.cx;
    (right ? room.right : room.left) = right ? place.left : place.right;
    return place;
}

} // namespace

void CWnd::RepositionBars(UINT firstId, UINT lastId, UINT leftoverId, UINT flag, LPRECT rectParam,
                          LPCRECT rectClient, BOOL stretch)
{
    const bool moves = flag != reposQuery;
    CRect rest;
    GetClientRect(&rest);
    if (rectClient != nullptr)
    {
        rest = *rectClient;
    }
    HWND leftover = nullptr;
    for (const HWND child : framework::ChildWindows(m_hWnd))
    {
        const UINT id = UINT(::GetDlgCtrlID(child)) & 0xFFFFU;
        auto* bar = DYNAMIC_DOWNCAST(CControlBar, FromHandlePermanent(child));
        if (leftoverId != 0 && id == leftoverId)
        {
            leftover = child;
        }
        else if (id >= firstId && id <= lastId && bar != nullptr &&
                 (bar->GetStyle() & WS_VISIBLE) != 0 && (bar->GetBarStyle() & CBRS_ALIGN_ANY) != 0)
        {
            const CRect place = TakeSide(rest, *bar, stretch);
            if (moves)
            {
                bar->MoveWindow(place);
            }
        }
    }
    if (flag == reposExtra && rectParam != nullptr)
    {
        rest.DeflateRect(rectParam);
    }
    if (!moves)
    {
        if (rectParam != nullptr)
        {
            *rectParam = rest;
        }
    }
    else if (leftover != nullptr)
    {
        ::SetWindowPos(leftover, nullptr, rest.left, rest.top, rest.Width(), rest.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
}
