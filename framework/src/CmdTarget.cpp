#include "framework/CmdTarget.h"

#include "ThreadState.h"
#include "framework/Wnd.h"

#include <utility>

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

// Calls the entries that are meant, from the most derived map to the root, until one handles. One
// that declines may have ended the window that has the map: then there is nobody left to ask.
template <class Meant, class Call>
bool AnyEntry(const CWnd* window, const AFX_MSGMAP* map, Meant meant, Call call)
{
    const HWND handle = window == nullptr ? nullptr : window->m_hWnd;
    while (map != nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->message != 0; ++entry)
        {
            if (!meant(*entry))
            {
                continue;
            }
            if (call(*entry))
            {
                return true;
            }
            if (handle != nullptr && CWnd::FromHandlePermanent(handle) != window)
            {
                return false;
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
    return AnyEntry(
        static_cast<CWnd*>(this), // who else gets one
        GetMessageMap(),
        [&](const AFX_MSGMAP_ENTRY& entry) {
            return entry.registered == nullptr ? entry.message == mapNumber
                                               : registered && *entry.registered == mapNumber;
        },
        [&](const AFX_MSGMAP_ENTRY& entry) { return entry.call(this, m); });
}

bool CCmdTarget::DispatchCommand(UINT mapNumber, UINT code, AFX_MSGCALL& m,
                                 AFX_CMDHANDLERINFO* info)
{
    // Notification codes travel in the low word of a command code.
    const bool words = mapNumber == WM_NOTIFY;
    return AnyEntry(
        DYNAMIC_DOWNCAST(CWnd, this), GetMessageMap(),
        [&](const AFX_MSGMAP_ENTRY& entry) {
            return entry.message == mapNumber && m.id >= entry.firstId && m.id <= entry.lastId &&
                   (words ? LOWORD(entry.code) == LOWORD(code) : entry.code == code);
        },
        [&](const AFX_MSGMAP_ENTRY& entry) {
            if (info != nullptr)
            {
                info->pTarget = this;
                return true;
            }
            const bool handled = entry.call(this, m);
            return handled && (m.ui == nullptr || !std::exchange(m.ui->m_continueRouting, FALSE));
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

void CCmdTarget::BeginWaitCursor()
{
    framework::ThreadState& state = framework::CurrentThreadState();
    const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    if (state.waiting++ == 0)
    {
        state.cursorBefore = before;
    }
}

void CCmdTarget::EndWaitCursor()
{
    framework::ThreadState& state = framework::CurrentThreadState();
    if (state.waiting > 0 && --state.waiting == 0)
    {
        ::SetCursor(state.cursorBefore);
    }
}

void CCmdTarget::RestoreWaitCursor()
{
    if (framework::CurrentThreadState().waiting > 0)
    {
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    }
}

CWaitCursor::CWaitCursor()
{
    CCmdTarget().BeginWaitCursor();
}

CWaitCursor::~CWaitCursor()
{
    CCmdTarget().EndWaitCursor();
}

void CWaitCursor::Restore()
{
    CCmdTarget().RestoreWaitCursor();
}
