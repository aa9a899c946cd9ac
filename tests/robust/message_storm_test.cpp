// A storm on every control: the same in each run of the tests, another with ONBOARDUI_STORM_SEED.
// ./soak goes through many seeds, and one that failed is replayed by its own.

#include "robust/Storm.h"
#include "support/WindowTest.h"

#include <cstdlib>

namespace {

constexpr int Messages = 4'000;
constexpr std::uint32_t FirstSeed = 20261120;
// A storm of these seeds is followed by presses in each mode. They take longer than the storm.
constexpr std::uint32_t PressesEach = 8;

class MessageStorm : public WindowTest, public testing::WithParamInterface<Subject>
{
protected:
    // One storm with a window of its own; afterwards nothing may go on. How many messages it was.
    int Blow(std::uint32_t seed)
    {
        const Subject& subject = GetParam();
        SCOPED_TRACE(std::string(subject.name) + ", seed " + std::to_string(seed));
        std::unique_ptr<CWnd> window = subject.make(Host());
        const int faults = Watch::Faults();
        const int objects = GraphicsObjects();
        Storm storm(subject, seed);
        storm.Blow(Host(), *window, Messages);
        EXPECT_GE(storm.Sent(), Messages) << "its window went\n" << storm.Log();

        ReleaseAll(*window, storm);
        if (seed % PressesEach == 0)
        {
            PressAndRelease(*window, storm);
        }
        COnBoardUIGeneral::SetAppMode(STD);
        window.reset();
        PumpAll();
        EXPECT_EQ(Watch::Faults(), faults);
        // A first use keeps some, and the platform up to 64 contexts of windows with two objects
        // each: its tree, scrolled sideways, paints within its paint. What is lost message after
        // message comes to more.
        EXPECT_LT(GraphicsObjects() - objects, 300) << storm.Log();
        EXPECT_TRUE(HeapsAreWhole()) << storm.Log();
        return storm.Sent();
    }

private:
    void PressAndRelease(CWnd& window, Storm& storm)
    {
        const HWND handle = window.GetSafeHwnd();
        for (int touches = 0; touches < 30 && ::IsWindow(handle) && !HasFailure(); ++touches)
        {
            if (touches % 10 == 0)
            {
                COnBoardUIGeneral::SetAppMode(touches == 0 ? ONBOARD : touches == 10 ? EFB : STD);
                window.EnableWindow(TRUE);
                window.SendMessage(WM_SETREDRAW, TRUE);
                // Also without any room.
                for (const CSize size : {CSize(0, 0), CSize(3, 3), CSize(200, 1), CSize(300, 200)})
                {
                    window.SetWindowPos(nullptr, 10, 10, size.cx, size.cy,
                                        SWP_NOZORDER | SWP_SHOWWINDOW);
                    Repaint(window);
                }
            }
            storm.Touch(window);
            ReleaseAll(window, storm);
        }
        EXPECT_EQ(TicksWithin(100), 0) << storm.Log();
        window.SendMessage(WM_CANCELMODE);
        PumpAll();
    }

    // What was pressed is released, and nothing goes on.
    void ReleaseAll(CWnd& window, const Storm& storm)
    {
        const HWND handle = window.GetSafeHwnd();
        PumpAll(); // what assistive programs have asked for is done when messages are
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
            // The watch over a drag ends at its first tick after it.
            ::SendMessage(to, WM_TIMER, DragWatch, 0);
        }
        PumpAll();
        EXPECT_EQ(::GetCapture(), nullptr) << storm.Log();
        ::ReleaseCapture();
        EXPECT_EQ(EndTimers(), 0) << storm.Log();
        EXPECT_EQ(FaultOf(window).value_or(""), "") << storm.Log();
    }
};

TEST_P(MessageStorm, LeavesTheControlSound)
{
    const char* const seed = std::getenv("ONBOARDUI_STORM_SEED");
    const int sent =
        Blow(seed != nullptr ? std::uint32_t(std::strtoul(seed, nullptr, 10)) : FirstSeed);
    if (seed != nullptr)
    {
        std::printf("%s: %d messages\n", GetParam().name, sent);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, MessageStorm, testing::ValuesIn(Subjects()),
                         [](const auto& info) { return TestName(info.param.name); });

// The rest the platform's own controls do not bear: WM_NOTIFY, WM_GETTEXT, changes of GWL_STYLE.
TEST_F(WindowTest, ControlsPassOverMessagesThatComeWithoutTheirRecord)
{
    constexpr UINT Messages[] = {
        WM_NCCALCSIZE,    WM_MOVING,         WM_SIZING,       WM_WINDOWPOSCHANGING,
        WM_GETMINMAXINFO, WM_SETTEXT,        WM_DRAWITEM,     WM_MEASUREITEM,
        WM_COMPAREITEM,   WM_DELETEITEM,     WM_HELP,         WM_COPYDATA,
        WM_SETTINGCHANGE, WM_CTLCOLORSTATIC, WM_CTLCOLOREDIT, WM_ERASEBKGND,
        WM_PRINTCLIENT,   WM_PARENTNOTIFY,   WM_STYLECHANGED, WM_WINDOWPOSCHANGED,
        WM_STYLECHANGING};
    for (const Subject& subject : Subjects())
    {
        for (const APPMODE mode : {STD, ONBOARD})
        {
            const ModeScope scope(mode);
            const std::unique_ptr<CWnd> window = subject.make(Host());
            const bool bearsMore = !IsOfClass(*window, WC_LISTVIEW);
            for (const WPARAM flag : {FALSE, TRUE})
            {
                for (const UINT message : Messages)
                {
                    const bool borne = bearsMore || (message != WM_WINDOWPOSCHANGED &&
                                                     message != WM_STYLECHANGING);
                    window->SendMessage(borne ? message : WM_NULL, flag, 0);
                }
            }
            EXPECT_EQ(FaultOf(*window).value_or(""), "") << subject.name;
        }
    }
}

} // namespace
