#include "robust/Storm.h"

#include "modes/WindowFacts.h"
#include "support/Accessible.h"

#include <sstream>

namespace {

constexpr UINT Keys[] = {VK_UP,    VK_DOWN,   VK_LEFT, VK_RIGHT, VK_HOME,   VK_END,
                         VK_PRIOR, VK_NEXT,   VK_TAB,  VK_SPACE, VK_RETURN, VK_ESCAPE,
                         VK_BACK,  VK_DELETE, 'A',     'Z',      VK_F16};

} // namespace

Storm::Storm(const Subject& subject, std::uint32_t seed)
    : m_subject(subject)
    , m_seed(seed)
    , m_arguments(seed)
    , m_watch([this] { return Log(); })
{}

std::string Storm::Log() const
{
    std::ostringstream log;
    log << "storm on " << m_subject.name << ", seed " << m_seed << ", mode "
        << int(COnBoardUIGeneral::GetAppMode()) << ", last messages:\n";
    for (const Received& sent : m_last)
    {
        log << "  " << testing::PrintToString(sent) << '\n';
    }
    return log.str();
}

void Storm::Note(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_last.size() == Remembered)
    {
        m_last.erase(m_last.begin());
    }
    m_last.push_back({message, wParam, lParam});
    ++m_sent;
    Watch::GoesOn();
}

void Storm::Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Note(message, wParam, lParam);
    ::SendMessage(window, message, wParam, lParam);
}

void Storm::Press(HWND window, UINT down, UINT up, WPARAM wParam, LPARAM point)
{
    if (m_subject.pressesLoop)
    {
        // For the loop that this may begin.
        ::PostMessage(window, WM_LBUTTONUP, 0, 0);
    }
    Send(window, down, wParam, point);
    if (m_subject.pressesLoop || Between(0, 2) != 0)
    {
        Send(window, up, wParam, point);
    }
}

// On a scroll bar, if there is one. A press that the platform answers with a loop of its own is no
// message of the library.
bool Storm::PressBar(HWND window, LPARAM onScreen)
{
    const LRESULT hit = ::SendMessage(window, WM_NCHITTEST, 0, onScreen);
    const bool bar = hit == HTVSCROLL || hit == HTHSCROLL;
    if (bar && COnBoardUIGeneral::InOnBoardMode())
    {
        Press(window, Between(0, 3) ? WM_NCLBUTTONDOWN : WM_NCLBUTTONDBLCLK, WM_NCLBUTTONUP,
              WPARAM(hit), onScreen);
    }
    return bar;
}

// The right button and the middle one. Edits open a menu of the platform's when the right button is
// released; it did not close again in several storms, by a key, a timer or EndMenu.
void Storm::OtherButton(HWND window, LPARAM point)
{
    const bool menu = IsOfClass(window, "Edit");
    if (m_subject.pressesLoop && !menu)
    {
        ::PostMessage(window, WM_RBUTTONUP, 0, 0);
    }
    const int what = Between(0, 3);
    if (what == 0)
    {
        Send(window, WM_MBUTTONDOWN, MK_MBUTTON, point);
        Send(window, WM_MBUTTONUP, 0, point);
    }
    else if (what == 1 && !menu)
    {
        Send(window, WM_CONTEXTMENU, WPARAM(window), Between(0, 1) ? point : -1);
    }
    else
    {
        Send(window, what == 2 ? WM_RBUTTONDOWN : WM_RBUTTONDBLCLK, MK_RBUTTON, point);
        Send(window, menu ? WM_CAPTURECHANGED : WM_RBUTTONUP, 0, menu ? 0 : point);
    }
}

