#pragma once

// Typed message maps. An entry holds a generated function that unpacks the message and calls the
// handler, so that handlers may be overloaded, protected or inherited and a handler of the wrong
// signature does not compile.

#include "framework/Platform.h"

class CCmdTarget;
class CCmdUI;
struct AFX_MSGMAP;

// One message, command or notification on its way through the maps.
struct AFX_MSGCALL
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    UINT id;        // command or control id, for commands and notifications
    CCmdUI* ui;     // for command updates
    LRESULT result; // what the handler gives, apart from whether it handled
};

struct AFX_MSGMAP_ENTRY
{
    UINT message; // 0 ends a map
    UINT code;    // notification code
    UINT firstId;
    UINT lastId;
    const UINT* registered; // a registered message's number, known only at run time
    bool(PASCAL* call)(CCmdTarget* target, AFX_MSGCALL& m); // true when handled
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* baseMap)(); // null at the root
    const AFX_MSGMAP_ENTRY* entries;
};

// Command codes that are not control notifications.
constexpr int CN_COMMAND = 0;
constexpr UINT CN_UPDATE_COMMAND_UI = UINT(-1);

// The one number under which all WM_CTLCOLOR... messages are looked up.
#if !defined(WM_CTLCOLOR)
#define WM_CTLCOLOR 0x0019
#endif

#define DECLARE_MESSAGE_MAP()                                                                      \
protected:                                                                                         \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                           \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                     \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                              \
    {                                                                                              \
        return GetThisMessageMap();                                                                \
    }                                                                                              \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                         \
    {                                                                                              \
        using ThisClass [[maybe_unused]] = theClass;                                               \
        using TheBaseClass = baseClass;                                                            \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                          \
    {                                                                                              \
        0, 0, 0, 0, nullptr, nullptr                                                               \
    }                                                                                              \
    }                                                                                              \
    ;                                                                                              \
    static const AFX_MSGMAP map = {                                                                \
        []() -> const AFX_MSGMAP* { return TheBaseClass::GetThisMessageMap(); }, entries};         \
    return &map;                                                                                   \
    }

// The parts of an entry -------------------------------------------------------------------------

#define FRAMEWORK_CALL(...)                                                                        \
    [](CCmdTarget* target, AFX_MSGCALL& m) -> bool {                                               \
        [[maybe_unused]] auto& self = *static_cast<ThisClass*>(target);                            \
        [[maybe_unused]] auto& call = m;                                                           \
        __VA_ARGS__                                                                                \
    }

// The handler of exactly this result and these parameters.
#define FRAMEWORK_MEMBER(result, name, parameters)                                                 \
    (self.*static_cast<result(ThisClass::*) parameters>(&ThisClass::name))
#define FRAMEWORK_MEMBER_OF(result, member, parameters)                                            \
    (self.*static_cast<result(ThisClass::*) parameters>(member))

#define FRAMEWORK_WM(number, ...) {number, 0, 0, 0, nullptr, FRAMEWORK_CALL(__VA_ARGS__)},

// Messages in general ---------------------------------------------------------------------------

#define ON_MESSAGE(number, member)                                                                 \
    FRAMEWORK_WM(number, call.result = FRAMEWORK_MEMBER_OF(LRESULT, member, (WPARAM, LPARAM))(     \
                             call.wParam, call.lParam);                                            \
                 return true;)
#define ON_REGISTERED_MESSAGE(variable, member)                                                    \
    {                                                                                              \
        0xC000, 0, 0, 0, &variable,                                                                \
            FRAMEWORK_CALL(call.result = FRAMEWORK_MEMBER_OF(LRESULT, member, (WPARAM, LPARAM))(   \
                               call.wParam, call.lParam);                                          \
                           return true;)                                                           \
    }                                                                                              \
    ,

// Commands and control notifications ------------------------------------------------------------

#define FRAMEWORK_COMMAND(notification, first, last, ...)                                          \
    {WM_COMMAND, UINT(notification), UINT(first), UINT(last), nullptr, FRAMEWORK_CALL(__VA_ARGS__)},

#define ON_COMMAND(id, member)                                                                     \
    FRAMEWORK_COMMAND(CN_COMMAND, id, id, FRAMEWORK_MEMBER_OF(void, member, ())(); return true;)
