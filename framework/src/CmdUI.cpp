#include "framework/CmdTarget.h"

#include "ChildWindows.h"
#include "framework/Menu.h"
#include "framework/Wnd.h"

void CCmdUI::Enable(BOOL on)
{
    m_enableChanged = TRUE;
    if (m_pSubMenu != nullptr)
    {
        return;
    }
    if (m_pMenu != nullptr)
    {
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | UINT(on ? MF_ENABLED : MF_GRAYED));
    }
    else if (m_pOther != nullptr)
    {
        const HWND window = m_pOther->m_hWnd;
        if (!on && ::GetFocus() == window)
        {
            // Keys would reach nobody. A parent that is no dialog may leave it where it is.
            ::SendMessage(::GetParent(window), WM_NEXTDLGCTL, 0, 0);
            if (::GetFocus() == window)
            {
                ::SetFocus(::GetAncestor(window, GA_ROOT));
            }
        }
        ::EnableWindow(window, on); // a handler of the focus may have ended the object
    }
}

// The kind of mark goes with it.
void CCmdUI::MarkItem(bool checked, UINT mark)
{
    MENUITEMINFO item = {};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_FTYPE | MIIM_STATE;
    if (m_pSubMenu == nullptr && m_pMenu->GetMenuItemInfo(m_nIndex, &item, TRUE))
    {
        item.fType = (item.fType & ~UINT(MFT_RADIOCHECK)) | mark;
        item.fState = (item.fState & ~UINT(MFS_CHECKED)) | (checked ? MFS_CHECKED : 0U);
        m_pMenu->SetMenuItemInfo(m_nIndex, &item, TRUE);
    }
}

void CCmdUI::SetCheck(int check)
{
    if (m_pMenu != nullptr)
    {
        MarkItem(check != 0, 0);
    }
    else if (m_pOther != nullptr)
    {
        const HWND window = m_pOther->m_hWnd;
        if (framework::IsPushable(window))
        {
            ::SendMessage(window, BM_SETCHECK, WPARAM(check), 0);
        }
    }
}

void CCmdUI::SetRadio(BOOL on)
{
    if (m_pMenu != nullptr)
    {
        MarkItem(on != FALSE, MFT_RADIOCHECK);
    }
    else
    {
        SetCheck(on ? 1 : 0);
    }
}

void CCmdUI::SetText(LPCSTR text)
{
    if (m_pMenu == nullptr)
    {
        if (m_pOther != nullptr)
        {
            m_pOther->SetWindowText(text);
        }
    }
    else if (m_pSubMenu == nullptr)
    {
        MENUITEMINFO item = {};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_STRING;
        item.dwTypeData = const_cast<LPSTR>(text);
        m_pMenu->SetMenuItemInfo(m_nIndex, &item, TRUE);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler)
{
    m_enableChanged = FALSE;
    const CWnd* const window = DYNAMIC_DOWNCAST(CWnd, target);
    const HWND handle = window == nullptr ? nullptr : window->m_hWnd;
    const HWND item = m_pOther == nullptr ? nullptr : m_pOther->m_hWnd;
    if (target->OnCmdMsg(m_nID, int(CN_UPDATE_COMMAND_UI), this, nullptr))
    {
        return TRUE;
    }
    // Who declines may have ended the one who was asked, or the item.
    const bool gone = (handle != nullptr && CWnd::FromHandlePermanent(handle) != window) ||
                      (item != nullptr && !::IsWindow(item));
    if (disableIfNoHandler && !m_enableChanged && !gone)
    {
        AFX_CMDHANDLERINFO info = {};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, nullptr, &info));
    }
    return FALSE;
}
