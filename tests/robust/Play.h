#pragma once

#include "robust/Subjects.h"
#include "robust/Watch.h"

#include "CustomComboLBox.h"
#include "support/Repaint.h"

#include <afxdlgs.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

// A play in which a parent ends a control, its sibling or itself inside something that it is told.

// What the system itself asks and tells of presses, before a control has them.
constexpr UINT BySystem[] = {WM_SETCURSOR, WM_MOUSEACTIVATE, WM_PARENTNOTIFY};

// A message to a parent and, where it has one, its code, or an event for assistive programs; and in
// which step of the play it came.
struct Told
{
    UINT message;
    UINT code = 0;
    int step = 0;

    bool IsLike(const Told& other) const { return message == other.message && code == other.code; }
    friend bool operator==(const Told&, const Told&) = default;
};

// Of several in the order in which they came.
inline bool IsFirstOfItsKind(const Told& what, const std::vector<Told>& all)
{
    const auto first =
        std::ranges::find_if(all, [&](const Told& each) { return each.IsLike(what); });
    return first == all.end() || *first == what;
}

constexpr UINT FirstRegistered = 0xC000;

inline std::optional<Told> AboutAChild(UINT message, WPARAM wParam, LPARAM lParam)
{
    constexpr UINT WithoutCode[] = {
        WM_MEASUREITEM,   WM_DELETEITEM,    WM_COMPAREITEM, WM_VKEYTOITEM, WM_CHARTOITEM,
        WM_CONTEXTMENU,   WM_MOUSEACTIVATE, WM_MOUSEWHEEL,  WM_SETCURSOR,  WM_ERASEBKGND,
        WM_PRINTCLIENT,   WM_INITDIALOG,    WM_CLOSE,       WM_ACTIVATE,   WM_NEXTDLGCTL,
        WM_CHANGEUISTATE, WM_HELP,          WM_NOTIFYFORMAT};
    switch (message)
    {
    case WM_COMMAND:
        return Told{message, HIWORD(wParam)};
    case WM_NOTIFY:
        return Told{message, reinterpret_cast<const NMHDR*>(lParam)->code};
    case WM_PARENTNOTIFY:
    case WM_VSCROLL:
    case WM_HSCROLL:
        return Told{message, LOWORD(wParam)};
    case WM_DRAWITEM:
        return Told{message, reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->itemAction};
    case PSM_GETCURRENTPAGEHWND: // what a sheet asks itself
        return {};
    default:
        const bool isOther = (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) ||
                             (message >= WM_USER && message < WM_APP) ||
                             message >= FirstRegistered ||
                             std::ranges::find(WithoutCode, message) != std::end(WithoutCode);
        return isOther ? std::optional(Told{message}) : std::nullopt;
    }
}

enum class Death
{
    Window, // the control's; its object stays
    Control,
    Sibling,
    Parent,
};
constexpr const char* DeathNames[] = {"the control's window", "the control", "its sibling",
                                      "the parent"};