// Not `id` here: the entry's code names a member of that name.
#define ON_COMMAND_EX(number, member)                                                              \
    FRAMEWORK_COMMAND(CN_COMMAND, number, number,                                                  \
                      return FRAMEWORK_MEMBER_OF(BOOL, member, (UINT))(call.id) != FALSE;)
#define ON_COMMAND_RANGE(first, last, member)                                                      \
    FRAMEWORK_COMMAND(CN_COMMAND, first, last, FRAMEWORK_MEMBER_OF(void, member, (UINT))(call.id); \
                      return true;)
#define ON_COMMAND_EX_RANGE(first, last, member)                                                   \
    FRAMEWORK_COMMAND(CN_COMMAND, first, last,                                                     \
                      return FRAMEWORK_MEMBER_OF(BOOL, member, (UINT))(call.id) != FALSE;)
#define ON_UPDATE_COMMAND_UI(id, member)                                                           \
    FRAMEWORK_COMMAND(CN_UPDATE_COMMAND_UI, id, id,                                                \
                      FRAMEWORK_MEMBER_OF(void, member, (CCmdUI*))(call.ui);                       \
                      return true;)
#define ON_UPDATE_COMMAND_UI_RANGE(first, last, member)                                            \
    FRAMEWORK_COMMAND(CN_UPDATE_COMMAND_UI, first, last,                                           \
                      FRAMEWORK_MEMBER_OF(void, member, (CCmdUI*))(call.ui);                       \
                      return true;)
#define ON_CONTROL(notification, id, member)                                                       \
    FRAMEWORK_COMMAND(notification, id, id, FRAMEWORK_MEMBER_OF(void, member, ())(); return true;)
#define ON_CONTROL_RANGE(notification, first, last, member)                                        \
    FRAMEWORK_COMMAND(notification, first, last,                                                   \
                      FRAMEWORK_MEMBER_OF(void, member, (UINT))(call.id);                          \
                      return true;)
#define ON_CONTROL_REFLECT(notification, member)                                                   \
    {                                                                                              \
        WM_COMMAND + WM_REFLECT_BASE, UINT(notification), 0, 0, nullptr,                           \
            FRAMEWORK_CALL(FRAMEWORK_MEMBER_OF(void, member, ())(); return true;)                  \
    }                                                                                              \
    ,
// FALSE from the handler lets the parent have the notification too.
#define ON_CONTROL_REFLECT_EX(notification, member)                                                \
    {                                                                                              \
        WM_COMMAND + WM_REFLECT_BASE, UINT(notification), 0, 0, nullptr,                           \
            FRAMEWORK_CALL(return FRAMEWORK_MEMBER_OF(BOOL, member, ())() != FALSE;)               \
    }                                                                                              \
    ,

#define FRAMEWORK_NOTIFY(number, notification, first, last, ...)                                   \
    {number, UINT(notification), UINT(first), UINT(last), nullptr, FRAMEWORK_CALL(__VA_ARGS__)},
#define FRAMEWORK_NMHDR reinterpret_cast<NMHDR*>(call.lParam), &call.result

#define ON_NOTIFY(notification, id, member)                                                        \
    FRAMEWORK_NOTIFY(WM_NOTIFY, notification, id, id,                                              \
                     FRAMEWORK_MEMBER_OF(void, member, (NMHDR*, LRESULT*))(FRAMEWORK_NMHDR);       \
                     return true;)
#define ON_NOTIFY_EX(notification, number, member)                                                 \
    FRAMEWORK_NOTIFY(WM_NOTIFY, notification, number, number,                                      \
                     return FRAMEWORK_MEMBER_OF(BOOL, member, (UINT, NMHDR*, LRESULT*))(           \
                                call.id, FRAMEWORK_NMHDR) != FALSE;)
#define ON_NOTIFY_RANGE(notification, first, last, member)                                         \
    FRAMEWORK_NOTIFY(                                                                              \
        WM_NOTIFY, notification, first, last,                                                      \
        FRAMEWORK_MEMBER_OF(void, member, (UINT, NMHDR*, LRESULT*))(call.id, FRAMEWORK_NMHDR);     \
        return true;)
#define ON_NOTIFY_EX_RANGE(notification, first, last, member)                                      \
    FRAMEWORK_NOTIFY(WM_NOTIFY, notification, first, last,                                         \
                     return FRAMEWORK_MEMBER_OF(BOOL, member, (UINT, NMHDR*, LRESULT*))(           \
                                call.id, FRAMEWORK_NMHDR) != FALSE;)
