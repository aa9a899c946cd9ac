#pragma once

#include "framework/Object.h"
#include "framework/String.h"

class CBitmap;
class CWnd;

// A menu. An object owns the menu that it made, loaded or attached and destroys it with itself; one
// that was given to a window or to another menu is theirs, and is to be detached. FromHandle gives
// the owner of a handle, or a temporary object that lasts until the thread is next idle. Items are
// named by command or, with MF_BYPOSITION, by place.
class FRAMEWORK_API CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)

public:
    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }

    HMENU m_hMenu = nullptr;
    HMENU GetSafeHmenu() const { return framework::SafeHandle(this, &CMenu::m_hMenu); }
    operator HMENU() const { return m_hMenu; }
    bool operator==(const CMenu& other) const { return m_hMenu == other.m_hMenu; }

    static CMenu* PASCAL FromHandle(HMENU menu);
    static void PASCAL DeleteTempMap();
    // FALSE when the menu is null or somebody's, or the object has one.
    BOOL Attach(HMENU menu);
    HMENU Detach();

    BOOL CreateMenu() { return AttachMade(::CreateMenu()); }
    BOOL CreatePopupMenu() { return AttachMade(::CreatePopupMenu()); }
    BOOL LoadMenu(LPCSTR name);
    BOOL LoadMenu(UINT id) { return LoadMenu(MAKEINTRESOURCE(id)); }
    BOOL LoadMenuIndirect(const void* menuTemplate)
    {
        return AttachMade(::LoadMenuIndirect(menuTemplate));
    }
    BOOL DestroyMenu() { return m_hMenu != nullptr && ::DestroyMenu(Detach()); }

    // Shows it at a place of the screen; owner is told of the command, or, with TPM_RETURNCMD, the
    // result is it.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT = nullptr)
    {
        return TrackPopupMenuEx(flags, x, y, owner, nullptr);
    }
    BOOL TrackPopupMenuEx(UINT flags, int x, int y, CWnd* owner, LPTPMPARAMS keepFree);

    // Items
    BOOL AppendMenu(UINT flags, UINT_PTR idOrMenu = 0, LPCSTR text = nullptr)
    {
        return ::AppendMenu(m_hMenu, flags, idOrMenu, text);
    }
    BOOL AppendMenu(UINT flags, UINT_PTR idOrMenu, const CBitmap* picture);
    BOOL InsertMenu(UINT before, UINT flags, UINT_PTR idOrMenu = 0, LPCSTR text = nullptr)
    {
        return ::InsertMenu(m_hMenu, before, flags, idOrMenu, text);
    }
    BOOL ModifyMenu(UINT item, UINT flags, UINT_PTR idOrMenu = 0, LPCSTR text = nullptr)
    {
        return ::ModifyMenu(m_hMenu, item, flags, idOrMenu, text);
    }
    // The first destroys the menu that opens at the item, the second leaves it.
    BOOL DeleteMenu(UINT item, UINT flags) { return ::DeleteMenu(m_hMenu, item, flags); }
    BOOL RemoveMenu(UINT item, UINT flags) { return ::RemoveMenu(m_hMenu, item, flags); }
    BOOL InsertMenuItem(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE)
    {
        return ::InsertMenuItem(m_hMenu, item, byPosition, info);
    }
    BOOL GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE)
    {
        return ::GetMenuItemInfo(m_hMenu, item, byPosition, info);
    }
    BOOL SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE)
    {
        return ::SetMenuItemInfo(m_hMenu, item, byPosition, info);
    }
    UINT GetMenuItemCount() const { return UINT(::GetMenuItemCount(m_hMenu)); }
    // 0 for a separator, UINT(-1) for an item that opens a menu.
    UINT GetMenuItemID(int place) const { return ::GetMenuItemID(m_hMenu, place); }
    CMenu* GetSubMenu(int place) const { return FromHandle(::GetSubMenu(m_hMenu, place)); }
    int GetMenuString(UINT item, LPSTR buffer, int size, UINT flags) const
    {
        return ::GetMenuString(m_hMenu, item, buffer, size, flags);
    }
    int GetMenuString(UINT item, CString& text, UINT flags) const;
    UINT GetMenuState(UINT item, UINT flags) const { return ::GetMenuState(m_hMenu, item, flags); }
    // They give the state before, UINT(-1) for no such item.
    UINT EnableMenuItem(UINT item, UINT state)
    {
        return UINT(::EnableMenuItem(m_hMenu, item, state));
    }
    UINT CheckMenuItem(UINT item, UINT state) { return ::CheckMenuItem(m_hMenu, item, state); }
    BOOL CheckMenuRadioItem(UINT first, UINT last, UINT checked, UINT flags)
    {
        return ::CheckMenuRadioItem(m_hMenu, first, last, checked, flags);
    }
    // The item that a double click on the menu's own item chooses.
    UINT GetDefaultItem(UINT flags, BOOL byPosition = FALSE)
    {
        return ::GetMenuDefaultItem(m_hMenu, UINT(byPosition), flags);
    }
    BOOL SetDefaultItem(UINT item, BOOL byPosition = FALSE)
    {
        return ::SetMenuDefaultItem(m_hMenu, item, UINT(byPosition));
    }

private:
    BOOL AttachMade(HMENU menu);
};
