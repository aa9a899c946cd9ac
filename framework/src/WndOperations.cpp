// The operations of a window that are more than one call of the platform.

#include "ChildWindows.h"
#include "TypedWindows.h"
#include "framework/App.h"
#include "framework/ControlBar.h"
#include "framework/Controls.h"
#include "framework/DataExchange.h"
#include "framework/Frame.h"
#include "framework/Wnd.h"

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

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, font == nullptr ? 0 : WPARAM(font->GetSafeHandle()),
                MAKELPARAM(redraw, 0));
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, after == nullptr ? nullptr : after->m_hWnd, x, y, width, height,
                          flags);
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

void CWnd::RepositionBars(UINT firstId, UINT lastId, UINT leftoverId, UINT flag, LPRECT rectParam,
                          LPCRECT rectClient, BOOL)
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
            const int height = bar->CalcFixedLayout(TRUE, TRUE).cy;
            const bool bottom = (bar->GetBarStyle() & CBRS_ALIGN_BOTTOM) != 0;
            const int top = bottom ? rest.bottom - height : rest.top;
            if (moves)
            {
                bar->MoveWindow(rest.left, top, rest.Width(), height);
            }
            (bottom ? rest.bottom : rest.top) += bottom ? -height : height;
        }
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
