// How a window's messages find their handlers: maps, commands, notifications, reflection.

#include "StillThere.h"
#include "ThreadState.h"
#include "framework/App.h"
#include "framework/Controls.h"
#include "framework/Wnd.h"

using framework::StillThere;

namespace {

// Messages that say everything where lParam points to.
bool NeedsData(UINT message)
{
    switch (message)
    {
    case WM_NOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_COMPAREITEM:
    case WM_DELETEITEM:
    case WM_WINDOWPOSCHANGING:
    case WM_WINDOWPOSCHANGED:
    case WM_NCCALCSIZE:
    case WM_GETMINMAXINFO:
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
    case WM_MOVING:
    case WM_SIZING:
    case WM_CREATE:
    case WM_NCCREATE:
    case WM_COPYDATA:
    case WM_HELP:
        return true;
    default:
        return false;
    }
}

} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (lParam == 0 && NeedsData(message))
    {
        *result = 0; // neither a handler nor the platform could do anything with it
        return TRUE;
    }
    if (message == WM_COMMAND)
    {
        *result = 0;
        return OnCommand(wParam, lParam);
    }
    if (message == WM_NOTIFY)
    {
        return OnNotify(wParam, lParam, result);
    }
    const bool colour = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    AFX_MSGCALL m = {message, wParam, lParam, 0, nullptr, 0};
    if (!DispatchWindowMessage(colour ? WM_CTLCOLOR : message, m))
    {
        return FALSE;
    }
    *result = m.result;
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr)
    {
        return id != 0 && OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }
    const StillThere here(*this);
    return ReflectLastMsg(control) || !here || OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result)
{
    const StillThere here(*this);
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    const HWND from = header->hwndFrom;
    if (ReflectLastMsg(from, result) || !here)
    {
        return TRUE;
    }
    AFX_NOTIFY notify = {result, header};
    return OnCmdMsg(UINT(::GetDlgCtrlID(from)), int(MAKELONG(header->code, WM_NOTIFY)), &notify,
                    nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// Reflection ------------------------------------------------------------------------------------

BOOL PASCAL CWnd::ReflectLastMsg(HWND child, LRESULT* result)
{
    CWnd* const wnd = FromHandlePermanent(child);
    return wnd != nullptr && wnd->SendChildNotifyLastMsg(result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result)
{
    LRESULT ignored = 0;
    const MSG current = *GetCurrentMessage();
    return OnChildNotify(current.message, current.wParam, current.lParam,
                         result == nullptr ? &ignored : result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    AFX_MSGCALL m = {message, wParam, lParam, 0, nullptr, result == nullptr ? 0 : *result};
    bool handled = false;
    if (message == WM_COMMAND)
    {
        handled = DispatchCommand(WM_COMMAND + WM_REFLECT_BASE, HIWORD(wParam), m, nullptr);
    }
    else if (message == WM_NOTIFY)
    {
        handled = DispatchCommand(WM_NOTIFY + WM_REFLECT_BASE,
                                  reinterpret_cast<NMHDR*>(lParam)->code, m, nullptr);
    }
    else
    {
        const bool colour = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
        handled = DispatchWindowMessage((colour ? WM_CTLCOLOR : message) + WM_REFLECT_BASE, m);
    }
    if (handled && result != nullptr)
    {
        *result = m.result;
    }
    return handled;
}

// The parent's side of the messages that belong to a child. The child may end its parent before it
// declines.

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* control, UINT)
{
    const StillThere here(*this);
    LRESULT brush = 0;
    if (control != nullptr && ReflectLastMsg(control->m_hWnd, &brush) && brush != 0)
    {
        return reinterpret_cast<HBRUSH>(brush);
    }
    return here ? reinterpret_cast<HBRUSH>(Default()) : nullptr;
}

LRESULT CWnd::ReflectElseDefault(HWND child)
{
    const StillThere here(*this);
    LRESULT answer = 0;
    if (child != nullptr && ReflectLastMsg(child, &answer))
    {
        return answer;
    }
    return here ? Default() : 0;
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* bar)
{
    ReflectElseDefault(bar == nullptr ? nullptr : bar->m_hWnd);
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* bar)
{
    ReflectElseDefault(bar == nullptr ? nullptr : bar->m_hWnd);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT draw)
{
    ReflectElseDefault(draw->CtlType == ODT_MENU ? nullptr : draw->hwndItem);
}

void CWnd::OnMeasureItem(int id, LPMEASUREITEMSTRUCT measure)
{
    // The control may ask while it is being created, before it is anybody's child.
    ReflectElseDefault(measure->CtlType == ODT_MENU ? nullptr : ::GetDlgItem(m_hWnd, id));
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT compare)
{
    return int(ReflectElseDefault(compare->hwndItem));
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT deleted)
{
    ReflectElseDefault(deleted->hwndItem);
}

LRESULT CWnd::OnKeyToItem(WPARAM, LPARAM lParam)
{
    return ReflectElseDefault(reinterpret_cast<HWND>(lParam));
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const bool fromChild = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    ReflectElseDefault(fromChild ? reinterpret_cast<HWND>(lParam) : nullptr);
}

// Before dispatch -------------------------------------------------------------------------------

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG message)
{
    const bool keyboard = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    return (keyboard || mouse) && IsDialogMessage(message);
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND window = message->hwnd; window != nullptr; window = ::GetParent(window))
    {
        CWnd* const wnd = FromHandlePermanent(window);
        if (wnd != nullptr && wnd->PreTranslateMessage(message))
        {
            return TRUE;
        }
        if (window == stop || !::IsWindow(window))
        {
            break;
        }
    }
    return FALSE;
}
