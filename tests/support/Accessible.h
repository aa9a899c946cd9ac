#pragma once

// What an assistive program asks of windows and hears of them.

#include "catalog/Accessible.h"
#include "support/OnBoard.h"
#include "support/WindowTest.h"

// Of the states those that the library tells, and FOCUSABLE where it is odd: what is disabled.
struct Read : Answers
{
    Read(IAccessible& object, long child)
        : Answers(object, child)
    {
        const long odd = (state & STATE_SYSTEM_UNAVAILABLE) != 0 ? STATE_SYSTEM_FOCUSABLE : 0;
        const long told = STATE_SYSTEM_CHECKED | STATE_SYSTEM_MIXED | STATE_SYSTEM_UNAVAILABLE |
                          STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_OFFSCREEN |
                          STATE_SYSTEM_EXPANDED | STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_READONLY |
                          STATE_SYSTEM_PRESSED | STATE_SYSTEM_PROTECTED | odd;
        state = state == -1 ? -1 : state & told;
    }
};

// Where it says that a child is, on the screen; empty where it is refused.
inline CRect PlaceOf(IAccessible& object, long child)
{
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    object.accLocation(&left, &top, &width, &height, Child(child));
    return CRect(CPoint(left, top), CSize(width, height));
}

// The child that it finds at a point of the screen; -1 for none.
inline long ChildAt(IAccessible& object, const CPoint& point)
{
    VARIANT found = {};
    return object.accHitTest(point.x, point.y, &found) == S_OK ? found.lVal : -1;
}

// The child that has the focus, or the one that is selected; -1 for none or another window.
inline long FocusIn(IAccessible& object)
{
    VARIANT found = {};
    return object.get_accFocus(&found) == S_OK && found.vt == VT_I4 ? found.lVal : -1;
}
inline long SelectionIn(IAccessible& object)
{
    VARIANT found = {};
    return object.get_accSelection(&found) == S_OK && found.vt == VT_I4 ? found.lVal : -1;
}

// What is told of one window to assistive programs, by way of the system. One at a time.
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

    // The changes of states so far, by the child.
    std::vector<long> States() const { return s_told; }
    // Whether that of a child comes; forgets all.
    bool Come(long child) const
    {
        const bool came = PumpUntil([&] { return std::ranges::count(s_told, child) > 0; }, 20000);
        s_told.clear();
        return came;
    }

private:
    static inline HWND s_window = nullptr;
    static inline std::vector<long> s_told;
    HWINEVENTHOOK m_hook;

    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG child, DWORD,
                              DWORD)
    {
        if (window == s_window && event == EVENT_OBJECT_STATECHANGE)
        {
            s_told.push_back(child);
        }
    }
};

// Controls as they answer in a display mode.
class AccessInModes : public InMode<WindowTest>
{};
