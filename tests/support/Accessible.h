#pragma once

// Reaches windows as an assistive program does: through the platform's accessibility interface.

#include "support/OnBoard.h"
#include "support/WindowTest.h"

#include <afxwin.h>

#include <oleacc.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

struct Releaser
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface> using Held = std::unique_ptr<Interface, Releaser>;

inline Held<IAccessible> Reached(HWND window)
{
    static const HRESULT ready = ::CoInitialize(nullptr);
    EXPECT_TRUE(SUCCEEDED(ready));
    IAccessible* reached = nullptr;
    const HRESULT result = ::AccessibleObjectFromWindow(
        window, DWORD(OBJID_CLIENT), IID_IAccessible, reinterpret_cast<void**>(&reached));
    EXPECT_EQ(result, S_OK);
    return Held<IAccessible>(reached);
}

inline VARIANT Child(long id)
{
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = id;
    return child;
}

inline std::string Taken(BSTR text)
{
    const std::wstring wide(text != nullptr ? text : L"(none)");
    ::SysFreeString(text);
    return std::string(wide.begin(), wide.end());
}

// What an assistive program reads of a window or a row. Where it is refused, -1 and "(error)".
struct Read
{
    Read(IAccessible& object, long child)
    {
        VARIANT number = {};
        role = SUCCEEDED(object.get_accRole(Child(child), &number)) ? number.lVal : -1;
        if (SUCCEEDED(object.get_accState(Child(child), &number)))
        {
            state = number.lVal &
                    (STATE_SYSTEM_CHECKED | STATE_SYSTEM_MIXED | STATE_SYSTEM_UNAVAILABLE |
                     STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_OFFSCREEN |
                     STATE_SYSTEM_EXPANDED | STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_READONLY |
                     STATE_SYSTEM_PRESSED);
            if ((state & STATE_SYSTEM_UNAVAILABLE) != 0)
            {
                state |= number.lVal & STATE_SYSTEM_FOCUSABLE; // which is odd then
            }
        }
        const auto text = [&](auto get) {
            BSTR given = nullptr;
            return SUCCEEDED((object.*get)(Child(child), &given)) ? Taken(given) : "(error)";
        };
        name = text(&IAccessible::get_accName);
        action = text(&IAccessible::get_accDefaultAction);
        value = text(&IAccessible::get_accValue);
        description = text(&IAccessible::get_accDescription);
    }

    long role = -1;
    long state = -1;
    std::string name;
    std::string action;
    std::string value;
    std::string description;
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
