#include "support/Pumping.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int PumpBoundMs = 5000;
constexpr int PollMs = 10;

// One message; false when none waits or the program is to quit.
bool PumpOne()
{
    MSG message;
    if (!::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        return false;
    }
    if (message.message == WM_QUIT)
    {
        ::PostQuitMessage(int(message.wParam)); // whoever waits for it finds it
        return false;
    }
    CWinApp* const app = AfxGetApp();
    app->m_msgCur = message;
    if (!app->PreTranslateMessage(&message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return true;
}

} // namespace

void PumpAll()
{
    const auto bound = Clock::now() + std::chrono::milliseconds(PumpBoundMs);
    do
    {
        while (PumpOne())
        {
            if (Clock::now() > bound)
            {
                ADD_FAILURE() << "the message queue never becomes empty";
                return;
            }
        }
        AfxGetApp()->OnIdle(0);
    } while (HIWORD(::GetQueueStatus(QS_POSTMESSAGE | QS_SENDMESSAGE)) != 0 && PumpOne());
}

bool PumpUntil(const std::function<bool()>& condition, int boundMs)
{
    const auto bound = Clock::now() + std::chrono::milliseconds(boundMs);
    for (;;)
    {
        if (condition())
        {
            return true;
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(bound - Clock::now()).count();
        if (left <= 0)
        {
            return false;
        }
        if (!PumpOne())
        {
            AfxGetApp()->OnIdle(0);
            ::MsgWaitForMultipleObjectsEx(0, nullptr, DWORD(std::min<long long>(left, PollMs)),
                                          QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        }
    }
}

void PumpFor(int milliseconds)
{
    PumpUntil([] { return false; }, milliseconds);
}

bool TakeQuit()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}
