#pragma once

#include <afxwin.h>

#include <functional>

// A dialog or a sheet on which a test acts once it is shown and its loop runs:
//
//     Scripted<CDialog> dialog(...);
//     dialog.inLoop = [&] { TypeKey(VK_ESCAPE); };
//     EXPECT_EQ(dialog.DoModal(), IDCANCEL);
template <class Base> class Scripted : public Base
{
public:
    using Base::Base;

    std::function<void()> inLoop;
    bool shown = false;
    int gone = 0; // how often a window of this object has ended

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        constexpr UINT RunScript = WM_APP + 0x3F00;
        if (message == RunScript)
        {
            inLoop();
            return 0;
        }
        if (message == WM_SHOWWINDOW && wParam != FALSE)
        {
            shown = true;
            if (inLoop)
            {
                this->PostMessage(RunScript);
            }
        }
        return Base::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override
    {
        ++gone;
        Base::PostNcDestroy();
    }
};