#define ON_NOTIFY_REFLECT(notification, member)                                                    \
    FRAMEWORK_NOTIFY(WM_NOTIFY + WM_REFLECT_BASE, notification, 0, 0,                              \
                     FRAMEWORK_MEMBER_OF(void, member, (NMHDR*, LRESULT*))(FRAMEWORK_NMHDR);       \
                     return true;)
#define ON_NOTIFY_REFLECT_EX(notification, member)                                                 \
    FRAMEWORK_NOTIFY(                                                                              \
        WM_NOTIFY + WM_REFLECT_BASE, notification, 0, 0,                                           \
        return FRAMEWORK_MEMBER_OF(BOOL, member, (NMHDR*, LRESULT*))(FRAMEWORK_NMHDR) != FALSE;)

#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_BN_DOUBLECLICKED(id, member) ON_CONTROL(BN_DOUBLECLICKED, id, member)
#define ON_BN_SETFOCUS(id, member) ON_CONTROL(BN_SETFOCUS, id, member)
#define ON_BN_KILLFOCUS(id, member) ON_CONTROL(BN_KILLFOCUS, id, member)
#define ON_STN_CLICKED(id, member) ON_CONTROL(STN_CLICKED, id, member)
#define ON_STN_DBLCLK(id, member) ON_CONTROL(STN_DBLCLK, id, member)
#define ON_LBN_SELCHANGE(id, member) ON_CONTROL(LBN_SELCHANGE, id, member)
#define ON_LBN_SELCANCEL(id, member) ON_CONTROL(LBN_SELCANCEL, id, member)
#define ON_LBN_DBLCLK(id, member) ON_CONTROL(LBN_DBLCLK, id, member)
#define ON_LBN_SETFOCUS(id, member) ON_CONTROL(LBN_SETFOCUS, id, member)
#define ON_LBN_KILLFOCUS(id, member) ON_CONTROL(LBN_KILLFOCUS, id, member)
#define ON_LBN_ERRSPACE(id, member) ON_CONTROL(LBN_ERRSPACE, id, member)
// A list with check boxes: the user has changed one.
#define CLBN_CHKCHANGE 40
#define ON_CLBN_CHKCHANGE(id, member) ON_CONTROL(CLBN_CHKCHANGE, id, member)
#define ON_CBN_SELCHANGE(id, member) ON_CONTROL(CBN_SELCHANGE, id, member)
#define ON_CBN_SELENDOK(id, member) ON_CONTROL(CBN_SELENDOK, id, member)
#define ON_CBN_SELENDCANCEL(id, member) ON_CONTROL(CBN_SELENDCANCEL, id, member)
#define ON_CBN_EDITCHANGE(id, member) ON_CONTROL(CBN_EDITCHANGE, id, member)
#define ON_CBN_EDITUPDATE(id, member) ON_CONTROL(CBN_EDITUPDATE, id, member)
#define ON_CBN_DROPDOWN(id, member) ON_CONTROL(CBN_DROPDOWN, id, member)
#define ON_CBN_CLOSEUP(id, member) ON_CONTROL(CBN_CLOSEUP, id, member)
#define ON_CBN_DBLCLK(id, member) ON_CONTROL(CBN_DBLCLK, id, member)
#define ON_CBN_SETFOCUS(id, member) ON_CONTROL(CBN_SETFOCUS, id, member)
#define ON_CBN_KILLFOCUS(id, member) ON_CONTROL(CBN_KILLFOCUS, id, member)
#define ON_CBN_ERRSPACE(id, member) ON_CONTROL(CBN_ERRSPACE, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_EN_UPDATE(id, member) ON_CONTROL(EN_UPDATE, id, member)
#define ON_EN_SETFOCUS(id, member) ON_CONTROL(EN_SETFOCUS, id, member)
#define ON_EN_KILLFOCUS(id, member) ON_CONTROL(EN_KILLFOCUS, id, member)
#define ON_EN_MAXTEXT(id, member) ON_CONTROL(EN_MAXTEXT, id, member)
#define ON_EN_HSCROLL(id, member) ON_CONTROL(EN_HSCROLL, id, member)
#define ON_EN_VSCROLL(id, member) ON_CONTROL(EN_VSCROLL, id, member)
#define ON_EN_ERRSPACE(id, member) ON_CONTROL(EN_ERRSPACE, id, member)

#include "framework/WindowMessages.h"
