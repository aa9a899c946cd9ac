// An assistive program is another process: it reaches the gallery's windows as this one.

#include "gallery/RunningGallery.h"
#include "support/Accessible.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr const char* Title = "OnBoardUI Gallery";

// A window on a page of the gallery's, once there is one that is visible.
HWND Within(HWND frame, const char* windowClass, const char* text)
{
    HWND found = nullptr;
    PumpUntil(
        [&] {
            HWND page = nullptr;
            do
            {
                page = ::FindWindowEx(frame, page, "#32770", nullptr);
                found = page ? ::FindWindowEx(page, nullptr, windowClass, text) : nullptr;
            } while (page != nullptr && !::IsWindowVisible(found));
            return found != nullptr;
        },
        10000);
    return found;
}

// What the other process tells of one window, by way of the system.
class Events
{
public:
    explicit Events(HWND window)
    {
        s_window = window;
        s_told.clear();
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        m_hook = ::SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, &Events::Hear, process, 0,
                                   WINEVENT_OUTOFCONTEXT);
    }
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;
    ~Events() { ::UnhookWinEvent(m_hook); }

    bool Come(DWORD event, long child) const
    {
        const bool came = PumpUntil(
            [&] { return std::ranges::count(s_told, std::pair(event, child)) > 0; }, 20000);
        s_told.clear();
        return came;
    }

private:
    static inline HWND s_window = nullptr;
    static inline std::vector<std::pair<DWORD, long>> s_told;
    HWINEVENTHOOK m_hook;

    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG child, DWORD,
                              DWORD)
    {
        if (window == s_window)
        {
            s_told.emplace_back(event, child);
        }
    }
};

// The left button, at a place: the other program's late word of where the pointer was may come
// between a move and a press without one.
void Turn(CPoint point, DWORD button)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = button | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = point.x * 65536 / ::GetSystemMetrics(SM_CXSCREEN) + 1;
    input.mi.dy = point.y * 65536 / ::GetSystemMetrics(SM_CYSCREEN) + 1;
    ::SendInput(1, &input, sizeof(input));
    PumpAll();
}

using FromAnotherProcess = WindowTest;

TEST_F(FromAnotherProcess, ButtonsAreReadPressedAndHeard)
{
    ::CoInitialize(nullptr);
    const RunningGallery gallery("--mode onboard --page buttons");
    const HWND frame = gallery.Window(Title);
    const HWND check = Within(frame, "Button", "Terrain");
    ASSERT_NE(check, nullptr);
    {
        const Events events(check);
        const Held<IAccessible> object = Reached(check);
        ASSERT_TRUE(object);
        const Read before(*object, CHILDID_SELF);
        EXPECT_EQ(before.role, ROLE_SYSTEM_CHECKBUTTON);
        EXPECT_EQ(before.name, "Terrain");
        EXPECT_EQ(before.action, "Check");
        EXPECT_EQ(before.state & STATE_SYSTEM_CHECKED, 0);
        EXPECT_EQ(object->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
        EXPECT_TRUE(events.Come(EVENT_OBJECT_STATECHANGE, CHILDID_SELF));
        EXPECT_EQ(Read(*object, CHILDID_SELF).state & STATE_SYSTEM_CHECKED, STATE_SYSTEM_CHECKED);
    }

    // Pressed, dragged off, dragged back and released: each is told.
    const HWND button = Within(frame, "Button", "Plain");
    ASSERT_NE(button, nullptr);
    const Events presses(button);
    const Held<IAccessible> push = Reached(button);
    const CPoint middle = PlaceOf(button).CenterPoint();
    const auto pressed = [&] {
        return presses.Come(EVENT_OBJECT_STATECHANGE, CHILDID_SELF)
                   ? Read(*push, CHILDID_SELF).state & STATE_SYSTEM_PRESSED
                   : -1;
    };
    MoveTo(middle);
    Turn(middle, MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(pressed(), STATE_SYSTEM_PRESSED);
    MoveTo(middle + CPoint(0, 200));
    EXPECT_EQ(pressed(), 0);
    MoveTo(middle);
    EXPECT_EQ(pressed(), STATE_SYSTEM_PRESSED);
    Turn(middle, MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(pressed(), 0);
}

} // namespace