// What the platform's own controls do not survive either, on a plain window: their parent may not
// end them there.
struct Forbidden
{
    const char* windowClass;
    Told told;
    DWORD style = 0; // all of it
    bool onBoardToo = true;
    // Not when it is told for the first time. EN_CHANGE shows with the heaps checked only. Those of
    // the status bar and of TVN_DELETEITEM were seen on our controls only, in the platform's code.
    bool againOnly = false;
    bool withinOnly = false; // told while the platform's part is at work
};
constexpr Forbidden PlatformFaults[] = {
    {"Edit", {WM_CTLCOLOREDIT}},
    {"Edit", {WM_CTLCOLORSTATIC}},
    {"Edit", {WM_COMMAND, EN_UPDATE}},
    {"Edit", {WM_COMMAND, EN_CHANGE}, 0, true, true},
    {"ListBox", {WM_DELETEITEM}},
    {"ListBox", {WM_DRAWITEM, ODA_SELECT}, LBS_OWNERDRAWVARIABLE},
    {"ListBox", {WM_DRAWITEM, ODA_FOCUS}, LBS_OWNERDRAWVARIABLE, true, true},
    {"ListBox", {WM_CTLCOLORLISTBOX}, 0, true, true},
    {"ListBox", {WM_MEASUREITEM}, LBS_OWNERDRAWVARIABLE},
    {WC_LISTVIEW, {WM_NOTIFY, UINT(LVN_GETDISPINFO)}},
    {WC_LISTVIEW, {WM_NOTIFY, UINT(LVN_ODCACHEHINT)}, 0, true, false, true},
    {WC_LISTVIEW, {WM_NOTIFY, UINT(LVN_ITEMCHANGING)}, 0, true, true},
    {WC_LISTVIEW, {WM_NOTIFY, UINT(LVN_DELETEITEM)}, 0, true, true},
    {WC_LISTVIEW, {WM_NOTIFY, UINT(LVN_DELETEALLITEMS)}},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_ENDTRACK)}, 0, false},
    // In the middle of a click, with which it goes on, and as a drag begins.
    {WC_HEADER, {WM_NOTIFY, UINT(NM_CUSTOMDRAW)}, 0, true, false, true},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_ITEMCLICK)}, 0, true, false, true},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_BEGINTRACK)}, 0, false},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_BEGINDRAG)}},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_ENDDRAG)}},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_ITEMCHANGING)}},
    {WC_HEADER, {WM_NOTIFY, UINT(HDN_ITEMCHANGED)}},
    {WC_TREEVIEW, {WM_NOTIFY, UINT(NM_CUSTOMDRAW)}},
    {WC_TREEVIEW, {WM_NOTIFY, UINT(TVN_GETDISPINFO)}},
    {WC_TREEVIEW, {WM_NOTIFY, UINT(TVN_DELETEITEM)}, 0, true, true},
    {TOOLTIPS_CLASS, {WM_NOTIFY, UINT(TTN_GETDISPINFOW)}}, // the tip goes with its tool bar
    {STATUSCLASSNAME, {WM_ERASEBKGND}, 0, true, true},
    // Its sheet of pages then writes to what it has freed, which other memory may be by the end.
    {"#32770", {WM_NOTIFY, UINT(PSN_QUERYCANCEL)}},
    {"#32770", {WM_NOTIFY, UINT(PSN_RESET)}},
};

