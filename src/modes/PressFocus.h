#pragma once

#include "OnBoardUIGeneral.h"
#include "modes/KeyState.h"
#include "modes/WindowAlive.h"

#include <tuple>
#include <utility>

// Gives a control the focus for a press that it is about to begin. Whoever loses the focus may do
// anything to the control, or open a box, over which the finger is lifted: then the press is none.
// A press that a program sends has the button up before and after.
inline bool TakeFocusForPress(CWnd& control)
{
    const auto circumstances = [&control] {
        return std::tuple(COnBoardUIGeneral::GetAppMode(), control.IsWindowEnabled(),
                          control.IsWindowVisible(), IsKeyDown(VK_LBUTTON));
    };
    const auto before = circumstances();
    const WindowAlive alive(control);
    control.SetFocus();
    return alive && circumstances() == before;
}

// A control that was given the focus for a press, and does not have it by now, gets none while this
// lives: whoever has taken it back would be told again when the platform's control tries once more.
class FocusRefusal
{
public:
    explicit FocusRefusal(HWND control)
        : m_outer(std::exchange(s_window, ::GetFocus() == control ? nullptr : control))
        , m_hook(s_window == nullptr ? nullptr
                                     : ::SetWindowsHookEx(WH_CBT, &FocusRefusal::Hear, nullptr,
                                                          ::GetCurrentThreadId()))
    {}
    FocusRefusal(const FocusRefusal&) = delete;
    FocusRefusal& operator=(const FocusRefusal&) = delete;
    ~FocusRefusal()
    {
        s_window = m_outer;
        if (m_hook != nullptr)
        {
            ::UnhookWindowsHookEx(m_hook);
        }
    }

private:
    static inline HWND s_window = nullptr;

    HWND m_outer;
    HHOOK m_hook;

    static LRESULT CALLBACK Hear(int code, WPARAM wParam, LPARAM lParam)
    {
        const bool refused = code == HCBT_SETFOCUS && reinterpret_cast<HWND>(wParam) == s_window;
        return refused ? 1 : ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
};
