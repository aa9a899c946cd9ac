#pragma once

#include <afxwin.h>

#include <algorithm>
#include <vector>

// The platform's dialogs that are giving the focus on to a control, because they have got it or are
// activated. One that ends in that, by whatever is told on the way, has its procedure write eight
// bytes into memory that is freed already; a plain dialog without this library does so, too. Lives
// while the window's part of the platform works on a message.
class FocusGiver
{
public:
    FocusGiver(HWND window, UINT message)
    {
        constexpr ULONG_PTR DialogAtom = 0x8002; // of the class "#32770"
        m_gives = (message == WM_SETFOCUS || message == WM_ACTIVATE) &&
                  ::GetClassLongPtr(window, GCW_ATOM) == DialogAtom;
        if (m_gives)
        {
            s_giving.push_back(window);
        }
    }
    FocusGiver(const FocusGiver&) = delete;
    FocusGiver& operator=(const FocusGiver&) = delete;
    ~FocusGiver()
    {
        if (m_gives)
        {
            s_giving.pop_back();
        }
    }

    // Whether one of them would end with the window.
    static bool EndsWith(HWND window)
    {
        return std::ranges::any_of(
            s_giving, [=](HWND giver) { return giver == window || ::IsChild(window, giver); });
    }

private:
    static inline std::vector<HWND> s_giving;
    bool m_gives = false;
};