void Storm::Key(HWND window)
{
    const UINT key = m_arguments.OneOf(Keys);
    if (key == VK_DELETE && IsPlainEdit(window))
    {
        return; // as letters, below
    }
    if (Between(0, 7) == 0)
    {
        const UINT with = Between(0, 1) ? VK_DOWN : key == VK_SPACE ? VK_UP : key;
        Send(window, WM_SYSKEYDOWN, with, 0x20000001);
        Send(window, WM_SYSKEYUP, with, LPARAM(0xE0000001));
        return;
    }
    Send(window, WM_KEYDOWN, key, 1);
    Send(window, WM_KEYUP, key, LPARAM(0xC0000001));
}

// A point of the client area, packed, and the same on the screen.
std::pair<LPARAM, LPARAM> Storm::Somewhere(HWND window)
{
    const LPARAM inside = m_arguments.Value(Argument::Point, window);
    CPoint screen(short(LOWORD(inside)), short(HIWORD(inside)));
    ::ClientToScreen(window, &screen);
    return {inside, MAKELPARAM(screen.x, screen.y)};
}

void Storm::Input(HWND window)
{
    const auto point = Somewhere(window);
    const LPARAM inside = point.first;
    const LPARAM onScreen = point.second;
    const std::function<void()> inputs[] = {
        [&] { Press(window, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, inside); },
        [&] { Press(window, WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON, inside); },
        [&] { Send(window, WM_MOUSEMOVE, Between(0, 1) ? MK_LBUTTON : 0, inside); },
        [&] { Send(window, WM_MOUSEMOVE, Between(0, 1) ? MK_LBUTTON : 0, inside); },
        [&] { PressBar(window, onScreen); },
        [&] { Send(window, WM_NCMOUSEMOVE, HTVSCROLL, onScreen); },
        [&] { Send(window, WM_NCMOUSELEAVE, 0, 0); },
        [&] {
            Send(window, Between(0, 3) ? WM_MOUSEWHEEL : WM_MOUSEHWHEEL,
                 MAKEWPARAM(0, Between(-3, 3) * 60), onScreen);
        },
        [&] { OtherButton(window, inside); },
        [&] { Key(window); },
        [&] { Key(window); },
    };
    m_arguments.OneOf(inputs)();
}

void Storm::SendOne(HWND window, const std::vector<Word>& words)
{
    const Word& word = m_arguments.OneOf(words);
    const WPARAM wParam = m_arguments.First(word, window);
    const LPARAM lParam = m_arguments.Second(word, window);
    // Two edits of labels, one after the other, on a list that is disabled: the first gets no focus
    // to lose, so that the platform leaves it behind, and it is painted for ever.
    const bool edits = word.message == LVM_EDITLABELA || word.message == LVM_EDITLABELW;
    const bool endless = edits && IsShutOff(window);
    // A letter that replaces what is selected in an edit of the platform's, or a key that deletes
    // it: an edit that is too narrow for its text wrote and read past it.
    const bool pastText = word.wParam == Argument::Letter && IsPlainEdit(window);
    if (!endless && !pastText)
    {
        Send(window, word.message, wParam, lParam);
    }
}

// As the platform's control tells its parent, and a parent of the framework gives it back.
void Storm::TellParent(HWND window)
{
    if ((::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0)
    {
        const auto [message, wParam, lParam] = m_toParent.Next(window);
        Send(::GetParent(window), message, wParam, lParam);
    }
}

// As an assistive program does.
void Storm::Ask(HWND window)
{
    const Held<IAccessible> object = Reached(window);
    for (int questions = Between(1, 6); questions > 0 && object != nullptr; --questions)
    {
        const long child = Between(0, 6);
        const int what = Between(0, 3);
        Note(WM_GETOBJECT, WPARAM(what), LPARAM(child));
        PlaceOf(*object, child);
        (void)Read(*object, child);
        what == 0   ? object->accDoDefaultAction(Child(child))
        : what != 1 ? S_OK
                    : object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(child));
    }
}

