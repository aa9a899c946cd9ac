#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>

// A control on which the test acts once, inside the first message of a kind, before the control
// gets it. The control may end itself there.
template <class Base> class Acting : public Base
{
public:
    using Base::Base;

    void ActIn(UINT message, std::function<void()> act)
    {
        m_message = message;
        m_act = std::move(act);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_message && m_act)
        {
            const HWND window = this->m_hWnd;
            std::exchange(m_act, nullptr)();
            if (!::IsWindow(window))
            {
                return 0;
            }
        }
        return Base::WindowProc(message, wParam, lParam);
    }

private:
    UINT m_message = 0;
    std::function<void()> m_act;
};
