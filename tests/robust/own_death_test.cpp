// A control or form may end itself in any of its own messages while the mode changes, while it is
// painted, while a user works it and while an assistive program asks it.

#include "robust/Subjects.h"
#include "robust/Watch.h"
#include "support/Accessible.h"

#include "CustomButton.h"
#include "OnBoardUI.h"

namespace {

// A message, whose, how often it has come to that window before, and in which step of the play.
struct Heard
{
    UINT message;
    int id;
    int before;
    int step;

    friend bool operator==(const Heard&, const Heard&) = default;
};

// Of one message in one step. What follows is likely the same again.
constexpr int MostTellings = 2;
constexpr int MostPlays = 8;

constexpr UINT BlinkOfTheCaret = 0x118; // the system's own timer

bool IsFrame(const CWnd& window)
{
    return dynamic_cast<const CFrameWnd*>(&window) != nullptr;
}

class OwnDeath : public WindowTest
{
protected:
    static inline OwnDeath* s_now = nullptr;

    std::unique_ptr<CWnd> m_window;
    std::optional<Heard> m_awaited;
    std::vector<Heard> m_heard;
    int m_step = 0;

    static bool Hear(const CWnd& window, UINT message)
    {
        // An edit of the platform on a form tells the first two in the middle of its painting and
        // of its typing, and goes on with what it had; the others come when it is time. One that is
        // disabled or read-only tells the first by another message, which labels tell, too.
        const bool ofEdit = message == WM_CTLCOLORSTATIC &&
                            IsOfClass(HWND(CWnd::GetCurrentMessage()->lParam), "Edit");
        constexpr UINT left[] = {WM_CTLCOLOREDIT, WM_COMMAND, WM_MOUSELEAVE, WM_NCMOUSELEAVE,
                                 BlinkOfTheCaret};
        if (PlatformWorks != 0 || ofEdit || std::ranges::find(left, message) != std::end(left))
        {
            return false;
        }
        OwnDeath& now = *s_now;
        Watch::GoesOn();
        Heard word = {message, window.GetDlgCtrlID(), 0, now.m_step};
        while (std::ranges::find(now.m_heard, word) != now.m_heard.end())
        {
            ++word.before;
        }
        if (word.before < MostTellings)
        {
            now.m_heard.push_back(word);
        }
        if (word != now.m_awaited)
        {
            return false;
        }
        EndsItself = nullptr;
        ::DestroyWindow(now.m_window != nullptr ? now.m_window->GetSafeHwnd()
                                                : window.GetSafeHwnd()); // one that is being made
        now.m_window.reset();
        return true;
    }

    // Those that a window makes for itself and that paint themselves: a host may put itself before
    // their procedures, and end the whole there. Not in the standard mode, where it is the platform
    // that works for the parts.
    static void HearParts(HWND window, APPMODE mode)
    {
        const auto hear = [](HWND part, LPARAM) -> BOOL {
            CWnd* const object = CWnd::FromHandlePermanent(part);
            return (dynamic_cast<CHeaderCtrl*>(object) == nullptr &&
                    dynamic_cast<CTabCtrl*>(object) == nullptr &&
                    dynamic_cast<CCustomButton*>(object) == nullptr) ||
                   ::SetWindowSubclass(part, &OwnDeath::PartProcedure, 0, 0);
        };
        if (mode != STD)
        {
            ::EnumChildWindows(window, hear, 0);
        }
    }

    static LRESULT CALLBACK PartProcedure(HWND part, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR, DWORD_PTR)
    {
        return EndsItself != nullptr && Hear(*CWnd::FromHandle(part), message)
                   ? 0
                   : ::DefSubclassProc(part, message, wParam, lParam);
    }

    // Has it done to the window, in which it may be ended; whether it was, or was not to be.
    template <class Act>
    bool Give(const Subject& subject, APPMODE mode, const std::string& title,
              std::optional<Heard> awaited, Act act, bool making)
    {
        const Watch watch([=] { return title; });
        const int faults = Watch::Faults();
        const ModeScope scope(mode);
        m_heard.clear();
        m_awaited = awaited;
        m_step = 0;
        s_now = this;
        EndsItself = making ? &OwnDeath::Hear : nullptr;
        m_window = subject.make(Host());
        const bool endedAtOnce = EndsItself == nullptr; // it, or a page of it
        EndsItself = nullptr;
        const HWND window = m_window != nullptr ? m_window->GetSafeHwnd() : nullptr;
        PumpAll();

        EndsItself = making ? nullptr : &OwnDeath::Hear;
        act(window);
        const bool ended = making ? endedAtOnce : ::IsWindow(window) == FALSE;
        EndsItself = nullptr;
        if (::IsWindow(window))
        {
            Repaint(window);
        }
        m_window.reset();
        PumpAll();
        EXPECT_EQ(Watch::Faults(), faults) << title;
        return ended == awaited.has_value();
    }

