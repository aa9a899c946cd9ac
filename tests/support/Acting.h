#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>

// A view or a frame that does not delete itself: the test owns it.
template <class Base> struct Standing : Base
{
    using Base::Base;
    void PostNcDestroy() override {}
};

// A control on which the test acts once, inside the first message of a kind, or after so many of
// them, before the control gets it. The control may end itself there.
template <class Base> class Acting : public Base
{
public:
    using Base::Base;

    void ActIn(UINT message, std::function<void()> act, int after = 0)
    {
        m_message = message;
        m_after = after;
        m_act = std::move(act);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_message && m_act && m_after-- == 0)
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
    int m_after = 0;
    std::function<void()> m_act;
};