inline HWND SenderOf(UINT message, LPARAM lParam, HWND otherwise)
{
    if (message == WM_NOTIFY)
    {
        return reinterpret_cast<const NMHDR*>(lParam)->hwndFrom;
    }
    const bool says =
        message == WM_COMMAND || (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
    return says && lParam != 0 ? reinterpret_cast<HWND>(lParam) : otherwise;
}

inline bool IsForbidden(HWND window, const Told& told, bool again)
{
    const DWORD style = DWORD(::GetWindowLong(window, GWL_STYLE));
    // Some go on with freed memory of their own after anything that they tell. That shows only when
    // the heaps are checked, as in the preset "heap".
    static const char* const debug = std::getenv("WINEDEBUG");
    static const bool checked = debug != nullptr && std::strstr(debug, "warn+heap") != nullptr;
    const bool drawn = (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0;
    if (checked && (IsOfClass(window, "Edit") || IsOfClass(window, TOOLBARCLASSNAME) ||
                    (drawn && IsOfClass(window, "ListBox"))))
    {
        return true;
    }
    return std::any_of(
        std::begin(PlatformFaults), std::end(PlatformFaults), [&](const Forbidden& each) {
            return each.told.IsLike(told) && IsOfClass(window, each.windowClass) &&
                   (style & each.style) == each.style && (again || !each.againOnly) &&
                   (PlatformWorks != 0 || !each.withinOnly) &&
                   (each.onBoardToo || !COnBoardUIGeneral::InOnBoardMode());
        });
}

// What is on the stage, and what is to happen there.
struct Play
{
    std::string title;
    std::unique_ptr<CWnd> parent;
    std::unique_ptr<CWnd> control;
    std::unique_ptr<CWnd> sibling;
    std::vector<Told> told; // each once in a step
    mutable int step = 0;
    int from = 0;            // the step to go on with after the opening
    bool toldBefore = false; // what is awaited, in a step that may be left out
    std::optional<Told> awaited;
    Death death;
    bool over = false;
    int faults = Watch::Faults();
    Watch watch{[this] { return Title(); }};

    static constexpr int Opening = 3; // steps: it is shown, gets the focus and is painted
    static inline Play* s_now = nullptr;

    Play(const std::string& what, std::optional<Told> itsAwaited, Death itsDeath)
        : title(what + " in mode " + std::to_string(int(COnBoardUIGeneral::GetAppMode())))
        , awaited(itsAwaited)
        , death(itsDeath)
    {
        s_now = this;
    }
    Play(const Play&) = delete;
    Play& operator=(const Play&) = delete;
    ~Play()
    {
        ::UnhookWinEvent(m_events);
        s_now = nullptr;
        control.reset();
        sibling.reset();
        parent.reset();
    }

    std::string Title() const
    {
        char what[60] = "";
        if (awaited)
        {
            std::snprintf(what, sizeof(what), ": 0x%X/%d in step %d ends ", awaited->message,
                          int(awaited->code), awaited->step);
        }
        return title + what + (awaited ? DeathNames[int(death)] : "");
    }

    // Whether the one who was told may be gone.
    static bool Tell(UINT message, WPARAM wParam, LPARAM lParam)
    {
        const auto what = AboutAChild(message, wParam, lParam);
        return s_now != nullptr && !s_now->over && what &&
               s_now->Tell(*what, SenderOf(message, lParam, s_now->control->GetSafeHwnd()));
    }

    bool Tell(Told what, HWND sender)
    {
        Play* const now = this; // may go
        Watch::GoesOn();
        what.step = step;
        const bool again = toldBefore || !IsFirstOfItsKind(what, told);
        if (std::ranges::find(told, what) == told.end())
        {
            told.push_back(what);
        }
        if (what != awaited)
        {
            return false;
        }
        const HWND control = now->control->GetSafeHwnd();
        const bool dies =
            now->death == Death::Parent ||
            (now->death != Death::Sibling && (sender == control || ::IsChild(control, sender) ||
                                              IsOfClass(sender, TOOLTIPS_CLASS)));
        if ((dies && IsForbidden(sender, what, again)) || FocusGiver::EndsWith(now->Ending()))
        {
            now->awaited.reset();
            return false;
        }
        now->over = true;
        now->End();
        return now->death == Death::Parent;
    }

    // What the window is put through, until it is over.
    template <class Act> void Do(HWND window, Act act) const
    {
        ++step;
        if (!over && (step <= Opening || step >= from) && ::IsWindow(window))
        {
            act();
        }
    }
    void Paint(HWND window) const
    {
        Do(window, [=] { Repaint(window); });
    }
    void ChangeModes(HWND window) const
    {
        const APPMODE mode = COnBoardUIGeneral::GetAppMode();
        for (const APPMODE next : {ONBOARD, STD, mode})
        {
            Do(window, [=] { COnBoardUIGeneral::SetAppMode(next); });
            Paint(window);
        }
        COnBoardUIGeneral::SetAppMode(mode);
    }

    // Nothing may be left of it; what was told.
    std::vector<Told> Finish()
    {
        over = true;
        EXPECT_EQ(::GetCapture(), nullptr) << Title() << ": left with the capture";
        ::ReleaseCapture();
        PumpAll();
        EXPECT_EQ(Watch::Faults(), faults) << Title();
        return told;
    }

private:
    // The hook of an assistive program in the process is told on the way.
    HWINEVENTHOOK m_events = ::SetWinEventHook(
        EVENT_OBJECT_SHOW, EVENT_OBJECT_END, ::GetModuleHandle(nullptr), &Play::HearEvent,
        ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_INCONTEXT);

    static void CALLBACK HearEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG, DWORD,
                                   DWORD)
    {
        const bool on = s_now != nullptr && !s_now->over && s_now->control != nullptr;
        const HWND control = on ? s_now->control->GetSafeHwnd() : nullptr;
        // The list that a combo drops is a window beside it.
        const bool dropped =
            dynamic_cast<CCustomComboLBox*>(CWnd::FromHandlePermanent(window)) != nullptr;
        if (control != nullptr && (window == control || ::IsChild(control, window) || dropped))
        {
            s_now->Tell({event}, window);
        }
    }

    HWND Ending() const
    {
        const CWnd& ends = death == Death::Sibling  ? *sibling
                           : death == Death::Parent ? *parent
                                                    : *control;
        return ends.GetSafeHwnd();
    }

    void End()
    {
        if (death == Death::Sibling)
        {
            sibling.reset();
            return;
        }
        ::DestroyWindow(Ending());
        if (death != Death::Window)
        {
            control.reset();
        }
        if (death == Death::Parent)
        {
            sibling.reset();
            parent.reset();
        }
    }
};

template <class Base> struct Hearing : Mortal<Base>
{
    using Mortal<Base>::Mortal;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return Play::Tell(message, wParam, lParam)
                   ? 0
                   : Mortal<Base>::WindowProc(message, wParam, lParam);
    }
};

inline const CRect Stage(0, 0, 620, 300);