    // With the ticks of its timers while the button is down, if it is held: a loop of the platform
    // has to find its end in the queue.
    static void PressOn(HWND window, CPoint point, bool held)
    {
        QueueMove(point);
        QueueButton(true);
        if (held)
        {
            PumpAll();
        }
        for (const UINT id : TimerIds)
        {
            ::SendMessage(window, WM_TIMER, held ? id : 0, 0);
        }
        QueueButton(false);
        PumpAll();
    }

    // As the platform has a list box draw and measure a row, without its own work around that.
    void HaveRowDrawn(HWND window)
    {
        CClientDC dc(&Host());
        const UINT id = UINT(::GetDlgCtrlID(window));
        DRAWITEMSTRUCT row = {ODT_LISTBOX, id, 0, ODA_DRAWENTIRE, 0, window, dc, {0, 0, 99, 20}, 0};
        Host().SendMessage(WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&row));
        MEASUREITEMSTRUCT height = {ODT_LISTBOX, id, 0, 0, 0, 0};
        Host().SendMessage(WM_MEASUREITEM, id, reinterpret_cast<LPARAM>(&height));
    }

    // All that an assistive program asks of a window and of two of its children, one question a
    // step.
    void AskAll(HWND window)
    {
        const auto hear = std::exchange(EndsItself, nullptr);
        CStatic label; // which names the window, and whose messages may end it, too
        label.Create("Label", WS_CHILD, CRect(0, 0, 9, 9), &Host());
        ::SetWindowSubclass(label, &OwnDeath::PartProcedure, 0, 0);
        ::SetWindowPos(window, label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        const Held<IAccessible> object = Reached(window);
        EndsItself = hear;
        const bool own = !IsFrame(*m_window); // which does not speak for itself
        const auto ask = [&](auto question, auto... arguments) {
            ++m_step;
            const HRESULT answer = (object.get()->*question)(arguments...);
            if (own)
            {
                EXPECT_EQ(answer == CO_E_OBJNOTCONNECTED, !::IsWindow(window)) << m_step;
            }
        };
        const auto askFor = [&](auto question, auto... before) {
            VARIANT found = {};
            ask(question, before..., &found);
            ::VariantClear(&found);
        };
        const auto askForText = [&](auto question, long id) {
            BSTR text = nullptr;
            ask(question, Child(id), &text);
            ::SysFreeString(text);
        };
        const auto askForPart = [&](auto question, auto... before) {
            IDispatch* part = nullptr;
            ask(question, before..., &part);
            const Held<IDispatch> held(part);
        };
        long left = 0;
        long top = 0;
        long width = 0;
        long height = 0;
        ask(&IAccessible::get_accChildCount, &width);
        askForPart(&IAccessible::get_accParent);
        for (const long id : {CHILDID_SELF, 1, 2})
        {
            askForPart(&IAccessible::get_accChild, Child(id));
            for (const auto question :
                 {&IAccessible::get_accName, &IAccessible::get_accValue,
                  &IAccessible::get_accDescription, &IAccessible::get_accHelp,
                  &IAccessible::get_accKeyboardShortcut, &IAccessible::get_accDefaultAction})
            {
                askForText(question, id);
            }
            askFor(&IAccessible::get_accRole, Child(id));
            askFor(&IAccessible::get_accState, Child(id));
            for (const long way : {NAVDIR_NEXT, NAVDIR_FIRSTCHILD, NAVDIR_LASTCHILD})
            {
                askFor(&IAccessible::accNavigate, way, Child(id));
            }
            ask(&IAccessible::accLocation, &left, &top, &width, &height, Child(id));
            askFor(&IAccessible::accHitTest, left + 2, top + 2);
            ask(&IAccessible::accSelect, SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(id));
            askFor(&IAccessible::get_accFocus);
            askFor(&IAccessible::get_accSelection);
            ask(&IAccessible::accDoDefaultAction, Child(id));
        }
    }

    // Once without an end, and once for each end on the way. On a busy machine the focus may change
    // by itself in a play, which then takes another course: it is played again. What was only heard
    // because of that does not come without an end either.
    template <class Act>
    void GiveAll(const Subject& subject, APPMODE mode, const std::string& what, Act act,
                 bool making)
    {
        const std::string title =
            subject.name + (" in mode " + std::to_string(int(mode))) + ", " + what;
        EXPECT_TRUE(Give(subject, mode, title, {}, act, making)) << title;
        EXPECT_TRUE(!m_heard.empty() || (mode == STD && !making)) << title << ": nothing is heard";
        for (const Heard& word : std::exchange(m_heard, {}))
        {
            char end[80] = "";
            std::snprintf(end, sizeof(end), ", ends in 0x%X/%d of %d in step %d", word.message,
                          word.before, word.id, word.step);
            bool ended = false;
            for (int plays = 0; plays < MostPlays && !ended; ++plays)
            {
                ended = Give(subject, mode, title + end, word, act, making);
            }
            ended = ended || (Give(subject, mode, title, {}, act, making),
                              std::ranges::find(m_heard, word) == m_heard.end());
            EXPECT_TRUE(ended) << title << end;
        }
    }

    // Of every subject in both kinds of modes.
    template <class Act> void GiveAllOfAll(const std::string& what, Act act, bool making = false)
    {
        for (const Subject& subject : Subjects())
        {
            for (const APPMODE mode : {STD, EFB})
            {
                const auto inMode = [=](HWND window) { act(window, mode); };
                GiveAll(subject, mode, what, inMode, making);
            }
        }
    }
};

TEST_F(OwnDeath, WhileItIsMadeDoesNoHarm)
{
    GiveAllOfAll(
        "made", [](HWND, APPMODE) {}, true);
}

TEST_F(OwnDeath, DuringAChangeOfTheModeDoesNoHarm)
{
    GiveAllOfAll("changing", [this](HWND window, APPMODE from) {
        COnBoardUIGeneral::SetAppMode(from == STD ? EFB : STD);
        ModifyChildWndsData change;
        change.parent = Host();
        change.scale = from == STD ? 1.25 : 1 / 1.25;
        change.mode = COnBoardUIGeneral::GetAppMode();
        ::EnumChildWindows(Host(), &ModifyChildsForAppMode, reinterpret_cast<LPARAM>(&change));
        ::SendMessage(window, WM_NCHITTEST, 0, 0); // by which many notice
    });
}

TEST_F(OwnDeath, DuringARepaintDoesNoHarm)
{
    GiveAllOfAll("painting", [this](HWND window, APPMODE mode) {
        HearParts(window, mode);
        Repaint(window);
        if (dynamic_cast<CListBox*>(m_window.get()) != nullptr)
        {
            HaveRowDrawn(window);
        }
    });
}

TEST_F(OwnDeath, WhileItIsAskedDoesNoHarm)
{
    GiveAllOfAll("asked", [this](HWND window, APPMODE) {
        HearParts(window, EFB);
        AskAll(window);
        PumpAll(); // what is done is posted
    });
}

TEST_F(OwnDeath, DuringInputDoesNoHarm)
{
    using Use = void (*)(HWND window, const CRect& place);
    constexpr std::pair<const char*, Use> uses[] = {
        {"pressing",
         [](HWND window, const CRect& place) { PressOn(window, place.CenterPoint(), false); }},
        {"scrolling",
         [](HWND window, const CRect& place) {
             ::SendMessage(window, WM_VSCROLL, SB_PAGEDOWN, 0);
             // The platform's own bars, in every mode those of forms, run a loop.
             const LONG style = ::GetWindowLong(window, GWL_STYLE);
             const bool child = (style & WS_CHILD) != 0;
             const bool own = COnBoardUIGeneral::InOnBoardMode() && (style & WS_VSCROLL) == 0;
             PressOn(window, child ? CPoint(place.right - 12, place.top + 16) : place.CenterPoint(),
                     child && own);
             ::Wheel(-WHEEL_DELTA);
         }},
        {"typing",
         [](HWND, const CRect&) {
             for (const UINT key :
                  {UINT(VK_DOWN), UINT(VK_NEXT), UINT(VK_SPACE), UINT('W'), UINT(VK_RETURN)})
             {
                 TypeKey(key);
             }
         }},
    };
    for (const auto& [name, use] : uses)
    {
        GiveAllOfAll(name, [use = use](HWND window, APPMODE mode) {
            HearParts(window, mode);
            ::SetFocus(window);
            use(window, WindowRectOf(window));
            RestPointer();
        });
    }
}

} // namespace
