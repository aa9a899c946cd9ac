// Storms on every control: a short one in each run of the tests, long ones by ./soak, which sets
// ONBOARDUI_SOAK_SECONDS. ONBOARDUI_STORM_SEED replays one.

#include "robust/Storm.h"
#include "support/Repaint.h"
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
        SCOPED_TRACE(std::string(subject.name) + ", seed " + std::to_string(seed));
        std::unique_ptr<CWnd> window = subject.make(Host());
        ASSERT_NE(window, nullptr) << subject.name;
        const int faults = Watch::Faults();
        Storm storm(subject, seed);
        storm.Blow(Host(), *window, messages);

        ComeToRest(*window, storm);
        COnBoardUIGeneral::SetAppMode(STD);
        window.reset();
        PumpAll();
        EXPECT_EQ(Watch::Faults(), faults);
        ForgetClipboard();
    }

private:
    // What was pressed is released, and nothing goes on; neither after a few presses more.
    void ComeToRest(CWnd& window, Storm& storm)
    {
        const HWND handle = window.GetSafeHwnd();
        ReleaseAll(window, storm);
        for (int touches = 0; touches < 30 && ::IsWindow(handle) && !HasFailure(); ++touches)
        {
            if (touches % 10 == 0)
            {
                COnBoardUIGeneral::SetAppMode(touches == 0 ? ONBOARD : touches == 10 ? EFB : STD);
                window.SetWindowPos(nullptr, 10, 10, 300, 200, SWP_NOZORDER | SWP_SHOWWINDOW);
                window.EnableWindow(TRUE);
                window.SendMessage(WM_SETREDRAW, TRUE);
                Repaint(window);
            }
            storm.Touch(window);
            ReleaseAll(window, storm);
            EXPECT_EQ(FaultOf(window).value_or(""), "") << storm.Log();
        }
        EXPECT_EQ(TicksWithin(100), 0) << storm.Log();
        window.SendMessage(WM_CANCELMODE);
        PumpAll();
    }

    void ReleaseAll(CWnd& window, const Storm& storm)
    {
        const HWND handle = window.GetSafeHwnd();
        if (::IsWindow(handle))
        {
            Rest(window);
        }
        const HWND part = ::IsWindow(handle) ? PartOf(window) : nullptr;
        for (const HWND to : {::GetCapture(), handle, part})
        {
            ::SendMessage(to, WM_LBUTTONUP, 0, -1);
            ::SendMessage(to, WM_NCLBUTTONUP, HTNOWHERE, 0);
            ::SendMessage(to, WM_NCMOUSELEAVE, 0, 0);
        }
        PumpAll();
        EXPECT_EQ(::GetCapture(), nullptr) << storm.Log();
        ::ReleaseCapture();
        EXPECT_EQ(EndTimers(), 0) << storm.Log();
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
