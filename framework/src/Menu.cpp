#include "framework/Menu.h"

#include "ThreadState.h"
#include "framework/App.h"
#include "framework/Gdi.h"

using framework::CurrentThreadState;

IMPLEMENT_DYNAMIC(CMenu, CObject)

CMenu* PASCAL CMenu::FromHandle(HMENU menu)
{
    CMenu* const object =
        CurrentThreadState().menus.Find(menu, [](HMENU) { return std::make_unique<CMenu>(); });
    if (object != nullptr)
    {
        object->m_hMenu = menu; // also when somebody detached it
    }
    return object;
}

void PASCAL CMenu::DeleteTempMap()
{
    CurrentThreadState().menus.DeleteTemporaries([](CMenu& menu) { menu.m_hMenu = nullptr; });
}

BOOL CMenu::Attach(HMENU menu)
{
    auto& menus = CurrentThreadState().menus;
    if (menu == nullptr || m_hMenu != nullptr || menus.FindPermanent(menu) != nullptr)
    {
        return FALSE;
    }
    m_hMenu = menu;
    menus.SetPermanent(menu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    CurrentThreadState().menus.Remove(menu, this);
    m_hMenu = nullptr;
    return menu;
}

// The object may have one already.
BOOL CMenu::AttachMade(HMENU menu)
{
    if (Attach(menu))
    {
        return TRUE;
    }
    ::DestroyMenu(menu);
    return FALSE;
}

BOOL CMenu::LoadMenu(LPCSTR name)
{
    return AttachMade(::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name));
}

BOOL CMenu::TrackPopupMenuEx(UINT flags, int x, int y, CWnd* owner, LPTPMPARAMS keepFree)
{
    return ::TrackPopupMenuEx(m_hMenu, flags, x, y, framework::SafeHandle(owner, &CWnd::m_hWnd),
                              keepFree);
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR idOrMenu, const CBitmap* picture)
{
    return ::AppendMenu(m_hMenu, flags | MF_BITMAP, idOrMenu,
                        static_cast<LPCSTR>(picture == nullptr ? nullptr : picture->m_hObject));
}

int CMenu::GetMenuString(UINT item, CString& text, UINT flags) const
{
    const int length = ::GetMenuString(m_hMenu, item, nullptr, 0, flags);
    text.Empty();
    if (length > 0)
    {
        ::GetMenuString(m_hMenu, item, text.GetBuffer(length + 1), length + 1, flags);
        text.ReleaseBuffer();
    }
    return text.GetLength();
}
