// Storms on every control: a short one in each run of the tests, long ones by ./soak, which sets
// ONBOARDUI_SOAK_SECONDS. ONBOARDUI_STORM_SEED replays one.

#include "robust/Storm.h"
#include "support/WindowTest.h"

#include <chrono>
#include <cstdlib>

namespace {

constexpr int ShortStorm = 4'000;
constexpr std::uint32_t FirstSeed = 20261121;

int Number(const char* name, int otherwise)
{
    const char* const text = std::getenv(name);
    return text != nullptr ? std::atoi(text) : otherwise;
}

class MessageStorm : public WindowTest, public testing::WithParamInterface<Subject>
{
protected:
    // One storm with a window of its own; afterwards nothing may go on.
    void Blow(std::uint32_t seed, int messages)
    {
        const Subject& subject = GetParam();
        std::unique_ptr<CWnd> window = subject.make(Host());
        ASSERT_NE(window, nullptr) << subject.name;
        const HWND handle = window->GetSafeHwnd();
        const int faults = Watch::Faults();
        Storm storm(subject, seed);
        storm.Blow(Host(), *window, messages);

        // The hand leaves the screen.
        if (::IsWindow(handle))
        {
            window->EnableWindow(TRUE);
            window->ShowWindow(SW_SHOWNA);
            window->SendMessage(WM_SETREDRAW, TRUE);
            const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
            window->SendMessage(onBoard ? WM_NCLBUTTONUP : WM_LBUTTONUP, HTNOWHERE, -1);
            window->SendMessage(WM_LBUTTONUP, 0, -1);
            window->SendMessage(WM_CANCELMODE);
        }
        PumpAll();
        EXPECT_NE(::GetCapture(), handle) << storm.Log();
        ::ReleaseCapture();
        if (::IsWindow(handle))
        {
            EXPECT_EQ(TimersWithin(handle, 150), 0) << storm.Log();
            if (subject.fault)
            {
                EXPECT_EQ(subject.fault(*window), "") << storm.Log();
            }
        }
        COnBoardUIGeneral::SetAppMode(STD);
        window.reset();
        PumpAll();
        EXPECT_EQ(Watch::Faults(), faults);
        ForgetClipboard();
    }

private:
    // How often a timer of the window comes.
    static int TimersWithin(HWND window, int milliseconds)
    {
        static HWND s_window;
        static int s_count;
        s_window = window;
        s_count = 0;
        const HHOOK hook = ::SetWindowsHookEx(
            WH_GETMESSAGE,
            [](int code, WPARAM removed, LPARAM data) -> LRESULT {
                const auto& message = *reinterpret_cast<const MSG*>(data);
                if (code == HC_ACTION && removed == PM_REMOVE && message.message == WM_TIMER &&
                    message.hwnd == s_window)
                {
                    ++s_count;
                }
                return ::CallNextHookEx(nullptr, code, removed, data);
            },
            nullptr, ::GetCurrentThreadId());
        PumpFor(milliseconds);
        ::UnhookWindowsHookEx(hook);
        return s_count;
    }
};

TEST_P(MessageStorm, LeavesTheControlSound)
{
    using Clock = std::chrono::steady_clock;
    const auto seconds = std::chrono::seconds(Number("ONBOARDUI_SOAK_SECONDS", 0));
    const int given = Number("ONBOARDUI_STORM_SEED", 0);
    const Clock::time_point end = Clock::now() + seconds;
    std::uint32_t seed = given != 0 ? std::uint32_t(given) : FirstSeed;
    int storms = 0;
    do
    {
        Blow(seed, ShortStorm);
        ++storms;
        ++seed;
    } while (given == 0 && Clock::now() < end && !HasFailure());
    if (seconds.count() > 0)
    {
        RecordProperty("storms", storms);
        std::printf("%s: %d storms of %d messages\n", GetParam().name, storms, ShortStorm);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, MessageStorm, testing::ValuesIn(Subjects()),
                         [](const auto& info) { return TestName(info.param.name); });

} // namespace
