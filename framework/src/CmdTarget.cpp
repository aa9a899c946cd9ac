#include "framework/CmdTarget.h"

#include "framework/Wnd.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY none[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, none};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

namespace {

// Calls visit(entry) for each entry from the most derived map to the root until one says true.
template <class Visit> bool AnyEntry(const AFX_MSGMAP* map, Visit visit)
{
    while (map != nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->message != 0; ++entry)
        {
            if (visit(*entry))
            {
                return true;
            }
        }
        map = map->baseMap == nullptr ? nullptr : map->baseMap();
    }
    return false;
}

} // namespace

bool CCmdTarget::DispatchWindowMessage(UINT mapNumber, AFX_MSGCALL& m)
{
    const bool registered = mapNumber >= 0xC000 && mapNumber <= 0xFFFF;
    return AnyEntry(GetMessageMap(), [&](const AFX_MSGMAP_ENTRY& entry) {
        const bool meant = entry.registered == nullptr
                               ? entry.message == mapNumber
                               : registered && *entry.registered == mapNumber;
        return meant && entry.call(this, m);
    });
}

bool CCmdTarget::DispatchCommand(UINT mapNumber, UINT code, AFX_MSGCALL& m,
                                 AFX_CMDHANDLERINFO* info)
{
    // Notification codes travel in the low word of a command code.
    const bool words = mapNumber == WM_NOTIFY;
    return AnyEntry(GetMessageMap(), [&](const AFX_MSGMAP_ENTRY& entry) {
        if (entry.message != mapNumber || m.id < entry.firstId || m.id > entry.lastId ||
            (words ? LOWORD(entry.code) != LOWORD(code) : entry.code != code))
        {
            return false;
        }
        if (info != nullptr)
        {
            info->pTarget = this;
            return true;
        }
        return entry.call(this, m);
    });
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    AFX_MSGCALL m = {WM_COMMAND, 0, 0, nID, nullptr, 0};
    if (UINT(nCode) == CN_UPDATE_COMMAND_UI)
    {
        m.ui = static_cast<CCmdUI*>(pExtra);
        return DispatchCommand(WM_COMMAND, CN_UPDATE_COMMAND_UI, m, pHandlerInfo);
    }
    if (HIWORD(nCode) == WM_NOTIFY)
    {
        const auto* notify = static_cast<AFX_NOTIFY*>(pExtra);
        m.message = WM_NOTIFY;
        m.lParam = reinterpret_cast<LPARAM>(notify->pNMHDR);
        m.result = *notify->pResult;
        const bool handled = DispatchCommand(WM_NOTIFY, LOWORD(nCode), m, pHandlerInfo);
        *notify->pResult = m.result;
        return handled;
    }
    return DispatchCommand(WM_COMMAND, UINT(nCode), m, pHandlerInfo);
}

void CCmdUI::Enable(BOOL on)
{
    m_enableChanged = TRUE;
    if (m_pOther != nullptr)
    {
        m_pOther->EnableWindow(on);
    }
}

void CCmdUI::SetCheck(int check)
{
    if (m_pOther != nullptr)
    {
        m_pOther->SendMessage(BM_SETCHECK, WPARAM(check));
    }
}

void CCmdUI::SetText(LPCSTR text)
{
    if (m_pOther != nullptr)
    {
        m_pOther->SetWindowText(text);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler)
{
    m_enableChanged = FALSE;
    const BOOL handled = target->OnCmdMsg(m_nID, int(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (disableIfNoHandler && !m_enableChanged)
    {
        AFX_CMDHANDLERINFO info = {};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, nullptr, &info));
    }
    return handled;
}
