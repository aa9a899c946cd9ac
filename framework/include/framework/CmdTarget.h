#pragma once

#include "framework/MessageMap.h"
#include "framework/Object.h"

class CMenu;
class CWnd;

// Who would handle a command; asked for instead of handling it.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
};

// A notification as OnCmdMsg passes it on.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// Anything that has a message map.
class FRAMEWORK_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget() = default;

    // Routes a command (nCode CN_COMMAND), an update (CN_UPDATE_COMMAND_UI, pExtra a CCmdUI*), a
    // control notification, or a notification message (HIWORD WM_NOTIFY, pExtra an AFX_NOTIFY*).
    // TRUE when somebody handled it.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // The hourglass while something takes long. Pairs nest; the last end gives the pointer the
    // shape back that it had before the first.
    void BeginWaitCursor();
    void EndWaitCursor();
    // After something else has changed the pointer meanwhile.
    void RestoreWaitCursor();

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // Finds the entry for a window message and calls it. True when handled.
    bool DispatchWindowMessage(UINT mapNumber, AFX_MSGCALL& m);
    // The same for entries with codes and ids; reflected entries have no id.
    bool DispatchCommand(UINT mapNumber, UINT code, AFX_MSGCALL& m, AFX_CMDHANDLERINFO* info);
};

// The hourglass for as long as the object lives.
class FRAMEWORK_API CWaitCursor
{
public:
    CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    ~CWaitCursor();
    void Restore();
};

// Tells a menu item, tool-bar button, status pane or control how a command stands.
class FRAMEWORK_API CCmdUI
{
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    UINT m_nIndexMax = 0;     // how many items there are
    CWnd* m_pOther = nullptr; // the window that holds the item, or null for one of a menu
    CMenu* m_pMenu = nullptr; // the menu that the item is of
    // The menu that opens at the item, of which m_nID is the first command: what is said of that
    // command here does not change the item.
    CMenu* m_pSubMenu = nullptr;

    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1);
    virtual void SetRadio(BOOL on = TRUE);
    virtual void SetText(LPCSTR text);
    // Whoever comes after this handler is asked as well.
    void ContinueRouting() { m_continueRouting = TRUE; }

    // Asks target how the command stands. Without an answer the item is, if wished, enabled or
    // disabled as there is somebody who handles the command or not. TRUE for an answer.
    BOOL DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler);

protected:
    BOOL m_enableChanged = FALSE;

private:
    BOOL m_continueRouting = FALSE;

    void MarkItem(bool checked, UINT mark);
    friend class CCmdTarget;
};