// What is its own: by the host's calls and by messages.
void Storm::Use(CWnd& window, HWND target)
{
    const auto& own = WordsOf(target);
    const bool called = target == window.GetSafeHwnd() && Between(0, own.empty() ? 1 : 3) == 0;
    if (called)
    {
        Note(WM_APP); // the log's word for a call, if there is any
    }
    if (!called || !ActOn(window, m_arguments))
    {
        SendOne(target, own.empty() ? AnyWords : own);
    }
}

// The window, or one of those that it is made of.
HWND Storm::Target(CWnd& window)
{
    const HWND itself = window.GetSafeHwnd();
    if (Between(0, 3) != 0)
    {
        return itself;
    }
    HWND part = PartOf(window);
    for (int depth = part == nullptr ? Between(0, 2) : 0; depth > 0; --depth)
    {
        const LPARAM child = m_arguments.Value(Argument::Child, part == nullptr ? itself : part);
        part = child == 0 ? part : reinterpret_cast<HWND>(child);
    }
    return part == nullptr ? itself : part;
}

void Storm::Life(CWnd& parent, CWnd& window)
{
    const int step = Between(0, 13);
    const int what = Between(0, 2);
    if (step <= 8)
    {
        Note(WM_USER, WPARAM(step), what); // the log's word for a step of a window's life
    }
    const std::function<void()> steps[] = {
        [&] {
            const int most = Between(0, 3) != 0 ? 400 : 3; // also hardly any room, or none
            window.SetWindowPos(nullptr, Between(-5, 60), Between(-5, 60), Between(0, most),
                                Between(0, most), SWP_NOZORDER | SWP_NOACTIVATE);
        },
        [&] { (what != 0 ? window : parent).SetFocus(); },
        [&] { (what != 0 ? window : parent).SetFocus(); },
        [] { ::ReleaseCapture(); },
        [&] { window.EnableWindow(what != 0); },
        [&] { window.ShowWindow(what != 0 ? SW_SHOWNA : SW_HIDE); },
        [&] { COnBoardUIGeneral::SetAppMode(APPMODE(Between(0, 4))); },
        [&] {
            // Not a bar of the platform's, which would run a loop of its own when it is pressed.
            if (FaultOf(window) && !m_subject.pressesLoop)
            {
                window.ModifyStyle(Between(0, 1) ? WS_VSCROLL : 0, Between(0, 1) ? WS_VSCROLL : 0,
                                   SWP_FRAMECHANGED);
            }
        },
        [&] { Repaint(window); },
        [&] { SendOne(window, CommonWords); },
    };
    steps[std::min(step, 9)]();
}

void Storm::Touch(CWnd& window)
{
    const HWND target = Target(window);
    const auto [inside, onScreen] = Somewhere(target);
    if (!PressBar(target, onScreen))
    {
        Press(target, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, inside);
    }
}

// What was posted: repeats, scrolls, paints.
void Storm::PumpSome()
{
    MSG message;
    for (int waiting = Between(0, 8);
         waiting > 0 && ::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE); --waiting)
    {
        Note(message.message, message.wParam, message.lParam);
        ::DispatchMessage(&message);
    }
}

void Storm::Blow(CWnd& parent, CWnd& window, int messages)
{
    const HWND handle = window.GetSafeHwnd();
    for (const int end = m_sent + messages; m_sent < end && ::IsWindow(handle);)
    {
        const HWND target = Target(window);
        const int what = Between(0, 11);
        const std::function<void()> gusts[] = {
            [&] {
                const UINT message = Between(0, 2) ? WM_VSCROLL : WM_HSCROLL;
                Send(target, message, MAKEWPARAM(Between(0, 8), Between(0, 50)), 0);
            },
            [&] { Life(parent, window); },
            [&] { PumpSome(); },
            [&] { Between(0, 11) ? TellParent(target) : Ask(target); },
            [&] { SendOne(target, AnyWords); },
        };
        what < 4 ? Input(target) : what < 9 ? gusts[what - 4]() : Use(window, target);
    }
}
